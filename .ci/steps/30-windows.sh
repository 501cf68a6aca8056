# Windows: kvtcore6.dll for x64, tested under wine64 in a fresh prefix with a
# virtual display (its numbers compared with the release build's kvtcalc),
# and for x86, whose export table is checked with the mingw objdump.
need cmake make g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine64 xvfb xauth
export WINEPREFIX
WINEPREFIX=$(mktemp -d /tmp/kvt-wine.XXXXXX)
export WINEDEBUG=-all
trap 'wineserver -k 2>/dev/null || true; rm -rf "$WINEPREFIX"' EXIT
cmake --preset win64 && cmake --build build/win64 -j2
xvfb-run -a ctest --preset win64
cmake --preset win32 && cmake --build build/win32 -j2 && ctest --preset win32
