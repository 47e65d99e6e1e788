! Geometric primitives on a PostScript page: all built-in symbols upright and turned and a
! user symbol; every arrow form and position of vector; outlined and filled circles,
! ellipses, arcs, pies, rectangles, round rectangles, ring sectors, triangles and boxes;
! wind barbs; a Bezier curve and the circle through three points; and the same shapes in
! user coordinates of an axis system.
program shapes
  use zorbel
  implicit none
  integer :: i, k, x, ivec
  real :: xs(5), ys(5), xb(50), yb(50), xm, ym, r
  real, parameter :: speeds(8) = (/ 0.0, 5.0, 10.0, 25.0, 50.0, 65.0, 115.0, 135.0 /)
  real :: xa, xe, xo, xst, ya, ye, yo, yst

  call metafl('PS  ')
  call zorini()
  call pagfll(intrgb(0.97, 0.97, 0.92))
  call height(28)

  ! Row 1: symbols 0 to 23 with their numbers; row 2 the same turned by 30 degrees, and a
  ! filled user star as number 24.
  call messag('SYMBOL 0..23, SYMROT 30, MYSYMB', 80, 70)
  do i = 0, 23
    x = 120 + i * 110
    call symbol(i, x, 200)
    call number(real(i), -1, x - 12, 240)
  end do
  call symrot(30.0)
  do i = 0, 23
    call symbol(i, 120 + i * 110, 330)
  end do
  call symrot(0.0)
  do k = 1, 5
    xs(k) = sin(real(k - 1) * 2.513274)
    ys(k) = cos(real(k - 1) * 2.513274)
  end do
  call color('RED ')
  call mysymb(xs, ys, 5, 24, 1)
  call symbol(24, 120 + 24 * 110, 265)
  call color('FORE')

  ! Row 3: vector with head forms d3 = 0..3 (filled, base-stopped, open, closed empty) and
  ! positions d4 = 0..3 (none, end, both out, end and start).
  call messag('VECTOR 12d3d4: FILLED, STOP, OPEN, EMPTY x NONE, END, BOTH, TWO', 80, 420)
  do k = 0, 3
    do i = 0, 3
      ivec = 1200 + 10 * k + i
      x = 120 + (k * 4 + i) * 150
      call vector(x, 620, x + 130, 500, ivec)
      call number(real(ivec), -1, x + 10, 660)
    end do
  end do
  ! Head lengths d2 = 0, 3, 6, 9 at the width d1 = 2, and widths d1 = 0, 3, 6 at d2 = 2.
  do i = 0, 3
    call vector(2560, 450 + i * 80, 2760, 450 + i * 80, 2001 + i * 300)
  end do
  call vector(2780, 720, 2780, 470, 201)
  call vector(2840, 720, 2840, 470, 3201)
  call vector(2910, 720, 2910, 470, 6201)

  ! Row 4: outlines, then the same shapes filled and hatched.
  call messag('CIRCLE ELLIPS ARCELL PIE RECTAN RNDREC SECTOR TRIFLL POINT RECFLL', 80, 760)
  call circle(200, 930, 100)
  call ellips(470, 930, 140, 70)
  call arcell(760, 930, 130, 80, 30.0, 300.0, 20.0)
  call pie(1020, 930, 100, 30.0, 300.0)
  call rectan(1170, 840, 200, 180)
  call rndrec(1420, 840, 220, 180, 5)
  call sector(1800, 930, 50, 100, 30.0, 300.0, 50)
  call sector(2050, 930, 0, 100, 0.0, 360.0, 220)
  xs(1:3) = (/ 2200.0, 2380.0, 2250.0 /)
  ys(1:3) = (/ 1020.0, 1000.0, 840.0 /)
  call color('GREE')
  call trifll(xs, ys)
  call color('FORE')
  call point(2500, 930, 60, 120, intrgb(0.8, 0.1, 0.1))
  call recfll(2600, 840, 250, 180, intrgb(0.1, 0.6, 0.3))

  call shdpat(16)
  call color('BLUE')
  call circle(200, 1200, 100)
  call ellips(470, 1200, 140, 70)
  call arcell(760, 1200, 130, 80, 30.0, 300.0, 20.0)
  call pie(1020, 1200, 100, 30.0, 300.0)
  call shdpat(5)
  call color('RED ')
  call rectan(1170, 1110, 200, 180)
  call shdpat(16)
  call color('MAGE')
  call rndrec(1420, 1110, 220, 180, 9)
  call color('FORE')
  call shdpat(0)
  ! Ring sectors in every quadrant, each in its quadrant of the cross, and one across 360.
  do k = 0, 3
    call sector(1800 + (1 - 2 * mod((k + 1) / 2, 2)) * 20, 1200 + (2 * (k / 2) - 1) * 20, &
                20, 75, real(k) * 90.0 + 10.0, real(k) * 90.0 + 80.0, 40 + 60 * k)
  end do
  call sector(2080, 1200, 30, 100, 300.0, 420.0, 200)
  call elpsln(2300, 1200, 90, 90, 0.0, 360.0, 0.0, 0, 0)
  xs(1:3) = (/ 2450.0, 2850.0, 2650.0 /)
  ys(1:3) = (/ 1290.0, 1290.0, 1110.0 /)
  call xpolyl(xs, ys, 3)
  call strtpt(2500.0, 1270.0)
  do k = 1, 6
    call connpt(2500.0 + real(k) * 50.0, 1270.0 - real(mod(k, 2)) * 60.0)
  end do

  ! Row 5: wind barbs at speeds 0 to 135 and a turned one, a Bezier curve with its control
  ! polygon, and the circle through three points.
  call messag('WINDBR 0 5 10 25 50 65 115 135   BEZIER   CIRC3P', 80, 1360)
  do k = 1, 8
    call windbr(speeds(k), 120 + (k - 1) * 150, 1680, 220, 30.0 * real(k - 1))
  end do
  xs(1:4) = (/ 1350.0, 1450.0, 1650.0, 1750.0 /)
  ys(1:4) = (/ 1700.0, 1420.0, 1420.0, 1700.0 /)
  call bezier(xs, ys, 4, xb, yb, 50)
  call dash()
  call strtpt(xs(1), ys(1))
  do k = 2, 4
    call connpt(xs(k), ys(k))
  end do
  call solid()
  call strtpt(xb(1), yb(1))
  do k = 2, 50
    call connpt(xb(k), yb(k))
  end do
  call circ3p(1950.0, 1650.0, 2150.0, 1450.0, 2250.0, 1620.0, xm, ym, r)
  call symbol(3, 1950, 1650)
  call symbol(3, 2150, 1450)
  call symbol(3, 2250, 1620)
  call circle(nint(xm), nint(ym), nint(r))

  ! The same shapes in user coordinates: an axis system of 0..10 by 0..10.
  call axspos(2380, 2020)
  call axslen(560, 560)
  call height(20)
  xa = 0.0; xe = 10.0; xo = 0.0; xst = 2.0
  ya = 0.0; ye = 10.0; yo = 0.0; yst = 2.0
  call graf(xa, xe, xo, xst, ya, ye, yo, yst)
  call rlcirc(2.0, 8.0, 1.5)
  call rlrec(5.0, 9.5, 4.0, 2.5)
  call rlvec(1.0, 1.0, 4.0, 4.0, 1201)
  call rlsymb(21, 7.0, 5.0)
  call rlsec(7.0, 2.5, 0.5, 2.0, 0.0, 120.0, 60)
  call rlwind(30.0, 2.0, 5.0, 100, 45.0)
  call rlpoin(9.0, 1.0, 30, 30, intrgb(0.9, 0.1, 0.1))
  call rlcirc(10.0, 0.0, 2.0)
  call endgrf()
  call zorfin()
end program shapes
