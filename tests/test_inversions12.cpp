// Regions 1 and 2 the way back: the backward equations against their
// published check values, round trips through the forward equations, the
// iteration cap, and the pull of solved temperatures onto the region bounds.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <iterator>

#include "frame/engine.h"
#include "kvtcore.h"
#include "regions/constants.h"

namespace {

kvt::WaterCalculator& Water() { return kvt::engine().water; }

class Inversions12 : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
    kvtSETLASTERROR(0);
  }
};

// Agrees with a published value to its nine significant figures.
void ExpectNineFigures(double expected, double actual) {
  const double unit = std::pow(10.0, std::floor(std::log10(std::fabs(expected))) - 8);
  EXPECT_NEAR(actual, expected, 0.6 * unit);
}

using Fn = double (*)(double, double);
struct Published {
  Fn f;
  double a, b, expected;
};

// IF97 Tables 7 and 9 (region 1), 24 and 29 (region 2), in Pa, J/kg, J/(kg K).
const Published kBackwardT[] = {
    {kvtT1PH, 3e6, 500e3, 391.798509},    {kvtT1PH, 80e6, 500e3, 378.108626},
    {kvtT1PH, 80e6, 1500e3, 611.041229},  {kvtT1PS, 3e6, 500, 307.842258},
    {kvtT1PS, 80e6, 500, 309.979785},     {kvtT1PS, 80e6, 3000, 565.899909},
    {kvtT2APH, 1e3, 3000e3, 534.433241},  {kvtT2APH, 3e6, 3000e3, 575.373370},
    {kvtT2APH, 3e6, 4000e3, 1010.77577},  {kvtT2BPH, 5e6, 3500e3, 801.299102},
    {kvtT2BPH, 5e6, 4000e3, 1015.31583},  {kvtT2BPH, 25e6, 3500e3, 875.279054},
    {kvtT2CPH, 40e6, 2700e3, 743.056411}, {kvtT2CPH, 60e6, 2700e3, 791.137067},
    {kvtT2CPH, 60e6, 3200e3, 882.756860}, {kvtT2APS, 0.1e6, 7500, 399.517097},
    {kvtT2APS, 0.1e6, 8000, 514.127081},  {kvtT2APS, 2.5e6, 8000, 1039.84917},
    {kvtT2BPS, 8e6, 6000, 600.484040},    {kvtT2BPS, 8e6, 7500, 1064.95556},
    {kvtT2BPS, 90e6, 6000, 1038.01126},   {kvtT2CPS, 20e6, 5750, 697.992849},
    {kvtT2CPS, 80e6, 5250, 854.011484},   {kvtT2CPS, 80e6, 5750, 949.017998},
};

