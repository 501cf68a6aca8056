// Cached integer powers of one reduced variable. Every IAPWS-IF97 equation is
// a long sum of n * x^I * y^J; filling a table once by a running product lets
// each term read its powers by index instead of calling pow().
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

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

  // Fill with a count known when compiling: the same running product, written
  // out in full so that no loop counter stands between the products. The
  // empty asm tells the compiler that the table is now in memory and must be
  // read from there: the term loops then take each power as a memory operand
  // instead of holding forty of them in registers and spilling.
  template <int32_t n>
  void Fill(double x) {
    FillSteps(values, x, std::make_integer_sequence<int32_t, n>{});
    asm volatile("" : : "r"(values) : "memory");
  }

  // x^e; a negative e is one division by the stored positive power.
  double Power(int32_t e) const { return e >= 0 ? values[e] : 1.0 / values[-e]; }

  // x^e for an exponent known when compiling: entry 0 is the constant 1.0 it
  // always holds, so a product with it disappears without changing a bit.
  template <int32_t e>
  double Power() const {
    if constexpr (e == 0) return 1.0;
    else if constexpr (e > 0) return values[e];
    else return 1.0 / values[-e];
  }

  double* values;
  Engine* owner;

 private:
  template <int32_t... k>
  static void FillSteps(double* v, double x, std::integer_sequence<int32_t, k...>) {
    ((v[k + 1] = x * v[k]), ...);
  }
};

// The powers of a reduced variable that is fixed for good, such as the
// reduced temperature of a bound that a range rule or an area test evaluates
// at every call: filled once, when the library loads, by the running product
// of Fill, with the reciprocals that negative exponents read taken once by
// the division that Power would make. Reads give the same bits as a
// PowerTable filled with the same x.
template <int32_t n>
class FixedPowers {
 public:
  explicit FixedPowers(double x) {
    positive[0] = 1.0;
    for (int32_t k = 1; k <= n; ++k) positive[k] = x * positive[k - 1];
    for (int32_t k = 0; k <= n; ++k) reciprocal[k] = 1.0 / positive[k];
  }

  template <int32_t e>
  double Power() const {
    static_assert(e <= n && -e <= n, "power beyond the fill");
    if constexpr (e == 0) return 1.0;
    else if constexpr (e > 0) return positive[e];
    else return reciprocal[-e];
  }

 private:
  double positive[n + 1];
  double reciprocal[n + 1];
};

}  // namespace kvt
