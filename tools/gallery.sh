#!/usr/bin/env bash
# Runs every example program in out/gallery/<name>/ and renders each page to PNG.
set -euo pipefail
build=$1; dest=$2
mkdir -p "$dest"
for prog in "$build"/examples/fortran/* "$build"/examples/cpp/*; do
  [ -x "$prog" ] || continue
  name=$(basename "$prog")
  kind=$(basename "$(dirname "$prog")")
  dir="$dest/$kind-$name"
  rm -rf "$dir"; mkdir -p "$dir"
  (cd "$dir" && "$(realpath "$OLDPWD/$prog" 2>/dev/null || echo "$prog")" > stdout.txt)
  for f in "$dir"/*.ps "$dir"/*.psc "$dir"/*.eps; do
    [ -e "$f" ] || continue
    gs -q -dSAFER -sDEVICE=png16m -r72 -o "${f%.*}.png" "$f"
  done
  echo "$dir"
done
