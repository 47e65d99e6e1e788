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
    *.met|*.err|*.txt|*.png) ;;
    *) echo "no reader for $f"; exit 1 ;;
  esac
  n=$((n + 1))
done
[ "$n" -gt 0 ] || { echo "the example wrote no file"; exit 1; }
grep -q 'END  OF  ZORBEL' stdout.txt || { echo "no end-of-run protocol"; cat stdout.txt; exit 1; }
echo "$n files checked"
