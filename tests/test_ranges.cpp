// Input validity ranges: every rule at its exact bounds, one step outside,
// with NaN, and with checkRangeMode 0.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/engine.h"
#include "frame/ranges.h"
#include "kvtcore.h"

namespace {

namespace rules = kvt::rules;
const double kNaN = std::numeric_limits<double>::quiet_NaN();
double Up(double x) { return std::nextafter(x, HUGE_VAL); }
double Down(double x) { return std::nextafter(x, -HUGE_VAL); }

class Ranges : public testing::Test {
 protected:
  kvt::Engine& e = kvt::engine();
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETCHECKRANGEMODE(1);
  }
};

TEST_F(Ranges, PressureAndTemperature) {
  const struct { double p, T; bool fails; } cases[] = {
      {611.212677444343, 273.15999999999, false},
      {Down(611.212677444343), 300, true},
      {611.2, 300, true},
      {1e5, Down(273.15999999999), true},
      {1e8, 1073.15, false},
      {Up(1e8), 500, true},
      {1e8, 1073.16, true},
      {1e7, 2273.15, false},
      {1e7, Up(2273.15), true},
      {Up(1e7), Up(1073.15), true},
      {10000001, 1073.16, true},
      {kNaN, 300, false},
      {1e5, kNaN, false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(rules::PT::Fails(e, c.p, c.T), c.fails) << c.p << " " << c.T;
    EXPECT_EQ(rules::PTX::Fails(e, c.p, c.T, 0.5), c.fails) << c.p << " " << c.T;
    EXPECT_EQ(rules::EXP::Fails(e, c.p, c.T, 1e5, 0.9), c.fails) << c.p << " " << c.T;
    EXPECT_EQ(rules::EXPX::Fails(e, c.p, c.T, 0.5, 1e5, 0.9), c.fails) << c.p << " " << c.T;
  }
}

TEST_F(Ranges, DrynessAndEndPressure) {
  for (double x : {0.0, 1.0, 0.5, kNaN}) {
    EXPECT_FALSE(rules::PTX::Fails(e, 1e5, 373.15, x));
    EXPECT_FALSE(rules::TX::Fails(e, 373.15, x));
    EXPECT_FALSE(rules::EXPX::Fails(e, 1e6, 500, x, 1e5, 0.8));
  }
  for (double x : {Down(0.0), 1.01, Up(1.0)}) {
    EXPECT_TRUE(rules::PTX::Fails(e, 1e5, 373.15, x));
    EXPECT_TRUE(rules::TX::Fails(e, 373.15, x));
    EXPECT_TRUE(rules::EXPX::Fails(e, 1e6, 500, x, 1e5, 0.8));
  }
  for (double p2 : {Down(611.212677444343), Up(1e8)}) {
    EXPECT_TRUE(rules::EXP::Fails(e, 1e6, 500, p2, 0.8));
    EXPECT_TRUE(rules::EXPX::Fails(e, 1e6, 500, 1.0, p2, 0.8));
  }
  // The efficiency is never tested.
  EXPECT_FALSE(rules::EXP::Fails(e, 1e6, 500, 1e5, -7.0));
}

TEST_F(Ranges, SaturationTemperatureAndPressure) {
  EXPECT_FALSE(rules::T::Fails(e, 273.15999999999));
  EXPECT_TRUE(rules::T::Fails(e, Down(273.15999999999)));
  EXPECT_FALSE(rules::T::Fails(e, 647.096));
  EXPECT_TRUE(rules::T::Fails(e, Up(647.096)));
  EXPECT_FALSE(rules::XST::Fails(e, 400, -1e30));  // the property is not tested
  EXPECT_FALSE(rules::P::Fails(e, 22064000));
  EXPECT_TRUE(rules::P::Fails(e, Up(22064000)));
  EXPECT_FALSE(rules::P::Fails(e, 611.212677444343));
  EXPECT_TRUE(rules::P::Fails(e, Down(611.212677444343)));

  EXPECT_EQ(kvtPST(273.15), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_GT(kvtPST(273.16), 0);
  EXPECT_GT(kvtPST(647.096), 0);
  EXPECT_GT(kvtTSP(22064000), 0);
  EXPECT_EQ(kvtTSP(22064001), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
}

TEST_F(Ranges, EnthalpyBoundsWithTheirMargin) {
  const double p = 1e6, F = 1 + 2e-12;
  const double hmin = kvtH1PT(p, 273.15999999999), hmax = kvtH5PT(p, 2273.15);
  EXPECT_FALSE(rules::PH::Fails(e, p, hmin));
  EXPECT_FALSE(rules::PH::Fails(e, p, hmin / F * (1 + 1e-15)));
  EXPECT_TRUE(rules::PH::Fails(e, p, hmin * (1 - 1e-11)));
  EXPECT_FALSE(rules::PH::Fails(e, p, hmax * F));
  EXPECT_TRUE(rules::PH::Fails(e, p, hmax * (1 + 1e-11)));
  // Above 10 MPa the top is region 2 at 1073.15 K.
  const double hmax2 = kvtH2PT(5e7, 1073.15);
  EXPECT_FALSE(rules::PH::Fails(e, 5e7, hmax2));
  EXPECT_TRUE(rules::PH::Fails(e, 5e7, hmax2 * (1 + 1e-11)));
  EXPECT_TRUE(rules::PH::Fails(e, Down(611.212677444343), 1e6));
  EXPECT_TRUE(rules::PH::Fails(e, Up(1e8), 1e6));
  EXPECT_FALSE(rules::PH::Fails(e, p, kNaN));
  // The margin follows the tolerance at the moment of the call.
  kvtSETTOLERANCE(1e-3);
  EXPECT_FALSE(rules::PH::Fails(e, p, hmax * (1 + 5e-4)));
}

TEST_F(Ranges, EntropyLowerBoundTakesCareOfTheSign) {
  // At 100 MPa the lowest entropy is negative.
  const double p = 1e8, smin = kvtS1PT(p, 273.15999999999);
  ASSERT_LT(smin, 0);
  EXPECT_FALSE(rules::PS::Fails(e, p, smin));
  EXPECT_TRUE(rules::PS::Fails(e, p, smin * (1 + 1e-9)));
  // The enthalpy rule, at a point with a negative bound, would refuse the
  // bound itself: there the margin works against the caller.
  const double smax = kvtS5PT(1e6, 2273.15);
  EXPECT_FALSE(rules::PS::Fails(e, 1e6, smax));
  EXPECT_TRUE(rules::PS::Fails(e, 1e6, smax * (1 + 1e-11)));
}

TEST_F(Ranges, ThroughTheExports) {
  EXPECT_GT(kvtVPT(611.212677444343, 273.15999999999), 0);
  EXPECT_EQ(kvtVPT(611.2, 300), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_GT(kvtVPT(1e8, 1073.15), 0);
  EXPECT_EQ(kvtVPT(1e8, 1073.16), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_GT(kvtVPT(1e7, 2273.15), 0);
  EXPECT_EQ(kvtWATERSTATEAREA(10000001, 1073.16), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  // NaN passes the comparisons and ends at the finiteness test.
  EXPECT_EQ(kvtVPT(1e5, kNaN), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  // Region-bound exports have no comparison, whatever the mode.
  EXPECT_NE(kvtV1PT(1e9, 200), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

TEST_F(Ranges, CheckRangeModeZeroLetsEverythingThrough) {
  kvtSETCHECKRANGEMODE(0);
  EXPECT_GT(kvtVPT(611.2, 300), 0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  EXPECT_GT(kvtVPT(1e8, 1073.16), 0);
  EXPECT_GT(kvtPST(273.15), 0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

}  // namespace
