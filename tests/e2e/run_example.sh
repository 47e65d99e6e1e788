#!/usr/bin/env bash
# Runs an example program in a fresh folder, then opens every file it wrote with a real
# reader of that format. A missing reader or an unreadable file fails the test.
set -euo pipefail
prog=$1; dir=$2
rm -rf "$dir"; mkdir -p "$dir"; cd "$dir"
"$prog" > stdout.txt
shopt -s nullglob
n=0
for f in *; do
  case "$f" in
    stdout.txt|*.png.txt) continue ;;
    *.ps|*.psc|*.eps)
      gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage "$f" > gs.log 2>&1 || { cat gs.log; echo "ghostscript rejects $f"; exit 1; }
      grep -q 'Error' gs.log && { cat gs.log; echo "ghostscript reports an error in $f"; exit 1; }
      gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=png16m -r40 -o "${f}.png" "$f" > /dev/null ;;
    *.pdf)
      qpdf --check "$f" > qpdf.log 2>&1 || { cat qpdf.log; echo "qpdf rejects $f"; exit 1; }
      grep -q 'No syntax or stream encoding errors' qpdf.log || { cat qpdf.log; echo "qpdf warns about $f"; exit 1; }
      pdftoppm -r 40 -png "$f" "${f}" > pdftoppm.log 2>&1 || { cat pdftoppm.log; echo "pdftoppm cannot render $f"; exit 1; }
      [ -s pdftoppm.log ] && { cat pdftoppm.log; echo "pdftoppm reports errors in $f"; exit 1; }
      ls "${f}"-*.png > /dev/null 2>&1 || { echo "pdftoppm rendered no page of $f"; exit 1; } ;;
    *.png)
      command -v pngcheck > /dev/null && command -v pngtopnm > /dev/null || { echo "no PNG reader (pngcheck, netpbm)"; exit 1; }
      pngcheck -q "$f" > png.log 2>&1 || { cat png.log; echo "pngcheck rejects $f"; exit 1; }
      pngtopnm "$f" > /dev/null 2> png.log || { cat png.log; echo "pngtopnm cannot decode $f"; exit 1; } ;;
    *.gif)
      command -v giftext > /dev/null && command -v giftopnm > /dev/null || { echo "no GIF reader (giflib-tools, netpbm)"; exit 1; }
      giftext "$f" > gif.log 2>&1 || { cat gif.log; echo "giftext rejects $f"; exit 1; }
      grep -q 'GIF file terminated normally' gif.log || { cat gif.log; echo "giftext: $f ends early"; exit 1; }
      giftopnm "$f" > /dev/null 2> gif.log || { cat gif.log; echo "giftopnm cannot decode $f"; exit 1; } ;;
    *.tif)
      command -v tiffinfo > /dev/null && command -v tifftopnm > /dev/null || { echo "no TIFF reader (libtiff-tools, netpbm)"; exit 1; }
      tiffinfo -D "$f" > tif.log 2>&1 || { cat tif.log; echo "tiffinfo rejects $f"; exit 1; }
      grep -qi 'error\|warning' tif.log && { cat tif.log; echo "tiffinfo complains about $f"; exit 1; }
      tifftopnm "$f" > /dev/null 2> tif.log || { cat tif.log; echo "tifftopnm cannot decode $f"; exit 1; } ;;
    *.bmp)
      command -v bmptopnm > /dev/null || { echo "no BMP reader (netpbm)"; exit 1; }
      bmptopnm "$f" > /dev/null 2> bmp.log || { cat bmp.log; echo "bmptopnm cannot decode $f"; exit 1; } ;;
    *.ppm)
      command -v ppmtoppm > /dev/null || { echo "no PPM reader (netpbm)"; exit 1; }
      ppmtoppm < "$f" > /dev/null 2> ppm.log || { cat ppm.log; echo "ppmtoppm cannot read $f"; exit 1; } ;;
    *.img)
      # The library's own Bitmap file: an 80-byte head, then height rows of the given bytes.
      read -r magic _ _ w h _ rowbytes _ < <(head -c 80 "$f"; echo)
      [ "$magic" = '!Bitmap' ] || { echo "$f has no Bitmap head"; exit 1; }
      [ "$(stat -c %s "$f")" -eq $((80 + rowbytes * h)) ] || { echo "$f: size is not 80 + $rowbytes x $h"; exit 1; } ;;
    *.svg)
      xmllint --noout "$f" > xmllint.log 2>&1 || { cat xmllint.log; echo "xmllint rejects $f"; exit 1; }
      rsvg-convert -o "${f}.png" "$f" > rsvg.log 2>&1 || { cat rsvg.log; echo "rsvg-convert cannot render $f"; exit 1; }
      [ -s rsvg.log ] && { cat rsvg.log; echo "rsvg-convert warns about $f"; exit 1; } ;;
    *.cgm)
      # LibreOffice reads binary CGM; a profile of its own keeps parallel runs apart.
      soffice -env:UserInstallation="file://$PWD/lo-profile" --headless --convert-to pdf --outdir cgm-pdf "$f" > soffice.log 2>&1 || true
      [ -s "cgm-pdf/${f%.cgm}.pdf" ] || { cat soffice.log; echo "LibreOffice cannot read $f"; exit 1; }
      gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=png16m -r40 -o "${f}-%d.png" "cgm-pdf/${f%.cgm}.pdf" > /dev/null 2>&1 || { echo "ghostscript cannot render the CGM of $f"; exit 1; } ;;
    *.met|*.err|*.txt|*.png|*.log) ;;
    *) echo "no reader for $f"; exit 1 ;;
  esac
  n=$((n + 1))
done
[ "$n" -gt 0 ] || { echo "the example wrote no file"; exit 1; }
grep -q 'END  OF  ZORBEL' stdout.txt || { echo "no end-of-run protocol"; cat stdout.txt; exit 1; }
echo "$n files checked"
