! Curves on two PostScript pages. Page 1: four graphs with titles of several lines, grids,
! lines with markers and changing colours and styles, steps, stairs and stems, splines
! through points (on x and parametric), and open and filled bars. Page 2: logarithmic
! axes with a grid that follows the decades, a curve with gaps, titles below, axes through
! the origin, a frame drawn inward, and a page header.
program curves
  use zorbel
  implicit none
  integer, parameter :: n = 41, m = 12
  real, dimension(n) :: x, y
  real, dimension(m) :: xs, ys
  real, dimension(9) :: xp, yp
  real :: xa, xe, xo, xst, ya, ye, yo, yst
  integer :: i, k

  call metafl('POST')
  call setfil('curves.ps')
  call zorini()
  call setvlt('RAIN')
  call axslen(1150, 560)
  call height(28)
  call hname(30)

  ! Graph 1: four phases of a sine, colours and styles change from curve to curve, a symbol
  ! at every fourth point.
  call axspos(250, 880)
  call name('Angle [rad]', 'X')
  call name('Amplitude', 'Y')
  call labdig(1, 'XY')
  call titlin('Sines in four phases', 1)
  call titlin('colour, style and symbol change with each curve', 3)
  call titlin('grid(1, 2)', -4)
  xa = 0.0; xe = 6.0; xo = 0.0; xst = 1.0
  ya = -1.2; ye = 1.2; yo = -1.2; yst = 0.4
  call graf(xa, xe, xo, xst, ya, ye, yo, yst)
  call title()
  call setrgb(0.7, 0.7, 0.7)
  call lintyp(6)
  call grid(1, 2)
  call lintyp(0)
  call color('FORE')
  ! The line y = 0; the scaling of x ends at 0, so there is no line x = 0.
  call axgit()
  ! The first colour of the cycle as a dark blue instead of the keyword colour white.
  call clrcyc(1, intrgb(0.1, 0.1, 0.7))
  call chncrv('BOTH')
  call incmrk(4)
  call hsymbl(22)
  do k = 0, 3
    do i = 1, n
      x(i) = 0.15 * real(i - 1)
      y(i) = sin(x(i) + 0.6 * real(k)) * (1.0 - 0.15 * real(k))
    end do
    call curve(x, y, n)
  end do
  call endgrf()
  call chncrv('NONE')
  call incmrk(0)
  call reset('TITL')

  ! Graph 2: the same twelve points as steps, stairs and stems.
  call axspos(1650, 880)
  call name('Sample', 'X')
  call name('Level', 'Y')
  call titlin('STEP (red), STAI (green) and STEM (yellow)', 2)
  call titlin('with thkcrv(3) on the steps', 3)
  call titjus('LEFT')
  do i = 1, m
    xs(i) = real(i)
    ys(i) = 2.0 + 1.5 * sin(0.7 * real(i)) + 0.3 * real(mod(i, 3))
  end do
  xa = 0.0; xe = 13.0; xo = 0.0; xst = 1.0
  ya = 0.0; ye = 5.0; yo = 0.0; yst = 1.0
  call labdig(-1, 'XY')
  call graf(xa, xe, xo, xst, ya, ye, yo, yst)
  call title()
  call thkcrv(3)
  call color('RED')
  call polcrv('STEP')
  call curve(xs, ys, m)
  call thkcrv(1)
  call color('GREEN')
  call polcrv('STAI')
  call curve(xs, ys - 0.6, m)
  call color('YELLOW')
  call polcrv('STEM')
  call incmrk(1)
  call marker(21)
  call curve(xs, ys + 0.5, m)
  call color('FORE')
  call endgrf()
  call polcrv('LINE')
  call incmrk(0)
  call titjus('CENT')
  call reset('TITL')

  ! Graph 3: splines through nine points: on x (cubic and quadratic), and parametric.
  call axspos(250, 1900)
  call name('x', 'X')
  call name('y', 'Y')
  call titlin('Splines: SPLI of degree 3 (blue) and 2 (red),', 1)
  call titlin('PSPL through a loop (green); the points as symbols', 2)
  call titjus('RIGH')
  xp = (/ 0.5, 1.2, 2.0, 3.1, 4.0, 5.2, 6.0, 7.1, 8.0 /)
  yp = (/ 1.0, 3.5, 2.0, 4.5, 1.5, 3.0, 0.8, 4.0, 2.5 /)
  xa = 0.0; xe = 9.0; xo = 0.0; xst = 1.0
  ya = 0.0; ye = 6.0; yo = 0.0; yst = 1.0
  call graf(xa, xe, xo, xst, ya, ye, yo, yst)
  call title()
  call setrgb(0.7, 0.7, 0.7)
  call grid(1, 1)
  call color('FORE')
  call incmrk(-1)
  call marker(16)
  call curve(xp, yp, 9)
  call incmrk(0)
  call color('BLUE')
  call polcrv('SPLI')
  call curve(xp, yp, 9)
  call splmod(2, 200)
  call color('RED')
  call lintyp(2)
  call curve(xp, yp, 9)
  call lintyp(0)
  call splmod(3, 200)
  call color('GREEN')
  call polcrv('PSPL')
  xs(1:7) = (/ 2.0, 5.0, 7.0, 5.5, 4.0, 2.5, 4.0 /)
  ys(1:7) = (/ 5.5, 5.8, 4.8, 3.6, 5.0, 4.2, 5.6 /)
  call incmrk(1)
  call marker(3)
  call curve(xs, ys, 7)
  call incmrk(0)
  call polcrv('LINE')
  call color('FORE')
  call endgrf()
  call titjus('CENT')
  call reset('TITL')

  ! Graph 4: open and filled bars, a grid behind them.
  call axspos(1650, 1900)
  call name('Month', 'X')
  call name('Rain [mm]', 'Y')
  call titlin('Open BARS and filled FBAR', 1)
  call titlin('barwth(0.8) and barwth(-40.0)', 2)
  call htitle(34)
  do i = 1, m
    xs(i) = real(i)
    ys(i) = 20.0 + 15.0 * cos(0.5 * real(i)) + 2.0 * real(i)
  end do
  xa = 0.0; xe = 13.0; xo = 0.0; xst = 1.0
  ya = 0.0; ye = 60.0; yo = 0.0; yst = 10.0
  call graf(xa, xe, xo, xst, ya, ye, yo, yst)
  call title()
  call setrgb(0.7, 0.7, 0.7)
  call grid(0, 2)
  call color('CYAN')
  call polcrv('FBAR')
  call barwth(-40.0)
  call curve(xs, ys * 0.5, m)
  call color('ORANGE')
  call polcrv('BARS')
  call barwth(0.8)
  call curve(xs, ys, m)
  call polcrv('LINE')
  call color('FORE')
  call endgrf()
  call reset('TITL')
  call reset('HTIT')

  ! Page 2: logarithmic axes.
  call newpag()
  call axsscl('LOG', 'XY')
  call labels('LOG', 'XY')
  call labdig(-1, 'XY')
  call axspos(300, 1500)
  call axslen(1100, 1000)
  call name('Frequency [Hz]', 'X')
  call name('Response', 'Y')
  call titpos('BELO')
  call vkytit(-130)
  call titlin('Log axes: grid(2, 2) follows the decades', 1)
  call titlin('lines, a cubic spline in log steps and markers', 2)
  xa = 0.0; xe = 4.0; xo = 0.0; xst = 1.0
  ya = -2.0; ye = 2.0; yo = -2.0; yst = 1.0
  call graf(xa, xe, xo, xst, ya, ye, yo, yst)
  call title()
  call setrgb(0.7, 0.7, 0.7)
  call grid(2, 2)
  call color('FORE')
  call chncrv('COLO')
  call incmrk(5)
  do k = 1, 3
    do i = 1, n
      x(i) = 10.0 ** (0.1 * real(i - 1))
      y(i) = 30.0 / (1.0 + (x(i) / (10.0 ** real(k)))**2)**(0.5 * real(k))
    end do
    call curve(x, y, n)
  end do
  call incmrk(0)
  call polcrv('SPLI')
  do i = 1, 9
    xs(i) = 10.0 ** (0.45 * real(i) - 0.2)
    ys(i) = 0.03 * 2.0 ** real(i)
  end do
  call incmrk(1)
  call curve(xs, ys, 9)
  call incmrk(0)
  call polcrv('LINE')
  call chncrv('NONE')
  call color('FORE')
  call endgrf()
  call reset('SCAL')
  call reset('LABE')
  call reset('TITL')
  call reset('VKYT')
  call titpos('ABOV')

  ! A linear system with axes through the origin, a curve with gaps and an inward frame.
  call axspos(1700, 1500)
  call axslen(1000, 1000)
  call labdig(1, 'XY')
  call name('t', 'X')
  call name('u', 'Y')
  call titlin('Crossed axes at the origin, gapcrv(0.35)', 1)
  call titlin('frame(-6) in red', 2)
  call frame(-6)
  call frmclr(intrgb(0.8, 0.0, 0.0))
  xa = -2.0; xe = 3.0; xo = -2.0; xst = 1.0
  ya = -1.5; ye = 1.5; yo = -1.5; yst = 0.5
  call graf(xa, xe, xo, xst, ya, ye, yo, yst)
  call frmclr(-1)
  call frame(1)
  call title()
  call cross()
  do i = 1, n
    x(i) = -1.9 + 0.12 * real(i - 1)
    if (mod(i, 10) == 0) x(i) = x(i) + 0.3
    y(i) = 1.2 * sin(2.0 * x(i)) * exp(-0.2 * x(i))
  end do
  call gapcrv(0.35)
  call color('MAGENTA')
  call thkcrv(2)
  call curve(x, y, n)
  call thkcrv(1)
  call color('FORE')
  call reset('GAPC')
  call box2d()
  call endgrf()

  call paghdr('Zorbel curves example', 'page 2', 4, 0)
  call zorfin()
end program curves
