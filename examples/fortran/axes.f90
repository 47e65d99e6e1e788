! Axis systems on three PostScript pages: linear, logarithmic, automatic scaling of awkward
! ranges and a reversed axis; one single axis for every label type; names on all four sides
! and a crossed axis system.
program axes
  use zorbel
  implicit none
  real :: xa, xe, xo, xs, ya, ye, yo, ys
  real, dimension(4) :: xdat = (/ 0.0137, 0.0921, 0.05, 0.031 /)
  real, dimension(3) :: ydat = (/ -3.7e4, 1.2e5, 5.0e4 /)
  character(len=4), dimension(14) :: types = (/ 'FLOA', 'EXP ', 'FEXP', 'LOG ', 'CLOG', &
      'ELOG', 'MAP ', 'DMAP', 'LMAP', 'TIME', 'HOUR', 'SECO', 'MYLA', 'NONE' /)
  integer :: i, nx, ny

  call metafl('POST')
  call setfil('axes.ps')
  call zorini()

  ! Page 1: four axis systems.
  call axslen(1000, 650)
  call name('Distance [m]', 'X')
  call name('Height [m]', 'Y')
  call axspos(400, 850)
  xa = 0.0; xe = 10.0; xo = 0.0; xs = 2.0
  ya = -1.0; ye = 1.0; yo = -1.0; ys = 0.5
  call graf(xa, xe, xo, xs, ya, ye, yo, ys)
  call endgrf()

  call axspos(1800, 850)
  call axsscl('LOG', 'XY')
  call labels('LOG', 'X')
  call labels('CLOG', 'Y')
  call labdig(-1, 'XY')
  call name('Frequency [Hz]', 'X')
  call name('Gain', 'Y')
  xa = 0.0; xe = 4.0; xo = 0.0; xs = 1.0
  ya = -1.0; ye = 2.0; yo = -1.0; ys = 1.0
  call graf(xa, xe, xo, xs, ya, ye, yo, ys)
  call endgrf()
  call reset('SCAL')
  call reset('LABE')
  call reset('DIGI')

  ! Automatic scaling: the data's ends, a round first label and step.
  call axspos(500, 1850)
  call setscl(xdat, 4, 'X')
  call setscl(ydat, 3, 'Y')
  call labels('EXP', 'Y')
  call name('Concentration', 'X')
  call name('Flow', 'Y')
  call graf(xa, xe, xo, xs, ya, ye, yo, ys)
  call endgrf()
  call setscl(xdat, 4, 'RES')
  call reset('LABE')
  call reset('DIGI')

  ! A reversed x axis with centred ticks and labels set off the ends.
  call axspos(1800, 1850)
  call ticpos('CENT', 'XY')
  call labpos('SHIF', 'X')
  call labdig(-1, 'XY')
  ! Light blue as an explicit colour: 1 in the top byte, then blue, green, red.
  call axsbgd(16777216 + 255 * 65536 + 235 * 256 + 220)
  call name('Depth, reversed', 'X')
  call name('Share [%]', 'Y')
  xa = 10.0; xe = 0.0; xo = 10.0; xs = -2.0
  ya = 0.0; ye = 100.0; yo = 0.0; ys = 25.0
  call graf(xa, xe, xo, xs, ya, ye, yo, ys)
  call endgrf()
  call reset('TICP')
  call reset('LABP')
  call reset('NAME')
  call reset('DIGI')
  call axsbgd(-1)

  ! Page 2: one axis for each label type.
  call newpag()
  call timopt()
  call mylab('one', 1, 'X')
  call mylab('two', 2, 'X')
  call mylab('three', 3, 'X')
  call mylab('four', 4, 'X')
  call mylab('five', 5, 'X')
  do i = 1, 14
    nx = 150 + 1500 * ((i - 1) / 7)
    ny = 200 + 270 * mod(i - 1, 7)
    call labels(types(i), 'X')
    select case (i)
    case (1)
      call labdig(2, 'X')
      call xaxis(-1.0, 1.0, -1.0, 0.5, 1150, 'FLOA', 0, nx, ny)
    case (2, 3)
      call labdig(1, 'X')
      call xaxis(0.0, 4.0e5, 0.0, 1.0e5, 1150, types(i), 0, nx, ny)
    case (4, 5, 6)
      call labdig(-1, 'X')
      call xaxlg(-2.0, 3.0, -2.0, 1.0, 1150, types(i), 0, nx, ny)
    case (7, 8, 9)
      call labdig(-1, 'X')
      call xaxis(-180.0, 180.0, -180.0, 90.0, 1150, types(i), 0, nx, ny)
    case (10, 11, 12)
      call xaxis(0.0, 86400.0, 0.0, 21600.0, 1150, types(i), 0, nx, ny)
    case default
      call xaxis(0.0, 4.0, 0.0, 1.0, 1150, types(i), 0, nx, ny)
    end select
  end do
  call reset('LABE')
  call reset('DIGI')
  call reset('MYLA')

  ! Page 3: names and labels on all four sides, and a crossed axis system.
  call newpag()
  call setgrf('NAME', 'NAME', 'NAME', 'NAME')
  call rvynam()
  call labtyp('VERT', 'X')
  call name('x axis, both sides', 'X')
  call name('y axis, both sides', 'Y')
  call axslen(1100, 1100)
  call axspos(350, 1600)
  xa = 0.0; xe = 5.0; xo = 0.0; xs = 1.0
  ya = 0.0; ye = 50.0; yo = 0.0; ys = 10.0
  call graf(xa, xe, xo, xs, ya, ye, yo, ys)
  call endgrf()
  call reset('SETG')
  call reset('LABT')

  call axstyp('CROS')
  call name('x', 'X')
  call name('y', 'Y')
  call axslen(1000, 1000)
  call axspos(1900, 1550)
  xa = -4.0; xe = 6.0; xo = -4.0; xs = 2.0
  ya = -2.0; ye = 3.0; yo = -2.0; ys = 1.0
  call graf(xa, xe, xo, xs, ya, ye, yo, ys)
  call endgrf()

  call zorfin()
end program axes
