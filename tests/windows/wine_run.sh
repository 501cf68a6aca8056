#!/usr/bin/env bash
# Runs a Windows test program under wine64: a private wine prefix in the
# build folder unless WINEPREFIX is set, no wine debug output, Unix paths in
# the arguments turned into Z: paths, and a virtual X display from xvfb-run
# when there is no display (the help and about boxes need one).
# With WINEARCH=win32 and KVT_WINE naming the 32-bit loader it runs x86
# programs instead, always in the prefix given here (a 64-bit prefix cannot
# host them).
#   wine_run.sh PREFIX_DIR program.exe [args...]
set -euo pipefail
prefix_dir=$1; shift
if [ "${WINEARCH:-}" = win32 ]; then
  export WINEPREFIX=$prefix_dir
else
  export WINEPREFIX=${WINEPREFIX:-$prefix_dir}
fi
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
wine=${KVT_WINE:-$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)}
args=()
for a in "$@"; do
  if [[ $a == /* ]]; then a="Z:${a//\//\\}"; fi
  args+=("$a")
done
if [ ! -f "$WINEPREFIX/system.reg" ]; then
  mkdir -p "$WINEPREFIX"
  "$wine" wineboot -i >/dev/null 2>&1 || true
  "$(dirname "$wine")/wineserver" -w 2>/dev/null || wineserver -w 2>/dev/null || true
fi
if [ -z "${DISPLAY:-}" ] && command -v xvfb-run >/dev/null; then
  exec xvfb-run -a "$wine" "${args[@]}"
fi
exec "$wine" "${args[@]}"
