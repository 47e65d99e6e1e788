#!/usr/bin/env bash
# Runs every example program in out/gallery/<kind>-<name>/ and renders each page of each
# PostScript file it writes to <file>-<page>.png.
set -euo pipefail
build=$(realpath "$1"); dest=$2
mkdir -p "$dest"
for prog in "$build"/examples/fortran/* "$build"/examples/cpp/*; do
  [ -x "$prog" ] || continue
  dir="$dest/$(basename "$(dirname "$prog")")-$(basename "$prog")"
  rm -rf "$dir"; mkdir -p "$dir"
  (cd "$dir" && "$prog" > stdout.txt)
  for f in "$dir"/*.ps "$dir"/*.psc "$dir"/*.eps; do
    [ -e "$f" ] || continue
    gs -q -dSAFER -sDEVICE=png16m -r72 -o "${f%.*}-%d.png" "$f"
  done
  echo "$dir: $(ls "$dir" | grep -c '\.png$') pages"
done
