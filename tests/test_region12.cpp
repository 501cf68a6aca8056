// Regions 1 and 2 by p, T against the IAPWS-IF97 verification tables (Tables
// 5 and 15), through the single-property exports and the many-output exports.
#include <gtest/gtest.h>

#include <cmath>

#include "kvtcore.h"

namespace {

struct Check {
  double p, T, v, h, u, s, cp, w;
};

// IF97 Table 5 (region 1) and Table 15 (region 2), in SI base units.
const Check kRegion1[] = {
    {3e6, 300, 0.100215168e-2, 0.115331273e6, 0.112324818e6, 0.392294792e3, 0.417301218e4,
     0.150773921e4},
    {80e6, 300, 0.971180894e-3, 0.184142828e6, 0.106448356e6, 0.368563852e3, 0.401008987e4,
     0.163469054e4},
    {3e6, 500, 0.120241800e-2, 0.975542239e6, 0.971934985e6, 0.258041912e4, 0.465580682e4,
     0.124071337e4},
};
const Check kRegion2[] = {
    {3500, 300, 0.394913866e2, 0.254991145e7, 0.241169160e7, 0.852238967e4, 0.191300162e4,
     0.427920172e3},
    {3500, 700, 0.923015898e2, 0.333568375e7, 0.301262819e7, 0.101749996e5, 0.208141274e4,
     0.644289068e3},
    {30e6, 700, 0.542946619e-2, 0.263149474e7, 0.246861076e7, 0.517540298e4, 0.103505092e5,
     0.480386523e3},
};

// Nine significant figures.
void ExpectNine(double expected, double actual, const char* what) {
  EXPECT_NEAR(actual, expected, std::fabs(expected) * 5e-9) << what;
}

using Fn = double (*)(double, double);
using Many = double (*)(double, double, double*, double*, double*, double*, double*, double*,
                        double*, double*, double*, double*, double*, double*, double*, double*);

void CheckRegion(const Check (&table)[3], Fn v, Fn h, Fn u, Fn s, Fn cp, Fn w, Many many) {
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
    ASSERT_EQ(many(c.p, c.T, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8],
                   &o[9], &o[10], &o[11], &o[12], &o[13]),
              1.0);
    ExpectNine(c.v, o[0], "many v");
    ExpectNine(c.u, o[1], "many u");
    ExpectNine(c.s, o[2], "many s");
    ExpectNine(c.h, o[3], "many h");
    ExpectNine(c.w, o[5], "many w");
    ExpectNine(c.cp, o[13], "many cp");
  }
}

TEST(Region1, MatchesPublishedCheckValues) {
  CheckRegion(kRegion1, kvtV1PT, kvtH1PT, kvtU1PT, kvtS1PT, kvtCP1PT, kvtW1PT,
              kvtVUSHCVWDERPT1PT);
}

TEST(Region2, MatchesPublishedCheckValues) {
  CheckRegion(kRegion2, kvtV2PT, kvtH2PT, kvtU2PT, kvtS2PT, kvtCP2PT, kvtW2PT,
              kvtVUSHCVWDERPT2PT);
}

// The derivative outputs are consistent with the single-property exports:
// finite differences of v, h, s, u agree with them, and cv, the Joule-Thomson
// coefficient follow from them.
void CheckDerivatives(Fn v, Fn h, Fn s, Fn u, Fn cv, Fn jt, Many many, double p, double T) {
  double o[14];
  ASSERT_EQ(many(p, T, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8], &o[9],
                 &o[10], &o[11], &o[12], &o[13]),
            1.0);
  const Fn fs[4] = {v, u, s, h};
  for (int k = 0; k < 4; ++k) {
    const double dp = p * 1e-6, dT = T * 1e-6;
    const double byP = (fs[k](p + dp, T) - fs[k](p - dp, T)) / (2 * dp);
    const double byT = (fs[k](p, T + dT) - fs[k](p, T - dT)) / (2 * dT);
    EXPECT_NEAR(o[6 + k], byP, std::fabs(byP) * 1e-6 + 1e-15) << "d/dp of output " << k;
    EXPECT_NEAR(o[10 + k], byT, std::fabs(byT) * 1e-6) << "d/dT of output " << k;
  }
  EXPECT_NEAR(o[4], cv(p, T), std::fabs(o[4]) * 1e-12);
  // Joule-Thomson: (T (dv/dT)p - v) / cp.
  EXPECT_NEAR(jt(p, T), (T * o[10] - o[0]) / o[13], std::fabs(jt(p, T)) * 1e-9);
}

TEST(Region1, DerivativeOutputsAgreeWithTheProperties) {
  CheckDerivatives(kvtV1PT, kvtH1PT, kvtS1PT, kvtU1PT, kvtCV1PT, kvtJOULETHOMPSON1PT,
                   kvtVUSHCVWDERPT1PT, 3e6, 400);
  CheckDerivatives(kvtV1PT, kvtH1PT, kvtS1PT, kvtU1PT, kvtCV1PT, kvtJOULETHOMPSON1PT,
                   kvtVUSHCVWDERPT1PT, 50e6, 600);
}

TEST(Region2, DerivativeOutputsAgreeWithTheProperties) {
  CheckDerivatives(kvtV2PT, kvtH2PT, kvtS2PT, kvtU2PT, kvtCV2PT, kvtJOULETHOMPSON2PT,
                   kvtVUSHCVWDERPT2PT, 1e5, 500);
  CheckDerivatives(kvtV2PT, kvtH2PT, kvtS2PT, kvtU2PT, kvtCV2PT, kvtJOULETHOMPSON2PT,
                   kvtVUSHCVWDERPT2PT, 20e6, 900);
}

// Points where an equation divides by zero end in error 1, not in a trap.
TEST(Regions, DivisionByZeroEndsInErrorOne) {
  const double tauZero = 1386.0 / 1.222;  // tau - 1.222 = 0 in region 1
  const Fn region1[] = {kvtV1PT, kvtU1PT, kvtS1PT, kvtH1PT, kvtCP1PT, kvtCV1PT, kvtW1PT,
                        kvtJOULETHOMPSON1PT};
  for (Fn f : region1) {
    EXPECT_EQ(f(3e6, tauZero), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 1);
  }
  // T = 1080 K makes tau - 0.5 zero in region 2.
  const Fn region2[] = {kvtU2PT, kvtS2PT, kvtH2PT, kvtCP2PT, kvtCV2PT, kvtW2PT,
                        kvtJOULETHOMPSON2PT};
  for (Fn f : region2) {
    EXPECT_EQ(f(3e6, 1080), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 1);
  }
  EXPECT_EQ(kvtV2PT(0, 500), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

}  // namespace
