! Dashed, thick and clipped lines on three PostScript pages: A4 portrait in centimetre
! units, US letter landscape in inch units measured from the bottom, and an own page in
! point units.
program lines
  use zorbel
  implicit none
  integer :: i, k
  integer, dimension(4) :: ipat = (/ 40, 20, 5, 20 /)

  ! Page 1: A4 portrait, 0.1 mm units.
  call metafl('POST')
  call setpag('DA4P')
  call zorini()
  call pagera()
  ! The eight line types, an own pattern, and a dashed zigzag whose pattern runs on.
  do i = 0, 7
    call lintyp(i)
    call line(200, 200 + i * 70, 1900, 200 + i * 70)
  end do
  call myline(ipat, 4)
  call line(200, 780, 1900, 780)
  call dash()
  do i = 0, 9
    call line(200 + i * 170, 860 + mod(i, 2) * 100, 370 + i * 170, 960 - mod(i, 2) * 100)
  end do
  ! Widths 1 to 20.
  call solid()
  do i = 1, 5
    call linwid(i * i)
    call line(200, 1080 + i * 60, 900, 1080 + i * 60)
  end do
  ! Caps CUT, ROUN, LONG on wide lines, with thin guides at their ends.
  call linwid(40)
  call lncap('CUT')
  call line(1150, 1140, 1750, 1140)
  call lncap('ROUN')
  call line(1150, 1240, 1750, 1240)
  call lncap('LONG')
  call line(1150, 1340, 1750, 1340)
  call linwid(1)
  call line(1150, 1100, 1150, 1380)
  call line(1750, 1100, 1750, 1380)
  ! Joins SHAR, ROUN, TRUN on wide zigzags.
  call linwid(30)
  call lnjoin('SHAR')
  call zigzag(200, 1650)
  call lnjoin('ROUN')
  call zigzag(800, 1650)
  call lnjoin('TRUN')
  call zigzag(1400, 1650)
  ! Clipping: a dotted frame marks the window; a fan of solid, dashed and wide lines is
  ! cut to it.
  call linwid(1)
  call lnjoin('TRUN')
  call dot()
  call line(300, 1900, 1799, 1900)
  call line(1799, 1900, 1799, 2699)
  call line(1799, 2699, 300, 2699)
  call line(300, 2699, 300, 1900)
  call clpwin(300, 1900, 1500, 800)
  do k = 0, 12
    call lintyp(mod(k, 3) * 2)
    call linwid(1 + mod(k, 4) * 3)
    call line(1050, 2300, k * 175, 1600)
    call line(1050, 2300, k * 175, 2969)
  end do
  call linwid(1)
  call solid()
  call line(0, 2000, 2098, 2100)
  call line(100, 2968, 2000, 1500)
  call reset('CLPW')
  call zorfin()

  ! Page 2: US letter landscape in inch units (0.01 inch), y measured from the bottom.
  call units('INCH')
  call setpag('USAL')
  call zorini()
  call pagorg('BOTT')
  call pagera()
  call chndsh()
  call line(50, 50, 1048, 50)
  call linwid(2)
  call dashl()
  call line(50, 100, 1048, 100)
  call linwid(1)
  call dotl()
  call line(50, 800, 1048, 800)
  call clpwin(300, 200, 500, 400)
  call dashm()
  do k = 0, 10
    call line(k * 110, 150, 1098 - k * 110, 700)
  end do
  call reset('CLPW')
  call zorfin()

  ! Page 3: an own page in point units (0.1 point), 500 by 350 points.
  call units('POIN')
  call page(5000, 3500)
  call zorini()
  call pagera()
  call penwid(2.5)
  call dashm()
  call line(200, 300, 4800, 300)
  call penwid(0.5)
  call chndot()
  call line(200, 600, 4800, 600)
  call linwid(4)
  call lncap('ROUN')
  call dot()
  call line(200, 1000, 4800, 3200)
  call zorfin()

contains

  ! A polyline of four legs straight into the stroke buffer, so that its joints show.
  subroutine zigzag(nx, ny)
    integer, intent(in) :: nx, ny
    call xmove(real(nx), real(ny))
    call xdraw(real(nx + 120), real(ny - 150))
    call xdraw(real(nx + 240), real(ny))
    call xdraw(real(nx + 360), real(ny - 150))
    call xdraw(real(nx + 480), real(ny))
  end subroutine zigzag

end program lines
