// Regions 1 and 2 by p, T against the IAPWS-IF97 verification tables (Tables
// 5 and 15), through the single-property exports and the many-output exports.
#include <gtest/gtest.h>

#include <cmath>

#include "forward_checks.h"
#include "kvtcore.h"

namespace {

using kvt_test::Check;
using kvt_test::CheckDerivatives;
using kvt_test::CheckRegion;
using kvt_test::Fn;

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

TEST(Region1, MatchesPublishedCheckValues) {
  CheckRegion(kRegion1, kvtV1PT, kvtH1PT, kvtU1PT, kvtS1PT, kvtCP1PT, kvtW1PT,
              kvtVUSHCVWDERPT1PT);
}

TEST(Region2, MatchesPublishedCheckValues) {
  CheckRegion(kRegion2, kvtV2PT, kvtH2PT, kvtU2PT, kvtS2PT, kvtCP2PT, kvtW2PT,
              kvtVUSHCVWDERPT2PT);
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
