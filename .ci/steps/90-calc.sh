# LibreOffice Calc: kvtcore.oxt from the release build's target oxt, installed
# with unopkg into a real Calc (headless, no display), a sheet of formulas
# recalculated and its values compared with the library's exports.
need cmake g++ make libgtest-dev libbenchmark-dev python3 python3-numpy \
  libreoffice-calc-nogui python3-uno libreoffice-dev
cmake --preset release >/dev/null && cmake --build build/release --target oxt -j2
timeout 600 /usr/bin/python3 bindings/libreoffice/test_calc.py build/release/kvtcore.oxt
