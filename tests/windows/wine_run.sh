#!/usr/bin/env bash
# Runs a Windows test program under wine64: a private wine prefix in the
# build folder unless WINEPREFIX is set, no wine debug output, Unix paths in
# the arguments turned into Z: paths, and a virtual X display from xvfb-run
# when there is no display (the help and about boxes need one).
#   wine_run.sh PREFIX_DIR program.exe [args...]
set -euo pipefail
prefix_dir=$1; shift
export WINEPREFIX=${WINEPREFIX:-$prefix_dir}
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
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
