// Boundary curves between the regions, against the check values of IAPWS-IF97
// and of the supplementary release on h,s boundaries.
#include <gtest/gtest.h>

#include <cmath>

#include "kvtcore.h"

namespace {

struct Point {
  double a, b, expected, tolerance;  // tolerance: half a unit of the last figure given
};

TEST(Boundaries, B23MatchesPublishedValues) {
  EXPECT_NEAR(kvtP23T(623.15), 16529164.25, 0.005);
  EXPECT_NEAR(kvtP23T(863.15), 100000000.0, 1e-4);
  EXPECT_NEAR(kvtT23P(16529164.252621602), 623.15, 5e-10);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// With n5 to all its printed digits T23P undoes P23T to the precision of
// the printed coefficients, a few 1e-10 K; the short n5 that some tables
// print would leave about 2e-9 K at 623.15 K.
TEST(Boundaries, T23PIsTheInverseOfP23T) {
  for (double T = 623.15; T <= 863.15; T += 10)
    EXPECT_NEAR(kvtT23P(kvtP23T(T)), T, 5e-10) << T;
}

TEST(Boundaries, T23PBelowTheCurveIsErrorOne) {
  EXPECT_EQ(kvtT23P(13.9e6), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST(Boundaries, HB13SMatchesPublishedValues) {
  const Point points[] = {
      {3700, 0, 1632525.047, 5e-4},
      {3600, 0, 1593027.214, 5e-4},
      {3500, 0, 1566104.611, 5e-4},
  };
  for (const Point& p : points) EXPECT_NEAR(kvtHB13S(p.a), p.expected, p.tolerance) << p.a;
}

TEST(Boundaries, B23ByEnthalpyAndEntropyMatchesPublishedValues) {
  const Point temperatures[] = {
      {2600000, 5100, 713.5259364, 5e-8},
      {2700000, 5150, 768.5345532, 5e-8},
      {2800000, 5200, 817.6202120, 5e-8},
  };
  for (const Point& p : temperatures)
    EXPECT_NEAR(kvtTB23HS(p.a, p.b), p.expected, p.tolerance) << p.a;
  EXPECT_NEAR(kvtPB23HS(2600000, 5100), 34348098.13, 5e-3);
}

// h = 2181000 J/kg makes h / 3000000 - 0.727 exactly zero; under a negative
// exponent that is a division by zero, reported as error 1.
TEST(Boundaries, ZeroReducedVariableIsErrorOne) {
  EXPECT_EQ(kvtTB23HS(2181000, 5100), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

}  // namespace
