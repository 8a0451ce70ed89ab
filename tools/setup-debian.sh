#!/usr/bin/env bash
# Installs what the build and the Wine test run need on Debian 12, quietly and only once.
# Safe to run again: it checks each tool before touching apt.
set -u

need=()
have() { command -v "$1" >/dev/null 2>&1; }
have i686-w64-mingw32-g++-posix   || need+=(g++-mingw-w64-i686-posix binutils-mingw-w64-i686)
have x86_64-w64-mingw32-g++-posix || need+=(g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64)
have cmake  || need+=(cmake)
have ninja  || need+=(ninja-build)
have Xvfb   || need+=(xvfb)
have xauth  || need+=(xauth)
have convert && convert -version 2>/dev/null | grep -q ImageMagick || need+=(imagemagick)
have python3 || need+=(python3)
[ -f /usr/src/googletest/CMakeLists.txt ] || need+=(googletest)
# Wine for both 32- and 64-bit programs.
dpkg -s wine wine32:i386 wine64 >/dev/null 2>&1 || need+=(wine wine32:i386 wine64)
[ -d /usr/share/wine/fonts ] || need+=(fonts-wine)

[ ${#need[@]} -eq 0 ] && exit 0

echo "zo: installing ${need[*]} (once)" >&2
export DEBIAN_FRONTEND=noninteractive
log=$(mktemp)
dpkg --print-foreign-architectures | grep -qx i386 || dpkg --add-architecture i386
# The security archive's i386 index is sometimes out of sync; the main archive is enough.
apt-get update -qq >"$log" 2>&1 || true
if ! apt-get install -y -q --no-install-recommends "${need[@]}" >>"$log" 2>&1; then
  # Mixed versions between the security archive (amd64) and main (i386) leave wine32
  # uninstallable; taking everything from the release itself resolves it.
  apt-get install -y -q -t bookworm --no-install-recommends "${need[@]}" >>"$log" 2>&1 || {
    echo "zo: package installation failed; see $log" >&2; exit 1; }
fi
rm -f "$log"
