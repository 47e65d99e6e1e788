#!/usr/bin/env bash
# The library's dynamic symbols, the C header and the Fortran module list the same routines.
set -euo pipefail
lib=$1; inc=$2
syms=$(nm -D --defined-only "$lib" | awk '$2=="T"{print $3}' | grep -E '^[a-z][a-z0-9]*_$' | sed 's/_$//' | sort -u)
hdr=$(grep -oE '\b[a-z][a-z0-9]*_\(' "$inc/zorbel.h" | sed 's/_($//' | sort -u)
mod=$(grep -oiE '^ *(integer |real )?(subroutine|function) [a-z0-9]+' "$inc/zorbel.f90" | awk '{print tolower($NF)}' | sort -u)
[ -n "$syms" ] || { echo "no exported routines"; exit 1; }
diff <(echo "$syms") <(echo "$hdr") || { echo "library and zorbel.h differ"; exit 1; }
diff <(echo "$syms") <(echo "$mod") || { echo "library and zorbel.f90 differ"; exit 1; }
echo "$(echo "$syms" | wc -l) routines in library, header and module"
