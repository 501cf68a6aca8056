# Windows x86: the 32-bit kvtcore6.dll run under 32-bit wine in a win32
# prefix, with the programs of the x64 run (exports by name and ordinal, the
# string-table texts, help and about, the numbers of the Linux build) and a
# check that every export keeps the stack as __stdcall must.
#
# wine32 is an i386 package: it needs Debian's i386 multiarch, and its i386
# libraries must be the versions of their amd64 twins. When the i386 indexes
# do not download (a mirror in mid-sync answers "File has unexpected size")
# apt cannot install it; then this step says so, with apt's words, and skips
# the x86 run instead of failing.
need cmake make g++ g++-mingw-w64-i686-posix wine64 xvfb xauth libgtest-dev
added_i386=
if ! dpkg --print-foreign-architectures | grep -qx i386; then
  dpkg --add-architecture i386
  added_i386=1
fi
if ! dpkg -s wine32:i386 >/dev/null 2>&1; then
  apt_log=$(mktemp)
  apt-get update -o DPkg::Lock::Timeout=600 >"$apt_log" 2>&1 || true
  if ! DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
      -o DPkg::Lock::Timeout=600 wine32:i386 >>"$apt_log" 2>&1; then
    echo "== SKIPPED: the x86 DLL is not run under wine: wine32:i386 does not install. apt said:"
    grep -E '^(E|W):|unexpected size|Depends:|is to be installed|unmet' "$apt_log" | sort -u | head -20 || true
    # Without wine32 the i386 architecture would only make later updates fail.
    if [ -n "$added_i386" ]; then
      dpkg --remove-architecture i386 || true
      apt-get update -qq -o DPkg::Lock::Timeout=600 >/dev/null 2>&1 || true
    fi
    rm -f "$apt_log"
    return 0
  fi
  rm -f "$apt_log"
fi
export WINEDEBUG=-all
# The numbers are compared with the Linux build's calculator.
if [ ! -x build/release/kvtcalc ]; then
  cmake --preset release -DKVT_BUILD_BENCH=OFF >/dev/null && cmake --build build/release -j2 --target kvtcalc
fi
cmake --preset win32 -DKVT_WINE32=ON && cmake --build build/win32 -j2
trap 'wineserver -k 2>/dev/null || true' EXIT
xvfb-run -a ctest --preset win32
