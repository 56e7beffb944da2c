#!/usr/bin/env bash
# Installs from Debian's packages what building, running and testing need and this machine lacks.
set -euo pipefail
packages=(g++ cmake ninja-build ccache pkg-config libsqlite3-dev libarchive-dev mdbtools-dev libxlsxwriter-dev libcups2-dev qt6-base-dev qt6-charts-dev libqt6opengl6-dev qt6-serialport-dev
          libgl-dev libxcb1-dev qt6-translations-l10n libgtest-dev libgmock-dev fonts-nanum fonts-baekmuk fonts-ocr-b xvfb xauth xdotool openbox x11-utils
          poppler-utils imagemagick socat)
[ "${1:-}" = check ] && packages+=(unzip clang-format clang-tidy cups-daemon cups-client)
[ "${1:-}" = package ] && packages+=(debootstrap)
[ "${1:-}" = bench ] && packages+=(libbenchmark-dev)
missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo=sudo
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
