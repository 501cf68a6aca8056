// The saturation line: IAPWS-IF97 check values (Tables 35 and 36), the slope,
// the rough saturated densities and enthalpies, and Tsat(h,s), against the
// published check values of their releases.
#include <gtest/gtest.h>

#include <cmath>

#include "frame/engine.h"
#include "kvtcore.h"

namespace {

class Saturation : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETCHECKRANGEMODE(1);
    kvtSETLASTERROR(0);
  }
};

void ExpectFigures(double expected, double actual, double relative) {
  EXPECT_NEAR(actual, expected, std::fabs(expected) * relative);
}

TEST_F(Saturation, PressureAndTemperatureMatchPublishedCheckValues) {
  // IF97 Table 35, nine figures.
  const double ps[][2] = {{300, 3536.58941}, {500, 2638897.76}, {600, 12344314.6}};
  for (const auto& c : ps) {
    SCOPED_TRACE(c[0]);
    ExpectFigures(c[1], kvtPST(c[0]), 5e-9);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
  // IF97 Table 36.
  const double ts[][2] = {{0.1e6, 372.755919}, {1e6, 453.035632}, {10e6, 584.149488}};
  for (const auto& c : ts) {
    SCOPED_TRACE(c[0]);
    ExpectFigures(c[1], kvtTSP(c[0]), 5e-9);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
}

TEST_F(Saturation, PressureAtRegionSplitIsTheConstant) {
  ExpectFigures(16529164.252621602, kvtPST(623.15), 1e-11);
}

// The equation runs on to the critical temperature unclamped and ends a hair
// above the critical pressure.
TEST_F(Saturation, PressureAtCriticalTemperatureIsNotClamped) {
  const double p = kvtPST(647.096);
  EXPECT_GT(p, 22064000.0);
  EXPECT_NEAR(p, 22064000.0003, 5e-5);
}

TEST_F(Saturation, TemperatureAndPressureAreInverse) {
  for (double T = 275; T < 647; T += 17) {
    SCOPED_TRACE(T);
    EXPECT_NEAR(kvtTSP(kvtPST(T)), T, 1e-6);
  }
}

TEST_F(Saturation, SlopeAgreesWithDifferenceOfPressure) {
  for (double T : {273.2, 300.0, 450.0, 600.0, 640.0, 647.0}) {
    SCOPED_TRACE(T);
    const double d = 1e-4;
    const double central = (kvtPST(T + d) - kvtPST(T - d)) / (2 * d);
    ExpectFigures(central, kvtDPDTST(T), 1e-7);
  }
}

TEST_F(Saturation, RangesOfTheLine) {
  EXPECT_EQ(kvtPST(648.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtDPDTST(273.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtTSP(22064000.5), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtTSP(600.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_GT(kvtTSP(22064000.0), 647.09);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// The 1992 release's check values, which its equations share with ours.
TEST_F(Saturation, RoughDensitiesMatchTheirRelease) {
  ExpectFigures(999.789, kvtROUGHRSWT(273.16), 5e-7);
  ExpectFigures(0.00485426, kvtROUGHRSST(273.16), 5e-6);
  ExpectFigures(958.365, kvtROUGHRSWT(373.1243), 5e-7);
  ExpectFigures(0.597586, kvtROUGHRSST(373.1243), 5e-6);
  EXPECT_EQ(kvtROUGHRSWT(647.096), 322.0);
  EXPECT_EQ(kvtROUGHRSST(647.096), 322.0);
}

TEST_F(Saturation, RoughDensitiesAboveCriticalTemperature) {
  EXPECT_EQ(kvtROUGHRSST(650.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  kvtSETCHECKRANGEMODE(0);
  EXPECT_EQ(kvtROUGHRSST(650.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtROUGHRSWT(650.0), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

// 2004 supplementary release on h,s, its check values in SI units.
TEST_F(Saturation, RoughEnthalpiesMatchPublishedCheckValues) {
  const double water[][2] = {{3800, 1685025.565}, {4200, 1949352.563}};
  for (const auto& c : water) ExpectFigures(c[1], kvtROUGHHSWS(c[0]), 5e-10);
  const double steam[][2] = {{7000, 2723729.985}, {9000, 2511861.477}};
  for (const auto& c : steam) ExpectFigures(c[1], kvtROUGHHSSS(c[0]), 5e-10);
}

// Only the h'3a branch exists: a low entropy gets its extrapolation, with no
// range comparison in any mode.
TEST_F(Saturation, RoughWaterEnthalpyExtrapolatesBelowItsBranch) {
  const double h = kvtROUGHHSWS(1000.0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  EXPECT_TRUE(std::isfinite(h));
  EXPECT_NE(h, -1.0);
}

TEST_F(Saturation, TemperatureFromEnthalpyAndEntropy) {
  const double checks[][3] = {
      {1800e3, 5300, 346.8475498}, {2400e3, 6000, 425.1373305}, {2500e3, 5500, 522.5579013}};
  for (const auto& c : checks) {
    SCOPED_TRACE(c[2]);
    ExpectFigures(c[2], kvt::engine().water.TSATHS(c[0], c[1]), 5e-10);
  }
}

}  // namespace
