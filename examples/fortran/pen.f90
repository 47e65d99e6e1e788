! Pen moves on a PostScript page: a frame around the page, a star and a spiral, drawn
! straight through the dispatcher in plot coordinates.
program pen
  use zorbel
  implicit none
  integer :: i
  real :: a, r, x, y
  call metafl('POST')
  call zorini()
  call xjdraw(10.0, 10.0, 3)
  call xjdraw(2959.0, 10.0, 2)
  call xjdraw(2959.0, 2089.0, 2)
  call xjdraw(10.0, 2089.0, 2)
  call xjdraw(10.0, 10.0, 2)
  ! Five-pointed star around (800, 1050)
  do i = 0, 5
    a = real(mod(i * 2, 5)) * 72.0 * 0.0174533 - 1.5708
    x = 800.0 + 500.0 * cos(a)
    y = 1050.0 + 500.0 * sin(a)
    if (i == 0) then
      call xjdraw(x, y, 3)
    else
      call xjdraw(x, y, 2)
    end if
  end do
  ! Spiral of 120 points around (2100, 1050): more than two path batches
  do i = 0, 119
    a = real(i) * 0.2
    r = 20.0 + 4.0 * real(i)
    x = 2100.0 + r * cos(a)
    y = 1050.0 + r * sin(a)
    if (i == 0) then
      call xjdraw(x, y, 3)
    else
      call xjdraw(x, y, 2)
    end if
  end do
  call zorfin()
end program pen
