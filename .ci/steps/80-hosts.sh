# Host modules: the spreadsheet module and the Fortran module checked against
# the catalogue, a Fortran program and the Octave MEX gateway run on the
# library. A build folder of its own, so that gfortran and Octave, installed
# here, are found at configure time.
need cmake make g++ libgtest-dev python3 gfortran octave octave-dev
cmake -S . -B build/hosts -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build/hosts -j2 --target kvtcalc kvt_vba kvtcore_fortran test_fortran kvt_mex
ctest --test-dir build/hosts --output-on-failure -R '^(vba_|fortran_|octave_)'
test "$(ctest --test-dir build/hosts -N -R '^(vba_|fortran_|octave_)' | grep -c 'Test #')" -eq 4
