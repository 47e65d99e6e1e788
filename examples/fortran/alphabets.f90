! The stroke alphabets: one page for each font set with its six alphabets at every position,
! then a line of text at several heights, angles, slants and width factors, with fixed spacing,
! and, for the outline families, filled glyphs. A grey line marks each baseline.
program alphabets
  use zorbel
  implicit none
  character(len=6), parameter :: fonts(11) = [character(len=6) :: 'ZORALF', 'COMPLX', 'SIMPLX', &
      'DUPLX', 'TRIPLX', 'GOTHIC', 'COMGOT', 'HELVE', 'HELVES', 'HELVET', 'SERIF']
  character(len=4), parameter :: keys(6) = ['STAN', 'GREE', 'MATH', 'ITAL', 'SCRI', 'RUSS']
  character(len=12), parameter :: names(6) = [character(len=12) :: 'standard', 'Greek', &
      'mathematic', 'italic', 'script', 'Russian']
  character(len=*), parameter :: sample = 'Plot 2.5 kg/m^3 (Axis) Waxy Quiz'
  integer :: ifnt, ia, npos, y

  call metafl('POST')
  call setfil('alphabets.ps')
  call zorini()
  do ifnt = 1, 11
    if (ifnt > 1) call newpag()
    call load(fonts(ifnt))
    call basalf('STAN')
    call height(40)
    call messag('Font set '//trim(fonts(ifnt)), 80, 40)
    y = 140
    do ia = 1, 6
      npos = positions(fonts(ifnt), ia)
      call basalf('STAN')
      call height(22)
      call messag(trim(names(ia)), 80, y + 8)
      call basalf(keys(ia))
      call height(34)
      call every_position(npos, y)
    end do
    call basalf('STAN')
    call samples(y, fonts(ifnt)(1:2) == 'HE' .or. fonts(ifnt) == 'SERIF')
  end do
  call zorfin()

contains

  subroutine load(cname)
    character(len=*), intent(in) :: cname
    select case (cname)
    case ('ZORALF'); call zoralf()
    case ('COMPLX'); call complx()
    case ('SIMPLX'); call simplx()
    case ('DUPLX'); call duplx()
    case ('TRIPLX'); call triplx()
    case ('GOTHIC'); call gothic()
    case ('COMGOT'); call comgot()
    case ('HELVE'); call helve()
    case ('HELVES'); call helves()
    case ('HELVET'); call helvet()
    case ('SERIF'); call serif()
    end select
  end subroutine load

  ! Character positions of alphabet ia in a font set.
  integer function positions(cname, ia)
    character(len=*), intent(in) :: cname
    integer, intent(in) :: ia
    positions = 95
    select case (ia)
    case (1)
      positions = 102
      if (cname == 'COMPLX' .or. cname == 'COMGOT') positions = 209
      if (cname == 'GOTHIC') positions = 95
    case (4)
      if (cname /= 'GOTHIC' .and. cname /= 'COMGOT') positions = 102
    case (5)
      positions = 102
    end select
  end function positions

  ! Codes 33 .. 31 + npos in rows of 60, each row on a grey baseline.
  subroutine every_position(npos, y)
    integer, intent(in) :: npos
    integer, intent(inout) :: y
    character(len=60) :: row
    integer :: code, k
    k = 0
    row = ' '
    do code = 33, 31 + npos
      k = k + 1
      row(k:k) = achar(code)
      if (k == 60 .or. code == 31 + npos) then
        call baseline(400, y, 2850)
        call messag(row(1:k), 400, y)
        y = y + 58
        k = 0
        row = ' '
      end if
    end do
  end subroutine every_position

  subroutine baseline(nx, ny, nx2)
    integer, intent(in) :: nx, ny, nx2
    call setrgb(0.75, 0.75, 0.75)
    call line(nx, ny + 33, nx2, ny + 33)
    call color('FORE')
  end subroutine baseline

  ! The sample text at several heights, slants, width factors, with fixed spacing, at angles;
  ! each piece starts where the one before ended, as nlmess measures it.
  subroutine samples(y, outline)
    integer, intent(inout) :: y
    logical, intent(in) :: outline
    integer :: x
    y = y + 20
    x = 80
    call piece(sample, 24, x, y + 46)
    call piece(sample, 48, x, y + 22)
    call piece('Ag', 70, x, y)
    y = y + 100
    x = 80
    call chaang(20.0)
    call piece('slant 20: '//sample, 36, x, y)
    call chaang(0.0)
    call chawth(0.6)
    call piece('width 0.6: '//sample, 36, x, y)
    call chawth(1.0)
    y = y + 60
    x = 80
    call chawth(1.6)
    call piece('width 1.6: Plot', 36, x, y)
    call chawth(1.0)
    call fixspc(0.8)
    call piece('fixed: iiiWWW 1111', 36, x, y)
    call reset('FIXS')
    call chaspc(0.3)
    call piece('gap 0.3', 36, x, y)
    call chaspc(0.0)
    call angle(30)
    call messag('angle 30', x + 40, y + 110)
    call angle(90)
    call messag('90', 2880, y + 60)
    call angle(0)
    if (outline) then
      call shdcha()
      x = 80
      call piece('Filled: AaBbQq&@%86', 60, x, y + 70)
      call reset('SHDC')
    end if
  end subroutine samples

  ! Draws a string at height nh and moves x past it.
  subroutine piece(cstr, nh, x, y)
    character(len=*), intent(in) :: cstr
    integer, intent(in) :: nh, y
    integer, intent(inout) :: x
    call height(nh)
    call baseline(x, y + nh - 1 - 33, x + nlmess(cstr))
    call messag(cstr, x, y)
    x = x + nlmess(cstr) + 60
  end subroutine piece

end program alphabets
