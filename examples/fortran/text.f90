! Text drawing: the six alphabets, heights, angles, justification, numbers in every format
! and number mode, exponents and indices with the control characters, alphabet shifts,
! national letters, the instruction alphabet, framed strings and continued text.
program text_page
  use zorbel
  implicit none
  character(len=4), parameter :: keys(6) = ['STAN', 'GREE', 'MATH', 'ITAL', 'SCRI', 'RUSS']
  character(len=4), parameter :: fmts(4) = ['FLOA', 'EXP ', 'FEXP', 'LOG ']
  real, parameter :: values(5) = [1234.5678, -0.000427, 3.0, 0.5, 99.96]
  integer, parameter :: ndigs(5) = [2, 2, -1, 2, 1]
  integer :: i, k, y, nang

  call metafl('PSCL')
  call setfil('text.ps')
  call scrmod('REVERS')
  call zorini()
  call setvlt('SMALL')
  call complx()

  call height(50)
  call messag('Text drawing', 100, 60)
  call height(24)
  call messag('(stroke alphabets, numbers, exponents, instructions)', 720, 80)

  ! The six alphabets.
  y = 170
  do i = 1, 6
    call basalf('STAN')
    call height(26)
    call messag(keys(i), 100, y + 6)
    call basalf(keys(i))
    call height(34)
    call messag('ABCDEFGH abcdefgh 0123', 260, y)
    y = y + 56
  end do
  call basalf('STAN')

  ! Heights, each string continuing where the one before ended.
  y = 560
  call height(20)
  call messag('Height 20,', 100, y + 40)
  call height(36)
  call messag(' 36,', 999, 999)
  call height(60)
  call messag(' 60 Ag', 999, 999)

  ! Justification at a vertical line.
  call height(30)
  call line(600, 680, 600, 880)
  call txtjus('LEFT')
  call messag('left', 600, 700)
  call txtjus('CENT')
  call messag('centred', 600, 760)
  call txtjus('RIGH')
  call messag('right', 600, 820)
  call txtjus('LEFT')

  ! A fan of angles around one point.
  call height(28)
  do k = 0, 11
    nang = 30 * k
    call angle(nang)
    call messag('   ----- ', 560, 1350)
    call number(real(nang), -1, 999, 999)
  end do
  call angle(0)
  call symbol(21, 560, 1350)
  call messag('angles 0 .. 330, turned round the upper left corner', 100, 1720)

  ! Numbers in every format.
  call height(26)
  call messag('FLOA', 1500, 170)
  call messag('EXP', 1850, 170)
  call messag('FEXP', 2200, 170)
  call messag('LOG', 2550, 170)
  do i = 1, 5
    do k = 1, 4
      call numfmt(fmts(k))
      call number(values(i), ndigs(i), 1500 + 350 * (k - 1), 220 + 60 * i)
    end do
  end do
  call numfmt('FLOA')

  ! Number modes: decimal comma, groups, signs, equal digit widths.
  call messag('numode:', 1500, 600)
  call numode('COMM', 'POIN', 'NONE', 'NOEQ')
  call number(12345.678, 3, 1720, 600)
  call numode('POIN', 'SPAC', 'PLUS', 'NOEQ')
  call number(-9876543.0, -1, 2200, 600)
  call numode('POIN', 'NONE', 'NONE', 'EQUA')
  call number(1111.11, 2, 1720, 660)
  call numode('POIN', 'NONE', 'NONE', 'NOEQ')
  call number(1111.11, 2, 2200, 660)

  ! Exponents and indices.
  call height(34)
  call mixalf()
  call messag('E = mc[2$,  H]2$O,  e[-x[2$,  x]i$[2$ + y]i$[2$', 1500, 760)
  call setexp(0.6)
  call setbas(0.7)
  call messag('setexp 0.6, setbas 0.7: a[n+1$ = a]n$ + 10[-3$', 1500, 830)
  call reset('SETEXP')
  call reset('SETBAS')
  call setexp(0.8)
  call setbas(0.6)
  call newmix()
  call messag('newmix: x^2% + y_0% [brackets] $5', 1500, 900)
  call reset('NEWMIX')

  ! Alphabet shifts and national letters.
  call smxalf('GREE', '{', '}', 1)
  call smxalf('MATH', '<', '>', 2)
  call messag('Shifts: {a} + {b} = 2{p}r,  x <H> y,  {S}F = 0', 1500, 980)
  call eushft('GERM', '!')
  call eushft('ACUT', '#')
  call eushft('FREN', '&')
  call eushft('GRAV', '@')
  call messag('Gr!u!se aus K!oln, !A!O!U !s;  caf#e, No&el, #el@eve, !!', 1500, 1050)

  ! The instruction alphabet.
  call smxalf('INST', '|', '|', 3)
  call height(32)
  call messag('Plain |H1.5|big|HX| |N2|red|NX| |E|up|R| |I|down|R| |P1|lined|L1|', 1500, 1140)
  call messag('|M2|greek|MX| |K|fixed|KX| |Z20|slanted|ZX| |S3||S15||S21| |P5|double|J5|', 1500, 1210)
  call messag('Tabs: |P2|struck|V2| |P3|back|G3|////  |U|above|UX| and |D0.5|below', 1500, 1280)

  ! A framed string, framed exponents, and a rotated frame.
  call frmess(3)
  call messag('Framed text', 1500, 1400)
  call messag('with 10[5$ and x]2$', 1950, 1400)
  call angle(15)
  call messag('rotated frame', 1500, 1620)
  call angle(0)
  call frmess(0)

  ! Continued text.
  call height(30)
  call messag('Continued', 1500, 1760)
  call messag(' after 999, 999: pi = ', 999, 999)
  call number(3.14159, 3, 999, 999)
  call messag(' and on', 999, 999)

  call zorfin()
end program text_page
