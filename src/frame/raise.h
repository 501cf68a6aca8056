// Raised failure: an integer code, caught only by the guarded call.
#pragma once

#include <cstdint>

namespace kvt {

[[noreturn]] inline void raise(int32_t code) { throw code; }

}  // namespace kvt
