# The same suite under AddressSanitizer and UndefinedBehaviorSanitizer.
need cmake g++ make libgtest-dev
cmake --preset sanitize && cmake --build build/sanitize -j2 && ctest --preset sanitize
