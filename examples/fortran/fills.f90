! Area fills on a PostScript page: the 18 predefined patterns in boxes, a concave, a
! self-intersecting and a holed polygon filled solid and hatched, and rows of swatches of
! the colour tables, with a row of explicit colours around the hue circle below them.
program fills
  use zorbel
  implicit none
  character(len=4), parameter :: tables(6) = (/ 'RAIN', 'SPEC', 'TEMP', 'GREY', 'VGA ', 'SMAL' /)
  integer, parameter :: entries(6) = (/ 256, 256, 256, 256, 16, 9 /)
  integer :: i, k, n, nx(12), ny(12), x0, y0, w
  real :: xr, xg, xb

  call metafl('PS  ')
  call zorini()

  ! Patterns 0 to 17: six columns and three rows of outlined boxes.
  do i = 0, 17
    x0 = 150 + mod(i, 6) * 335
    y0 = 150 + (i / 6) * 300
    call shdpat(i)
    call box(x0, y0, 290, 260)
  end do

  ! Concave, self-intersecting and holed polygons in red: solid in the left column, hatched
  ! with crossing lines in the right one.
  call color('RED ')
  do k = 0, 1
    if (k == 0) then
      call shdpat(16)
    else
      call mypat(45, 1, 2, 1)
    end if
    x0 = 2160 + k * 360
    ! An E: three arms on a back.
    call polygon(12, (/ 0, 250, 250, 70, 70, 250, 250, 70, 70, 250, 250, 0 /) + x0, &
                 (/ 0, 0, 50, 50, 105, 105, 155, 155, 210, 210, 260, 260 /) + 150)
    ! A five-pointed star drawn in one stroke: its centre stays empty.
    call polygon(5, (/ 130, 54, 254, 6, 206 /) + x0, (/ 7, 242, 97, 97, 242 /) + 450)
    ! A square with a square hole, joined to it by a double edge.
    call polygon(12, (/ 0, 260, 260, 0, 0, 80, 80, 180, 180, 80, 80, 0 /) + x0, &
                 (/ 0, 0, 260, 260, 130, 130, 180, 180, 80, 80, 130, 130 /) + 750)
  end do
  call color('FORE')

  ! Colour tables: one row of swatches each, at most 32 to a row.
  do k = 1, 6
    call setvlt(tables(k))
    call shdpat(16)
    n = min(entries(k), 32)
    w = 2670 / n
    y0 = 1130 + (k - 1) * 125
    do i = 0, n - 1
      call setclr((i * (entries(k) - 1)) / (n - 1))
      call box(150 + i * w, y0, w - 10, 105)
    end do
  end do

  ! Explicit colours around the hue circle.
  call setvlt('RAIN')
  do i = 0, 31
    call hsvrgb(real(i) * 360.0 / 32.0, 1.0, 1.0, xr, xg, xb)
    call setrgb(xr, xg, xb)
    call box(150 + i * 83, 1890, 73, 105)
  end do
  call zorfin()

contains

  ! An outlined box with the current pattern and colour.
  subroutine box(x, y, bw, bh)
    integer, intent(in) :: x, y, bw, bh
    integer :: bx(4), by(4)
    bx = (/ x, x + bw, x + bw, x /)
    by = (/ y, y, y + bh, y + bh /)
    call areaf(bx, by, 4)
  end subroutine box

  subroutine polygon(np, px, py)
    integer, intent(in) :: np, px(np), py(np)
    nx(1:np) = px
    ny(1:np) = py
    call areaf(nx, ny, np)
  end subroutine polygon

end program fills
