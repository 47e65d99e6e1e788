#!/usr/bin/env bash
# Installs what building and testing need on a Debian machine, and only what is missing.
set -euo pipefail
pkgs=(
  g++ cmake ninja-build gfortran python3 zlib1g-dev libgtest-dev
  libfreetype-dev
  libxml2-utils librsvg2-bin libreoffice-impress
  ghostscript qpdf poppler-utils
  pngcheck giflib-tools libtiff-tools netpbm
  hershey-fonts-data fonts-dejavu-core fonts-liberation fonts-freefont-ttf
  fonts-liberation2
)
missing=()
for p in "${pkgs[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
if [ "$(id -u)" -ne 0 ]; then
  echo "missing packages (run as root to install): ${missing[*]}" >&2
  exit 1
fi
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}"
