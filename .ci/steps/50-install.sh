# Install and packages: a release build with only cmake and g++, installed into
# a temporary prefix and used by two consumers (find_package and pkg-config),
# and by a third that takes the source by add_subdirectory without GoogleTest;
# the Debian packages built, installed with dpkg -i, used by a consumer, and
# removed; the reference generated and checked against the catalogue.
need cmake g++ make pkg-config dpkg-dev file python3 python3-iapws
src=$PWD
work=$(mktemp -d /tmp/kvt-install.XXXXXX)
trap 'rm -rf "$work"; dpkg -P kvtcore-tools libkvtcore-dev libkvtcore6 >/dev/null 2>&1 || true' EXIT
build=$src/build/install
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DKVT_BUILD_TESTS=OFF -DKVT_BUILD_BENCH=OFF \
  -DKVT_PYTHON3=/usr/bin/python3
cmake --build "$build" -j2
/usr/bin/python3 docs/reference.py --check "$build/reference" --kvtcalc "$build/kvtcalc"

echo "== install into a prefix"
cmake --install "$build" --prefix "$work/prefix"
for f in lib/libkvtcore.so.6 lib/libkvtcore.so include/kvtcore.h include/kvtcore_batch.h \
         lib/cmake/kvtcore/kvtcoreConfig.cmake lib/cmake/kvtcore/kvtcoreConfigVersion.cmake \
         lib/pkgconfig/kvtcore.pc bin/kvtcalc share/man/man1/kvtcalc.1 share/man/man3/kvtcore.3 \
         share/doc/kvtcore/reference.html; do
  test -e "$work/prefix/$f" || { echo "missing $f"; exit 1; }
done
cmake -S tests/consumers/cmake -B "$work/by-cmake" -DCMAKE_PREFIX_PATH="$work/prefix"
cmake --build "$work/by-cmake"
LD_LIBRARY_PATH="$work/prefix/lib" "$work/by-cmake/steam"
PKG_CONFIG_PATH="$work/prefix/lib/pkgconfig" \
  sh -c 'cc tests/consumers/steam.c $(pkg-config --cflags --libs kvtcore) -o "$1"' _ "$work/by-pc"
LD_LIBRARY_PATH="$work/prefix/lib" "$work/by-pc"
LD_LIBRARY_PATH="$work/prefix/lib" "$work/prefix/bin/kvtcalc" --version

echo "== a batch of 10^6 rows on every core"
awk 'BEGIN { for (i = 0; i < 1000000; i++) printf "%.6g,%.6g\n", 1e5 + (i % 1000) * 1e4, 300 + i % 600 }' > "$work/big.csv"
started=$(date +%s%N)
LD_LIBRARY_PATH="$work/prefix/lib" "$work/prefix/bin/kvtcalc" batch HPT "$work/big.csv" > "$work/big.out"
ms=$(( ($(date +%s%N) - started) / 1000000 ))
echo "10^6 rows of HPT in $ms ms"
test "$(wc -l < "$work/big.out")" -eq 1000001
test "$ms" -lt 60000

echo "== add_subdirectory configures without GoogleTest and Google Benchmark"
cmake -S tests/consumers/subdir -B "$work/by-subdir" -DKVT_SOURCE="$src" -DGTest_DIR=/nonexistent \
  -Dbenchmark_DIR=/nonexistent -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON \
  -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON

echo "== Debian packages"
(cd "$build" && cpack -G DEB)
for deb in "$build"/*.deb; do dpkg-deb --info "$deb" | grep -E "Package|Depends"; done
dpkg -i "$build"/libkvtcore6_*.deb "$build"/libkvtcore-dev_*.deb "$build"/kvtcore-tools_*.deb
cmake -S tests/consumers/cmake -B "$work/by-deb"
cmake --build "$work/by-deb"
"$work/by-deb/steam"
cc tests/consumers/steam.c $(pkg-config --cflags --libs kvtcore) -o "$work/by-deb-pc" && "$work/by-deb-pc"
kvtcalc HPT 30bar 300C
man -w kvtcalc >/dev/null 2>&1 || test -e /usr/share/man/man1/kvtcalc.1
dpkg -P kvtcore-tools libkvtcore-dev libkvtcore6
test ! -e /usr/include/kvtcore.h
