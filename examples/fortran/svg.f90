! SVG output: lines of several widths and colours, solid boxes, filled polygons and a
! stroke-font title, on a landscape page and on a portrait page (one SVG file each).
program svg
  use zorbel
  implicit none

  ! Page 1: A4 landscape on a white background.
  call metafl('SVG ')
  call setfil('svg_land.svg')
  call zorini()
  call drawing(2969, 2099)
  call zorfin()

  ! Page 2: A4 portrait on a black background, with the picture size given.
  call metafl('SVG ')
  call setpag('DA4P')
  call scrmod('NOREV')
  call winsiz(600, 848)
  call setfil('svg_port.svg')
  call zorini()
  call drawing(2099, 2969)
  call zorfin()

contains

  subroutine drawing(nw, nh)
    integer, intent(in) :: nw, nh
    character(len=4), parameter :: names(6) = (/ 'RED ', 'GREE', 'BLUE', 'CYAN', 'MAGE', 'ORAN' /)
    integer :: i, x0, ic
    integer :: fx(10), fy(10), tx(3), ty(3)

    ! Frame of the page and a title in a stroke font.
    call color('FORE')
    call linwid(1)
    call rectan(20, 20, nw - 40, nh - 40)
    call height(60)
    call messag('Lines, boxes and polygons in SVG', 100, 80)

    ! Lines of widths 1 to 30 in six colours.
    do i = 1, 6
      call color(names(i))
      call linwid(i * i)
      call line(100, 200 + i * 90, nw / 2, 200 + i * 90)
    end do
    call linwid(1)

    ! Solid boxes: the six colours side by side, and one in an explicit colour.
    do i = 1, 6
      call color(names(i))
      call getclr(ic)
      call recfll(100 + (i - 1) * 150, 900, 130, 200, ic)
    end do
    call recfll(1000, 900, 300, 200, intrgb(0.2, 0.6, 0.3))

    ! Filled polygons: an asymmetric F, which shows any flip, and a triangle.
    call shdpat(16)
    call color('RED ')
    x0 = nw / 2 + 250
    fx = (/ 0, 300, 300, 80, 80, 220, 220, 80, 80, 0 /) + x0
    fy = (/ 0, 0, 70, 70, 170, 170, 240, 240, 500, 500 /) + 250
    call areaf(fx, fy, 10)
    call color('BLUE')
    tx = (/ 0, 400, 200 /) + x0
    ty = (/ 1100, 1100, 800 /)
    call areaf(tx, ty, 3)
    call color('FORE')
  end subroutine drawing

end program svg
