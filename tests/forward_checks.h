// Checks shared by the suites of the forward equations by p, T.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

#include "kvtcore.h"

namespace kvt_test {

using Fn = double (*)(double, double);
using Many = double (*)(double, double, double*, double*, double*, double*, double*, double*,
                        double*, double*, double*, double*, double*, double*, double*, double*);

// One row of a published verification table, in SI base units.
struct Check {
  double p, T, v, h, u, s, cp, w;
};

// Nine significant figures.
inline void ExpectNine(double expected, double actual, const char* what) {
  EXPECT_NEAR(actual, expected, std::fabs(expected) * 5e-9) << what;
}

// Calls a many-output export and expects success.
inline void CallMany(Many many, double p, double T, double (&o)[14]) {
  ASSERT_EQ(many(p, T, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8], &o[9],
                 &o[10], &o[11], &o[12], &o[13]),
            1.0);
}

// A verification table through the single-property exports and through the
// many-output export of one region.
template <size_t N>
void CheckRegion(const Check (&table)[N], Fn v, Fn h, Fn u, Fn s, Fn cp, Fn w, Many many) {
  for (const Check& c : table) {
    SCOPED_TRACE(testing::Message() << "p=" << c.p << " T=" << c.T);
    ExpectNine(c.v, v(c.p, c.T), "v");
    ExpectNine(c.h, h(c.p, c.T), "h");
    ExpectNine(c.u, u(c.p, c.T), "u");
    ExpectNine(c.s, s(c.p, c.T), "s");
    ExpectNine(c.cp, cp(c.p, c.T), "cp");
    ExpectNine(c.w, w(c.p, c.T), "w");
    EXPECT_EQ(kvtGETLASTERROR(), 0);

    double o[14];
    CallMany(many, c.p, c.T, o);
    ExpectNine(c.v, o[0], "many v");
    ExpectNine(c.u, o[1], "many u");
    ExpectNine(c.s, o[2], "many s");
    ExpectNine(c.h, o[3], "many h");
    ExpectNine(c.w, o[5], "many w");
    ExpectNine(c.cp, o[13], "many cp");
  }
}

// The derivative outputs of a many-output export are consistent with the
// single-property exports: central differences of v, u, s, h by p and by T
// agree with them, and cv is the same. When jt is given, it must be the
// textbook (T (dv/dT)p - v) / cp.
inline void CheckDerivatives(Fn v, Fn h, Fn s, Fn u, Fn cv, Fn jt, Many many, double p,
                             double T) {
  double o[14];
  CallMany(many, p, T, o);
  const Fn fs[4] = {v, u, s, h};
  for (int k = 0; k < 4; ++k) {
    const double dp = p * 1e-6, dT = T * 1e-6;
    const double byP = (fs[k](p + dp, T) - fs[k](p - dp, T)) / (2 * dp);
    const double byT = (fs[k](p, T + dT) - fs[k](p, T - dT)) / (2 * dT);
    EXPECT_NEAR(o[6 + k], byP, std::fabs(byP) * 1e-6 + 1e-15) << "d/dp of output " << k;
    EXPECT_NEAR(o[10 + k], byT, std::fabs(byT) * 1e-6) << "d/dT of output " << k;
  }
  EXPECT_NEAR(o[4], cv(p, T), std::fabs(o[4]) * 1e-12);
  if (jt) {
    EXPECT_NEAR(jt(p, T), (T * o[10] - o[0]) / o[13], std::fabs(jt(p, T)) * 1e-9);
  }
}

}  // namespace kvt_test
