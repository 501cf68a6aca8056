// Cached integer powers of one reduced variable. Every IAPWS-IF97 equation is
// a long sum of n * x^I * y^J; filling a table once by a running product lets
// each term read its powers by index instead of calling pow().
#pragma once

#include <cstdint>

namespace kvt {

class Engine;

class PowerTable {
 public:
  static constexpr int32_t kSize = 121;

  explicit PowerTable(Engine* owner);
  virtual ~PowerTable();
  PowerTable(const PowerTable&) = delete;
  PowerTable& operator=(const PowerTable&) = delete;

  // Entry k := x * entry k-1 for k = 1..n, left to right; eager and
  // unconditional. Entry 0 stays 1.0. Entries above n keep older values and
  // must not be read.
  void Fill(double x, int32_t n) {
    double* v = values;
    for (int32_t k = 1; k <= n; ++k) v[k] = x * v[k - 1];
  }

  // x^e; a negative e is one division by the stored positive power.
  double Power(int32_t e) const { return e >= 0 ? values[e] : 1.0 / values[-e]; }

  double* values;
  Engine* owner;
};

}  // namespace kvt
