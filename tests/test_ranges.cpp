// Input validity ranges: every rule at its exact bounds, one step outside,
// with NaN, and with checkRangeMode 0.
#include "frame/engine.h"
#include "frame/ranges.h"
#include "kvt_test.h"

namespace {

using namespace kvt_test;
namespace rules = kvt::rules;
double Up(double x) { return std::nextafter(x, HUGE_VAL); }
double Down(double x) { return std::nextafter(x, -HUGE_VAL); }
const double kPLow = 611.212677444343, kTLow = 273.15999999999;

class Ranges : public Defaults {
 protected:
  kvt::Engine& e = kvt::engine();
};

TEST_F(Ranges, PressureAndTemperature) {
  const struct { double p, T; bool fails; } cases[] = {
      {kPLow, kTLow, false}, {Down(kPLow), 300, true},   {611.2, 300, true},
      {1e5, Down(kTLow), true}, {1e8, 1073.15, false},    {Up(1e8), 500, true},
      {1e8, 1073.16, true},  {1e7, 2273.15, false},       {1e7, Up(2273.15), true},
      {Up(1e7), Up(1073.15), true}, {10000001, 1073.16, true}, {kNaN, 300, false}, {1e5, kNaN, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.p << " " << c.T);
    EXPECT_EQ(rules::PT::Fails(e, c.p, c.T), c.fails);
    EXPECT_EQ(rules::PTX::Fails(e, c.p, c.T, 0.5), c.fails);
    EXPECT_EQ(rules::EXP::Fails(e, c.p, c.T, 1e5, 0.9), c.fails);
    EXPECT_EQ(rules::EXPX::Fails(e, c.p, c.T, 0.5, 1e5, 0.9), c.fails);
  }
}

TEST_F(Ranges, DrynessEndPressureAndTheLine) {
  for (auto [x, fails] : {std::pair{0.0, false}, {1.0, false}, {0.5, false}, {kNaN, false},
                          {Down(0.0), true}, {1.01, true}, {Up(1.0), true}}) {
    EXPECT_EQ(rules::PTX::Fails(e, 1e5, 373.15, x), fails) << x;
    EXPECT_EQ(rules::TX::Fails(e, 373.15, x), fails) << x;
    EXPECT_EQ(rules::EXPX::Fails(e, 1e6, 500, x, 1e5, 0.8), fails) << x;
  }
  for (double p2 : {Down(kPLow), Up(1e8)}) {
    EXPECT_TRUE(rules::EXP::Fails(e, 1e6, 500, p2, 0.8));
    EXPECT_TRUE(rules::EXPX::Fails(e, 1e6, 500, 1.0, p2, 0.8));
  }
  EXPECT_FALSE(rules::EXP::Fails(e, 1e6, 500, 1e5, -7.0));  // the efficiency is never tested
  EXPECT_FALSE(rules::XST::Fails(e, 400, -1e30));            // nor the property
  for (auto [T, fails] : {std::pair{kTLow, false}, {Down(kTLow), true}, {647.096, false}, {Up(647.096), true}})
    EXPECT_EQ(rules::T::Fails(e, T), fails) << T;
  for (auto [p, fails] : {std::pair{22064000.0, false}, {Up(22064000), true}, {kPLow, false}, {Down(kPLow), true}})
    EXPECT_EQ(rules::P::Fails(e, p), fails) << p;
}

// The enthalpy and entropy bounds come with a margin of the tolerance at the
// moment of the call; above 10 MPa the top is region 2 at 1073.15 K.
TEST_F(Ranges, EnthalpyAndEntropyBoundsWithTheirMargin) {
  const double p = 1e6, F = 1 + 2e-12;
  const double hmin = kvtH1PT(p, kTLow), hmax = kvtH5PT(p, 2273.15), hmax2 = kvtH2PT(5e7, 1073.15);
  const struct { double p, h; bool fails; } cases[] = {
      {p, hmin, false}, {p, hmin / F * (1 + 1e-15), false}, {p, hmin * (1 - 1e-11), true},
      {p, hmax * F, false}, {p, hmax * (1 + 1e-11), true}, {5e7, hmax2, false},
      {5e7, hmax2 * (1 + 1e-11), true}, {Down(kPLow), 1e6, true}, {Up(1e8), 1e6, true}, {p, kNaN, false}};
  for (const auto& c : cases) EXPECT_EQ(rules::PH::Fails(e, c.p, c.h), c.fails) << c.p << " " << c.h;
  kvtSETTOLERANCE(1e-3);
  EXPECT_FALSE(rules::PH::Fails(e, p, hmax * (1 + 5e-4)));
  kvtSETTOLERANCE(2e-12);
  // At 100 MPa the lowest entropy is negative, and the rule takes care of the
  // sign, where the enthalpy rule would refuse such a bound itself.
  const double smin = kvtS1PT(1e8, kTLow), smax = kvtS5PT(1e6, 2273.15);
  ASSERT_LT(smin, 0);
  EXPECT_FALSE(rules::PS::Fails(e, 1e8, smin));
  EXPECT_TRUE(rules::PS::Fails(e, 1e8, smin * (1 + 1e-9)));
  EXPECT_FALSE(rules::PS::Fails(e, 1e6, smax));
  EXPECT_TRUE(rules::PS::Fails(e, 1e6, smax * (1 + 1e-11)));
}

// Through the exports; NaN passes the comparisons and ends at the finiteness
// test; with checkRangeMode 0 everything goes through.
TEST_F(Ranges, ThroughTheExports) {
  const struct { double p, T; int code, unchecked; } cases[] = {
      {kPLow, kTLow, 0, 0}, {611.2, 300, 2, 0}, {1e8, 1073.15, 0, 0},
      {1e8, 1073.16, 2, 0}, {1e7, 2273.15, 0, 0}, {1e5, kNaN, 1, 1}};
  for (const auto& c : cases) {
    EXPECT_CODE(kvtVPT(c.p, c.T), c.code);
    kvtSETCHECKRANGEMODE(0);
    EXPECT_CODE(kvtVPT(c.p, c.T), c.unchecked);
    kvtSETCHECKRANGEMODE(1);
  }
  EXPECT_CODE(kvtWATERSTATEAREA(10000001, 1073.16), 2);
}

}  // namespace
