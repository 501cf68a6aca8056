# Reliability: the libFuzzer targets of fuzz/ (clang 14, AddressSanitizer,
# UndefinedBehaviorSanitizer, leaks checked per input) for a bounded time
# each from their committed seeds, and the registry stress test, whose
# memory must come back to its baseline. The sanitize step runs the test
# suite with leak detection on (CMakePresets.json).
need cmake make clang-14 libclang-rt-14-dev
cmake --preset fuzz && cmake --build build/fuzz -j2
fuzz/run.sh "${KVT_FUZZ_SECONDS:-40}"
need g++ libgtest-dev
cmake --preset release && cmake --build build/release -j2 --target kvt_registry_stress
build/release/fuzz/kvt_registry_stress
