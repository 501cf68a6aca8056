// The array interface inside: an engine of the interface is an engine like
// the global one, and every catalogue row has, at the same index in two
// tables, its description (catalogue_info.cpp) and the loop that evaluates it
// over a range of points (loops.cpp).
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/engine.h"
#include "kvtcore_batch.h"

struct kvtEngine : kvt::Engine {};

namespace kvt::batch {

// One call of the array interface, as the loops see it: where the numbers of
// each argument are, the gas texts, and where the results go.
struct Job {
  size_t n;
  const double* arg[5];  // the numeric arguments, gas ids included
  size_t stride[5];
  const char* text[2];   // gas texts, for the rows that take them
  int32_t noGas;         // an id that no gas of the engine has
  double* const* outs;   // one array per output
  int32_t* codes;        // may be null

  double At(int i, size_t k) const { return arg[i][k * stride[i]]; }
  // A gas id given as a double: an integer in 32 bits, or else an id that no
  // gas has, so that the call fails as it would for an unknown id.
  int32_t IdAt(int i, size_t k) const {
    const double x = At(i, k);
    if (!(x >= -2147483648.0 && x <= 2147483647.0)) return noGas;
    const int32_t id = static_cast<int32_t>(x);
    return id == x ? id : noGas;
  }
};

// What one worker found: failed points, and the code of the last point if it
// evaluated it.
struct alignas(64) Tally {
  int64_t failed = 0;
  int32_t lastCode = 0;
};

using Loop = void (*)(Engine& e, const Job& job, size_t begin, size_t end, Tally& tally);

// The loop of catalogue row i (null for a row the array interface does not
// evaluate), and the number of rows.
Loop LoopAt(int32_t i);
int32_t RowCount();

// The index of a row of the table, or -1 for a pointer that is not one.
int32_t IndexOf(const kvtFunctionInfo* fn);

}  // namespace kvt::batch
