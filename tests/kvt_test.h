// What the suites share: a fixture that puts the settings back, relative
// comparison, the outcome of a call (its result or its failure code), the 14
// outputs, and the exports looked up by name through the catalogue.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <string>

#include "kvtcore.h"

namespace kvt_test {

using Fn1 = double (*)(double);
using Fn = double (*)(double, double);
using Pair = double (*)(double, double, double*, double*);
using Many = double (*)(double, double, KVT_OUT14);
using Out = std::array<double, 14>;
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

// Every test leaves the default settings and a clear error code behind.
class Defaults : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
    kvtSETLASTERROR(0);
  }
};

// The 14 outputs of a many-output export at (a, b); ok is its result.
inline Out CallMany(Many many, double a, double b, double* ok = nullptr) {
  Out o{};
  const double r = many(a, b, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8],
                        &o[9], &o[10], &o[11], &o[12], &o[13]);
  if (ok) *ok = r;
  return o;
}

// The code a core raises, 0 if none.
template <class F> int32_t CodeOf(F&& f) {
  try {
    f();
  } catch (int32_t code) {
    return code;
  }
  return 0;
}

// An export by its name without the prefix, with the C type of its shape.
struct Row {
  const char* name;
  const char* shape;
  void (*fn)();
};
#define KVT_TEST_ROW(ord, name, shape, rule, core, args, result) \
  {#name, #shape, reinterpret_cast<void (*)()>(&name)},
inline const Row kRows[] = {KVT_CATALOGUE(KVT_TEST_ROW)};
template <class F> F Export(const std::string& name, const char* shape) {
  for (const Row& r : kRows)
    if ("kvt" + name == r.name && std::strcmp(r.shape, shape) == 0) return reinterpret_cast<F>(r.fn);
  throw std::invalid_argument("no " + std::string(shape) + " export kvt" + name);
}
inline Fn D2(const std::string& name) { return Export<Fn>(name, "D2"); }
inline Fn1 D1(const std::string& name) { return Export<Fn1>(name, "D1"); }
// An export of one or two numbers by name, with a and b as it takes them.
inline double Call(const std::string& name, double a, double b) {
  for (const Row& r : kRows) {
    if ("kvt" + name != r.name) continue;
    if (std::strcmp(r.shape, "D1") == 0) return reinterpret_cast<Fn1>(r.fn)(a);
    if (std::strcmp(r.shape, "D2") == 0) return reinterpret_cast<Fn>(r.fn)(a, b);
  }
  throw std::invalid_argument("no D1 or D2 export kvt" + name);
}

}  // namespace kvt_test

// Relative agreement: |actual - expected| <= |expected| * rel.
#define EXPECT_REL(actual, expected, rel) \
  EXPECT_NEAR((actual), (expected), std::fabs(expected) * (rel))

// The outcome of a call: code 0 is a result other than the failure value with
// the error code clear, any other code is -1 with that code.
#define EXPECT_CODE(call, code)                                                 \
  do {                                                                          \
    const double kvt_r = (call);                                                \
    const int32_t kvt_c = (code);                                               \
    EXPECT_EQ(kvtGETLASTERROR(), kvt_c) << #call << " = " << kvt_r;             \
    EXPECT_EQ(kvt_r == -1.0, kvt_c != 0) << #call << " = " << kvt_r;            \
  } while (0)
