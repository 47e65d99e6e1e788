! PDF output: pages of lines, widths, caps, joins, colours, boxes and filled polygons with
! bookmarks, written compressed to one file and uncompressed to another; then the same
! picture kept in memory by the buffer mode, fetched with pdfbuf and written by Fortran.
program pdf
  use zorbel
  implicit none
  integer, parameter :: nmax = 400000
  character(len=nmax) :: cbuf
  integer :: nlen, iu

  ! Compressed content streams (the default), three pages.
  call metafl('PDF ')
  call setfil('compressed.pdf')
  call zorini()
  call gallery()
  call zorfin()

  ! The same pages with plain content streams.
  call metafl('PDF ')
  call pdfmod('OFF', 'COMP')
  call setfil('plain.pdf')
  call zorini()
  call gallery()
  call zorfin()

  ! Compressed again, but into memory; the program writes the bytes to a file itself.
  call pdfmod('ON', 'COMP')
  call pdfmod('ON', 'BUFF')
  call zorini()
  call gallery()
  call zorfin()
  call pdfbuf(cbuf, 0, nlen)
  write (*, '(a, i8)') ' bytes in the PDF buffer: ', nlen
  call pdfbuf(cbuf, nmax, nlen)
  if (nlen <= 0) stop 1
  open (newunit=iu, file='buffered.pdf', access='stream', form='unformatted', status='replace')
  write (iu) cbuf(1:nlen)
  close (iu)
  call pdfmod('OFF', 'BUFF')

contains

  subroutine gallery()
    integer :: i, k, ix(7), iy(7)
    real :: xr, xg, xb

    ! Page 1: widths, caps, joins and dash patterns.
    call pdfmrk('Lines', 'CHAP')
    call pdfmrk('Widths', 'SECT')
    call messag('Lines: widths, caps, joins and patterns', 150, 100)
    do i = 1, 8
      call linwid(i * i)
      call line(150, 200 + i * 80, 1300, 200 + i * 80)
    end do
    call linwid(40)
    call pdfmrk('Caps and joins', 'SECT')
    call lncap('CUT')
    call line(1500, 300, 2700, 300)
    call lncap('ROUN')
    call line(1500, 450, 2700, 450)
    call lncap('LONG')
    call line(1500, 600, 2700, 600)
    call linwid(1)
    call line(1500, 220, 1500, 680)
    call line(2700, 220, 2700, 680)
    call linwid(30)
    call lnjoin('SHAR')
    call zigzag(200, 1250)
    call lnjoin('ROUN')
    call zigzag(1000, 1250)
    call lnjoin('TRUN')
    call zigzag(1800, 1250)
    call linwid(1)
    do i = 0, 7
      call lintyp(i)
      call line(150, 1450 + i * 70, 2800, 1450 + i * 70)
    end do
    call solid()

    ! Page 2: colours. A fan of coloured lines and boxes around the hue circle.
    call newpag()
    call pdfmrk('Colours', 'CHAP')
    call messag('Colours: lines and boxes around the hue circle', 150, 100)
    call linwid(8)
    do i = 0, 35
      call hsvrgb(real(i) * 10.0, 1.0, 1.0, xr, xg, xb)
      call setrgb(xr, xg, xb)
      call line(700, 1100, 700 + nint(550.0 * cos(real(i) * 0.1745)), &
                1100 - nint(550.0 * sin(real(i) * 0.1745)))
    end do
    call linwid(1)
    do i = 0, 15
      call hsvrgb(real(i) * 22.5, 1.0 - real(mod(i, 4)) * 0.2, 1.0, xr, xg, xb)
      call setrgb(xr, xg, xb)
      call recfll(1500 + mod(i, 4) * 320, 400 + (i / 4) * 320, 280, 280, intrgb(xr, xg, xb))
    end do
    call color('RED ')
    call rectan(1450, 350, 1320, 1320)
    call color('FORE')

    ! Page 3: filled polygons: solid, concave, a star, hatched, and red on blue.
    call newpag()
    call pdfmrk('Polygons', 'CHAP')
    call pdfmrk('Solid and hatched', 'SECT')
    call messag('Filled polygons', 150, 100)
    call color('BLUE')
    call shdpat(16)
    ix(1:4) = (/ 150, 1350, 1350, 150 /)
    iy(1:4) = (/ 250, 250, 1000, 1000 /)
    call areaf(ix, iy, 4)
    call color('RED ')
    ! An asymmetric F shows any flip or turn of the page.
    call areaf((/ 300, 800, 800, 450, 450, 700, 700, 450, 450, 300 /), &
               (/ 350, 350, 450, 450, 550, 550, 650, 650, 900, 900 /), 10)
    call color('GREE')
    call areaf((/ 2130, 1980, 2330, 1930, 2280 /), (/ 250, 720, 430, 430, 720 /), 5)
    call color('FORE')
    do k = 0, 2
      call shdpat(k * 3 + 1)
      call areaf((/ 1500 + k * 450, 1900 + k * 450, 1900 + k * 450, 1500 + k * 450 /), &
                 (/ 1100, 1100, 1500, 1500 /), 4)
    end do
    call shdpat(16)
    call color('CYAN')
    do k = 0, 5
      ix(1:3) = (/ 200 + k * 200, 300 + k * 200, 250 + k * 200 /)
      iy(1:3) = (/ 1900, 1900, 1200 + k * 100 /)
      call areaf(ix, iy, 3)
    end do
    call color('FORE')
  end subroutine gallery

  ! A polyline of four legs straight into the stroke buffer, so that its joints show.
  subroutine zigzag(nx, ny)
    integer, intent(in) :: nx, ny
    call xmove(real(nx), real(ny))
    call xdraw(real(nx + 150), real(ny - 200))
    call xdraw(real(nx + 300), real(ny))
    call xdraw(real(nx + 450), real(ny - 200))
    call xdraw(real(nx + 600), real(ny))
  end subroutine zigzag

end program pdf
