! CGM output: three pictures in one file. Lines of several widths and colours, solid boxes
! and filled polygons (CGM holds polylines only: boxes and fills arrive hatched), a named
! picture on a grey background in WebCGM form.
program cgm
  use zorbel
  implicit none
  character(len=4), parameter :: names(6) = (/ 'RED ', 'GREE', 'BLUE', 'CYAN', 'MAGE', 'ORAN' /)
  integer :: i, ic, fx(10), fy(10), tx(3), ty(3)

  call metafl('CGM ')
  call cgmver(4)
  call cgmbgd(0.9, 0.9, 0.85)
  call cgmpic('Zorbel CGM example')
  call setfil('pictures.cgm')
  call zorini()

  ! Picture 1: lines of widths 1 to 30 in six colours, and a title in a stroke font.
  call height(60)
  call messag('Lines in six colours and widths', 100, 80)
  do i = 1, 6
    call color(names(i))
    call linwid(i * i)
    call line(100, 200 + i * 150, 2800, 200 + i * 150)
  end do
  call linwid(1)
  call color('FORE')
  call rectan(20, 20, 2929, 2059)

  ! Picture 2: solid boxes in the six colours and an explicit one.
  call newpag()
  do i = 1, 6
    call color(names(i))
    call getclr(ic)
    call recfll(100 + (i - 1) * 400, 300, 350, 500, ic)
  end do
  call recfll(100, 1000, 2700, 300, intrgb(0.2, 0.6, 0.3))

  ! Picture 3: filled polygons, an asymmetric F and a triangle.
  call newpag()
  call shdpat(16)
  call color('RED ')
  fx = (/ 0, 600, 600, 160, 160, 440, 440, 160, 160, 0 /) + 300
  fy = (/ 0, 0, 140, 140, 340, 340, 480, 480, 1000, 1000 /) + 300
  call areaf(fx, fy, 10)
  call color('BLUE')
  tx = (/ 1400, 2600, 2000 /)
  ty = (/ 1600, 1600, 400 /)
  call areaf(tx, ty, 3)
  call zorfin()
end program cgm
