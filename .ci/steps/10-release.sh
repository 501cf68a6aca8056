# The README's test command: the release build and every test of it.
need cmake g++ make libgtest-dev libbenchmark-dev python3
cmake --preset release && cmake --build build/release -j2 && ctest --preset release
