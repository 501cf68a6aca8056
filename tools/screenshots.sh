#!/usr/bin/env bash
# Takes the screenshots of docs/: the about box and the message box of a
# missing help file, as kvtcore6.dll shows them under wine on a virtual X
# display. Needs the win64 build (cmake --preset win64 && cmake --build
# build/win64) and the packages xvfb, x11-utils and imagemagick.
set -euo pipefail
cd "$(dirname "$0")/.."
bin=build/win64/tests/windows/bin
export WINEPREFIX=${WINEPREFIX:-$PWD/build/win64/wineprefix} WINEDEBUG=-all
export DISPLAY=:77
Xvfb :77 -screen 0 800x600x24 >/dev/null 2>&1 &
xvfb=$!
trap 'wineserver -k 2>/dev/null || true; kill $xvfb' EXIT
sleep 1
winpath() { echo "Z:${1//\//\\}"; }
for shot in about:--show-about missing-help:--show-missing-help; do
  name=${shot%%:*}
  # A wine virtual desktop draws the boxes with their title bars.
  wine explorer /desktop=kvtshot,480x240 "$bin/test_help.exe" \
       "$(winpath "$PWD/build/win64/kvtcore6.dll")" "$(winpath "$PWD/$bin/fake_viewer.dll")" \
       "${shot#*:}" >/dev/null 2>&1 &
  shown=$!
  id=
  for _ in $(seq 150); do
    id=$(xwininfo -root -tree 2>/dev/null | awk '/"kvtshot - Wine desktop"/ {print $1; exit}')
    [ -n "$id" ] && break
    sleep 0.2
  done
  sleep 3
  import -window "$id" "docs/$name.png"
  wineserver -k || true
  wait "$shown" || true
done
