! One picture on every raster output: a red "F" on a blue page, with lines, box outlines,
! and a filled circle, triangle and polygon. Each file format is written once from an
! indexed raster and once from an RGB raster; the raster is 601 pixels wide, an odd width.
program raster
  use zorbel
  implicit none
  character(len=4), parameter :: fmts(6) = (/ 'PNG ', 'GIF ', 'TIFF', 'BMP ', 'PPM ', 'IMAG' /)
  character(len=3), parameter :: exts(6) = (/ 'png', 'gif', 'tif', 'bmp', 'ppm', 'img' /)
  character(len=4), parameter :: modes(2) = (/ 'INDE', 'RGB ' /)
  integer :: i, k

  do k = 1, 2
    do i = 1, 6
      call metafl(fmts(i))
      call imgfmt(modes(k))
      call winsiz(601, 425)
      call setfil('raster_' // trim(modes(k)) // '.' // exts(i))
      call zorini()
      call picture()
      call zorfin()
    end do
  end do

  ! The same picture on a PostScript page for comparison.
  call metafl('POST')
  call setfil('raster.ps')
  call zorini()
  call picture()
  call zorfin()

contains

  subroutine picture()
    real :: xt(3), yt(3)
    integer :: j
    call setvlt('SMAL')
    ! Blue page, red F: a stem, a long top arm and a shorter middle arm.
    call recfll(0, 0, 2970, 2100, 4)
    call recfll(400, 300, 220, 1500, 2)
    call recfll(620, 300, 800, 200, 2)
    call recfll(620, 900, 500, 200, 2)
    ! White and yellow lines: a fan from the lower left corner, a frame around the page.
    call color('WHITE')
    do j = 0, 5
      call line(100, 2000, 1600 + j * 250, 300 + j * 300)
    end do
    call color('YELLOW')
    call rectan(50, 50, 2870, 2000)
    call rectan(1700, 200, 1000, 600)
    ! Filled shapes: a green circle, a magenta triangle, a cyan polygon.
    call shdpat(16)
    call color('GREEN')
    call circle(2200, 500, 220)
    call color('MAGENTA')
    xt = (/ 1700.0, 2700.0, 2000.0 /)
    yt = (/ 1900.0, 1900.0, 1100.0 /)
    call trifll(xt, yt)
    call color('CYAN')
    call areaf((/ 900, 1400, 1500, 1100, 800 /), (/ 1300, 1250, 1700, 1900, 1650 /), 5)
  end subroutine picture

end program raster
