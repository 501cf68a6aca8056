// A tiny check harness for the Windows test programs, which run under wine
// where GoogleTest is not built: each failed check prints where and what,
// and the program ends with the line "N passed, N failed".
#pragma once

#include <cstdio>

namespace check {
inline int passed = 0;
inline int failed = 0;

inline bool That(bool ok, const char* file, int line, const char* what) {
  if (ok) {
    ++passed;
  } else {
    ++failed;
    std::printf("%s:%d: failed: %s\n", file, line, what);
    std::fflush(stdout);
  }
  return ok;
}

inline int Summary() {
  std::printf("%d passed, %d failed\n", passed, failed);
  return failed == 0 ? 0 : 1;
}
}  // namespace check

#define CHECK(cond) check::That((cond), __FILE__, __LINE__, #cond)
