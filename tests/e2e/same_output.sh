#!/usr/bin/env bash
# Two programs, one Fortran and one C++, write the same plot file byte for byte; only the
# creation date may differ.
set -euo pipefail
a=$1; b=$2; file=$3; dir=$4
rm -rf "$dir"; mkdir -p "$dir/a" "$dir/b"
(cd "$dir/a" && "$a" > /dev/null)
(cd "$dir/b" && "$b" > /dev/null)
cmp <(grep -v '^%%CreationDate' "$dir/a/$file") <(grep -v '^%%CreationDate' "$dir/b/$file")
echo "same $file"