TEST_F(Inversions12, BackwardTemperaturesMatchPublishedCheckValues) {
  kvtSETTOLERANCEMODE(0);
  for (const Published& c : kBackwardT) {
    SCOPED_TRACE(testing::Message() << c.a << ", " << c.b);
    ExpectNineFigures(c.expected, c.f(c.a, c.b));
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
}

// p(h,s) release check values.
TEST_F(Inversions12, BackwardPressuresMatchPublishedCheckValues) {
  kvt::WaterCalculator& w = Water();
  using Back = double (kvt::WaterCalculator::*)(double, double);
  const struct {
    Back f;
    double h, s, p;
  } cases[] = {
      {&kvt::WaterCalculator::P1HSBACK, 1, 0, 980.0980612},
      {&kvt::WaterCalculator::P1HSBACK, 90e3, 0, 91929547.27},
      {&kvt::WaterCalculator::P1HSBACK, 1500e3, 3400, 58682944.23},
      {&kvt::WaterCalculator::P2AHSBACK, 2800e3, 6500, 1371012.767},
      {&kvt::WaterCalculator::P2AHSBACK, 2800e3, 9500, 1879.743844},
      {&kvt::WaterCalculator::P2AHSBACK, 4100e3, 9500, 102478.8997},
      {&kvt::WaterCalculator::P2BHSBACK, 2800e3, 6000, 4793911.442},
      {&kvt::WaterCalculator::P2BHSBACK, 3600e3, 6000, 83955192.09},
      {&kvt::WaterCalculator::P2BHSBACK, 3600e3, 7000, 7527161.441},
      {&kvt::WaterCalculator::P2CHSBACK, 2800e3, 5100, 94392020.60},
      {&kvt::WaterCalculator::P2CHSBACK, 2800e3, 5800, 8414574.124},
      {&kvt::WaterCalculator::P2CHSBACK, 3400e3, 5800, 83769038.79},
  };
  for (const auto& c : cases) ExpectNineFigures(c.p, (w.*c.f)(c.h, c.s));

  // Through the exports, which answer with the backward value in mode 0.
  kvtSETTOLERANCEMODE(0);
  ExpectNineFigures(91929547.3, kvtP1HS(90e3, 0));
  double p, T;
  ASSERT_EQ(kvtPT1HS(90e3, 0, &p, &T), 1.0);
  EXPECT_EQ(p, kvtP1HS(90e3, 0));
  EXPECT_EQ(T, kvtT1PH(p, 90e3));  // the backward T at the backward p
  EXPECT_EQ(kvtT1HS(90e3, 0), T);
}

TEST_F(Inversions12, SubRegionBoundaries) {
  ExpectNineFigures(3516004.323, kvtH2B2CP(100e6));
  ExpectNineFigures(100e6, kvtP2B2CH(3516004.323));
  for (double p : {20e6, 40e6, 100e6})
    EXPECT_NEAR(kvtP2B2CH(kvtH2B2CP(p)), p, p * 1e-12);
  ExpectNineFigures(3376437.884, Water().H2ABS(7000));
}

// Which sub-region each chooser takes, seen through mode 0.
TEST_F(Inversions12, SubRegionChoiceAndItsStrictness) {
  kvtSETTOLERANCEMODE(0);
  const double above4MPa = std::nextafter(4e6, 1e9);
  EXPECT_EQ(kvtT2PH(4e6, 3000e3), kvtT2APH(4e6, 3000e3));  // 4 MPa itself is 2a
  EXPECT_EQ(kvtT2PH(above4MPa, 3000e3), kvtT2BPH(above4MPa, 3000e3));
  EXPECT_EQ(kvtT2PH(40e6, 2700e3), kvtT2CPH(40e6, 2700e3));
  EXPECT_EQ(kvtT2PS(4e6, 6500), kvtT2APS(4e6, 6500));
  EXPECT_EQ(kvtT2PS(above4MPa, 6500), kvtT2BPS(above4MPa, 6500));
  EXPECT_EQ(kvtT2PS(10e6, 5850), kvtT2CPS(10e6, 5850));  // 5850 is 2c by p,s
  EXPECT_EQ(kvtT2PS(10e6, std::nextafter(5850.0, 1e4)),
            kvtT2BPS(10e6, std::nextafter(5850.0, 1e4)));

  kvt::WaterCalculator& w = Water();
  const double below5850 = std::nextafter(5850.0, 0.0);
  EXPECT_EQ(kvtP2HS(2800e3, below5850), w.P2CHSBACK(2800e3, below5850));
  EXPECT_EQ(kvtP2HS(2800e3, 5850), w.P2BHSBACK(2800e3, 5850));  // but not by h,s
  const double hab = w.H2ABS(6500);
  EXPECT_EQ(kvtP2HS(hab, 6500), w.P2AHSBACK(hab, 6500));
  EXPECT_EQ(kvtP2HS(std::nextafter(hab, 1e9), 6500),
            w.P2BHSBACK(std::nextafter(hab, 1e9), 6500));
}

struct PT {
  double p, T;
};
const PT kRegion1States[] = {
    {1e6, 280},  {1e6, 370},  {1e6, 450},  {5e6, 300},  {5e6, 530},   {20e6, 290},
    {20e6, 450}, {20e6, 620}, {50e6, 400}, {50e6, 600}, {100e6, 275}, {100e6, 620},
};
// 2a, 2b and 2c.
const PT kRegion2States[] = {
    {1e3, 300},  {1e5, 400},  {1e6, 500},  {3e6, 700},  {4e6, 1000}, {5e6, 600},   {10e6, 800},
    {20e6, 1000}, {60e6, 1073}, {25e6, 680}, {40e6, 750}, {60e6, 800}, {90e6, 850},
};

// T(p,h) and T(p,s) are the inverses of the forward equations to the band of
// the solve: T * tolerance in T, about cp T tolerance in h and cp tolerance in s.
void CheckTemperatureRoundTrips(const PT* states, size_t n, Fn h, Fn s, Fn cp, Fn tph, Fn tps) {
  const double tol = 2e-12;
  for (size_t i = 0; i < n; ++i) {
    const PT& x = states[i];
    SCOPED_TRACE(testing::Message() << "p=" << x.p << " T=" << x.T);
    const double h0 = h(x.p, x.T), s0 = s(x.p, x.T), c = cp(x.p, x.T);
    const double T1 = tph(x.p, h0), T2 = tps(x.p, s0);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    EXPECT_NEAR(T1, x.T, 4 * x.T * tol);
    EXPECT_NEAR(T2, x.T, 4 * x.T * tol);
    EXPECT_NEAR(h(x.p, T1), h0, 4 * c * x.T * tol + 1e-9);
    EXPECT_NEAR(s(x.p, T2), s0, 4 * c * tol + 1e-12);
  }
}

TEST_F(Inversions12, TemperatureSolvesInvertTheForwardEquations) {
  CheckTemperatureRoundTrips(kRegion1States, std::size(kRegion1States), kvtH1PT, kvtS1PT,
                             kvtCP1PT, kvtT1PH, kvtT1PS);
  CheckTemperatureRoundTrips(kRegion2States, std::size(kRegion2States), kvtH2PT, kvtS2PT,
                             kvtCP2PT, kvtT2PH, kvtT2PS);
}

using Pair = double (*)(double, double, double*, double*);

void CheckPairRoundTrip(const PT& x, double a, double b, Pair f, Fn pOnly, Fn tOnly) {
  SCOPED_TRACE(testing::Message() << "p=" << x.p << " T=" << x.T);
  double p = 0, T = 0;
  ASSERT_EQ(f(a, b, &p, &T), 1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  EXPECT_NEAR(p, x.p, x.p * 1e-9);
  EXPECT_NEAR(T, x.T, x.T * 1e-10);
  if (pOnly) {
    EXPECT_EQ(pOnly(a, b), p);
  }
  if (tOnly) {
    EXPECT_EQ(tOnly(a, b), T);
  }
}

TEST_F(Inversions12, PairSolvesInvertTheForwardEquations) {
  for (const PT& x : kRegion1States) {
    const double h = kvtH1PT(x.p, x.T), s = kvtS1PT(x.p, x.T);
    CheckPairRoundTrip(x, h, s, kvtPT1HS, kvtP1HS, kvtT1HS);
    double p, T;
    kvtPT1HS(h, s, &p, &T);
    EXPECT_NEAR(kvtH1PT(p, T), h, std::fabs(h) * 1e-11 + 1e-6);
    EXPECT_NEAR(kvtS1PT(p, T), s, std::fabs(s) * 1e-11 + 1e-9);
  }
  for (const PT& x : kRegion2States) {
    const double h = kvtH2PT(x.p, x.T), s = kvtS2PT(x.p, x.T);
    CheckPairRoundTrip(x, h, s, kvtPT2HS, kvtP2HS, kvtT2HS);
    double p, T;
    kvtPT2HS(h, s, &p, &T);
    EXPECT_NEAR(kvtH2PT(p, T), h, h * 1e-11);
    EXPECT_NEAR(kvtS2PT(p, T), s, s * 1e-11);
    CheckPairRoundTrip(x, 1.0 / kvtV2PT(x.p, x.T), h, kvtPT2RH, nullptr, nullptr);
  }
}

TEST_F(Inversions12, DensityAndEnthalpyInRegion1) {
  double p = 0, T = 0;
  ASSERT_EQ(kvtPT1RH(1000, 100000, &p, &T), 1.0);
  ExpectNineFigures(5370160.04, p);
  ExpectNineFigures(295.798744, T);
  // Five passes, the first of which steps to a negative p and restarts it;
  // converging on the last allowed pass counts as running out.
  kvtSETMAXITERATION(5);
  EXPECT_EQ(kvtPT1RH(1000, 100000, &p, &T), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  kvtSETMAXITERATION(6);
  EXPECT_EQ(kvtPT1RH(1000, 100000, &p, &T), 1.0);
  // No backward equation by density: mode 0 changes nothing.
  kvtSETTOLERANCEMODE(0);
  double p0, T0;
  ASSERT_EQ(kvtPT1RH(1000, 100000, &p0, &T0), 1.0);
  EXPECT_EQ(p0, p);
  EXPECT_EQ(T0, T);
}

// One pass is never enough, even from a start that is already the answer.
TEST_F(Inversions12, OnePassAlwaysRunsOut) {
  const double p1 = 20e6, T1 = 450, h1 = kvtH1PT(p1, T1), s1 = kvtS1PT(p1, T1);
  const double p2 = 1e6, T2 = 500, h2 = kvtH2PT(p2, T2), s2 = kvtS2PT(p2, T2);
  const double r1 = 1.0 / kvtV1PT(p1, T1), r2 = 1.0 / kvtV2PT(p2, T2);
  double p, T;
  const struct {
    const char* name;
    double result;
  } calls[] = {
      {"T1PH", kvtT1PH(p1, h1)},          {"T1PS", kvtT1PS(p1, s1)},
      {"P1HS", kvtP1HS(h1, s1)},          {"T1HS", kvtT1HS(h1, s1)},
      {"PT1HS", kvtPT1HS(h1, s1, &p, &T)}, {"PT1RH", kvtPT1RH(r1, h1, &p, &T)},
      {"T2PH", kvtT2PH(p2, h2)},          {"T2PS", kvtT2PS(p2, s2)},
      {"P2HS", kvtP2HS(h2, s2)},          {"T2HS", kvtT2HS(h2, s2)},
      {"PT2HS", kvtPT2HS(h2, s2, &p, &T)}, {"PT2RH", kvtPT2RH(r2, h2, &p, &T)},
  };
  for (const auto& c : calls) EXPECT_NE(c.result, -1.0) << c.name;  // default cap: fine

  kvtSETMAXITERATION(1);
  const std::function<double()> again[] = {
      [&] { return kvtT1PH(p1, h1); },          [&] { return kvtT1PS(p1, s1); },
      [&] { return kvtP1HS(h1, s1); },          [&] { return kvtT1HS(h1, s1); },
      [&] { return kvtPT1HS(h1, s1, &p, &T); }, [&] { return kvtPT1RH(r1, h1, &p, &T); },
      [&] { return kvtT2PH(p2, h2); },          [&] { return kvtT2PS(p2, s2); },
      [&] { return kvtP2HS(h2, s2); },          [&] { return kvtT2HS(h2, s2); },
      [&] { return kvtPT2HS(h2, s2, &p, &T); }, [&] { return kvtPT2RH(r2, h2, &p, &T); },
  };
  for (size_t i = 0; i < std::size(again); ++i) {
    EXPECT_EQ(again[i](), -1.0) << calls[i].name;
    EXPECT_EQ(kvtGETLASTERROR(), 3) << calls[i].name;
  }
  // Mode 0 does not iterate, so the cap does not touch the backward answers.
  kvtSETTOLERANCEMODE(0);
  EXPECT_NE(kvtT1PH(p1, h1), -1.0);
  EXPECT_NE(kvtP2HS(h2, s2), -1.0);
}

TEST_F(Inversions12, ZeroToleranceLeavesStrictStopsNoWayOut) {
  kvtSETTOLERANCE(0.0);
  const double s = kvtS1PT(20e6, 450), h = kvtH1PT(20e6, 450);
  EXPECT_EQ(kvtT1PS(20e6, s), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  EXPECT_EQ(kvtP1HS(h, s), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
}

// The h,s bands of region 2 are relative without absolute value: a negative
// target gives a negative band, which no residual can fall under.
TEST_F(Inversions12, NegativeTargetInRegion2HasNoStop) {
  kvt::WaterCalculator& w = Water();
  const double h = kvtH2PT(1e6, 600), s = kvtS2PT(1e6, 600);
  double p = 1e6 * 1.01, T = 600 * 0.99;
  EXPECT_EQ(w.NEWTON2HS(h, s, p, T), 1.0);
  p = 1e6, T = 600;
  int code = 0;
  try {
    w.NEWTON2HS(h, -1.0, p, T);
  } catch (int32_t c) {
    code = c;
  }
  EXPECT_EQ(code, 3);
  EXPECT_TRUE(std::isfinite(p) && std::isfinite(T));  // it wandered, not blew up
  // Through the export a negative h starts from nowhere near region 2 and
  // never yields a pressure.
  EXPECT_EQ(kvtP2HS(-1000, 6000), -1.0);
  EXPECT_NE(kvtGETLASTERROR(), 0);
}

// With range checks on, a region 1 temperature a hair under its lowest value
// is pulled onto it; above it, or with checks off, it stays.
TEST_F(Inversions12, Region1SnapsOntoTheLowestTemperatureFromBelow) {
  const double p = 1e6, tiny = 1e-10, band = kvt::TLOW * 2e-12;
  const double below = kvt::TLOW - tiny, above = kvt::TLOW + tiny;
  EXPECT_EQ(kvtT1PH(p, kvtH1PT(p, below)), kvt::TLOW);
  EXPECT_EQ(kvtT1PS(p, kvtS1PT(p, below)), kvt::TLOW);
  EXPECT_GT(kvtT1PH(p, kvtH1PT(p, above)), kvt::TLOW);
  const double far = kvt::TLOW - 100 * band;  // outside the band: stays
  EXPECT_NEAR(kvtT1PH(p, kvtH1PT(p, far)), far, band);
  EXPECT_LT(kvtT1PH(p, kvtH1PT(p, far)), kvt::TLOW);

  kvtSETCHECKRANGEMODE(0);
  const double T = kvtT1PH(p, kvtH1PT(p, below));
  EXPECT_LT(T, kvt::TLOW);
  EXPECT_NEAR(T, below, band);
}

// Region 2 above 1073.15 K: above 10 MPa any T comes down to the bound, at or
// below 10 MPa only one within the band.
TEST_F(Inversions12, Region2SnapsOntoItsTopTemperature) {
  EXPECT_EQ(kvtT2PH(20e6, kvtH2PT(20e6, 1100)), kvt::TMID);
  EXPECT_EQ(kvtT2PS(20e6, kvtS2PT(20e6, 1100)), kvt::TMID);
  EXPECT_NEAR(kvtT2PH(5e6, kvtH2PT(5e6, 1100)), 1100, 1e-8);
  EXPECT_NEAR(kvtT2PH(10e6, kvtH2PT(10e6, 1100)), 1100, 1e-8);
  const double hair = kvt::TMID + 1e-10;
  EXPECT_EQ(kvtT2PH(5e6, kvtH2PT(5e6, hair)), kvt::TMID);
  EXPECT_EQ(kvtT2PS(5e6, kvtS2PT(5e6, hair)), kvt::TMID);
  EXPECT_NEAR(kvtT2PH(20e6, kvtH2PT(20e6, 1000)), 1000, 1e-8);  // below: untouched

  kvtSETCHECKRANGEMODE(0);
  EXPECT_NEAR(kvtT2PH(20e6, kvtH2PT(20e6, 1100)), 1100, 1e-8);
  EXPECT_GT(kvtT2PH(5e6, kvtH2PT(5e6, hair)), kvt::TMID);
}

}  // namespace
