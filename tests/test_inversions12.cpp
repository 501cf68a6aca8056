// Regions 1, 2 and 5 the way back: the backward equations against their
// published check values, round trips through the forward equations, pass
// counts and the iteration cap, and the pull of solved temperatures onto the
// region bounds.
#include <functional>
#include <vector>

#include "frame/engine.h"
#include "kvt_test.h"
#include "regions/constants.h"

namespace {

using namespace kvt_test;
using Inversions = Defaults;
kvt::WaterCalculator& Water() { return kvt::engine().water; }

// Agreement with a published value to its nine significant figures.
double Nine(double x) { return 0.6 * std::pow(10.0, std::floor(std::log10(std::fabs(x))) - 8); }

// IF97 Tables 7 and 9 (region 1), 24 and 29 (region 2), in Pa, J/kg, J/(kg K).
const struct { const char* name; double a, b, expected; } kBackwardT[] = {
    {"T1PH", 3e6, 500e3, 391.798509},    {"T1PH", 80e6, 500e3, 378.108626},
    {"T1PH", 80e6, 1500e3, 611.041229},  {"T1PS", 3e6, 500, 307.842258},
    {"T1PS", 80e6, 500, 309.979785},     {"T1PS", 80e6, 3000, 565.899909},
    {"T2APH", 1e3, 3000e3, 534.433241},  {"T2APH", 3e6, 3000e3, 575.373370},
    {"T2APH", 3e6, 4000e3, 1010.77577},  {"T2BPH", 5e6, 3500e3, 801.299102},
    {"T2BPH", 5e6, 4000e3, 1015.31583},  {"T2BPH", 25e6, 3500e3, 875.279054},
    {"T2CPH", 40e6, 2700e3, 743.056411}, {"T2CPH", 60e6, 2700e3, 791.137067},
    {"T2CPH", 60e6, 3200e3, 882.756860}, {"T2APS", 0.1e6, 7500, 399.517097},
    {"T2APS", 0.1e6, 8000, 514.127081},  {"T2APS", 2.5e6, 8000, 1039.84917},
    {"T2BPS", 8e6, 6000, 600.484040},    {"T2BPS", 8e6, 7500, 1064.95556},
    {"T2BPS", 90e6, 6000, 1038.01126},   {"T2CPS", 20e6, 5750, 697.992849},
    {"T2CPS", 80e6, 5250, 854.011484},   {"T2CPS", 80e6, 5750, 949.017998},
};

// The p(h,s) release's check values.
using Back = double (kvt::WaterCalculator::*)(double, double);
const struct { Back f; double h, s, p; } kBackwardP[] = {
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

TEST_F(Inversions, BackwardEquationsMatchPublishedCheckValues) {
  kvtSETTOLERANCEMODE(0);
  for (const auto& c : kBackwardT) {
    EXPECT_NEAR(D2(c.name)(c.a, c.b), c.expected, Nine(c.expected)) << c.name << " " << c.a << " " << c.b;
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
  for (const auto& c : kBackwardP) EXPECT_NEAR((Water().*c.f)(c.h, c.s), c.p, Nine(c.p)) << c.h << " " << c.s;
  // Through the exports, which answer with the backward value in mode 0.
  EXPECT_NEAR(kvtP1HS(90e3, 0), 91929547.3, Nine(91929547.3));
  double p, T;
  ASSERT_EQ(kvtPT1HS(90e3, 0, &p, &T), 1.0);
  EXPECT_EQ(p, kvtP1HS(90e3, 0));
  EXPECT_EQ(T, kvtT1PH(p, 90e3));  // the backward T at the backward p
  EXPECT_EQ(kvtT1HS(90e3, 0), T);
}

// Which sub-region each chooser takes, seen through mode 0: 4 MPa itself is
// 2a, s = 5850 is 2c by p,s but not by h,s.
TEST_F(Inversions, SubRegionChoiceAndItsStrictness) {
  kvtSETTOLERANCEMODE(0);
  const double p4 = std::nextafter(4e6, 1e9), s58 = std::nextafter(5850.0, 1e4);
  const struct { const char *chooser, *sub; double a, b; } cases[] = {
      {"T2PH", "T2APH", 4e6, 3000e3}, {"T2PH", "T2BPH", p4, 3000e3}, {"T2PH", "T2CPH", 40e6, 2700e3},
      {"T2PS", "T2APS", 4e6, 6500},   {"T2PS", "T2BPS", p4, 6500},   {"T2PS", "T2CPS", 10e6, 5850},
      {"T2PS", "T2BPS", 10e6, s58}};
  for (const auto& c : cases) EXPECT_EQ(D2(c.chooser)(c.a, c.b), D2(c.sub)(c.a, c.b)) << c.sub << " " << c.a;
  kvt::WaterCalculator& w = Water();
  const double below5850 = std::nextafter(5850.0, 0.0), hab = w.H2ABS(6500), habUp = std::nextafter(hab, 1e9);
  EXPECT_EQ(kvtP2HS(2800e3, below5850), w.P2CHSBACK(2800e3, below5850));
  EXPECT_EQ(kvtP2HS(2800e3, 5850), w.P2BHSBACK(2800e3, 5850));
  EXPECT_EQ(kvtP2HS(hab, 6500), w.P2AHSBACK(hab, 6500));
  EXPECT_EQ(kvtP2HS(habUp, 6500), w.P2BHSBACK(habUp, 6500));
}

// Every solve gives back the state whose forward values it was given: T by
// p,h and p,s to the band of the solve (T tolerance in T, about cp T
// tolerance in h), (p, T) by h,s and by density,h, whose one-output
// exports are the same numbers.
TEST_F(Inversions, RoundTripsThroughTheForwardEquations) {
  struct Region {
    const char* r;
    std::vector<std::pair<double, double>> states;
    double tolT, pairT;
    bool byDensity;
  };
  std::vector<std::pair<double, double>> grid5;
  for (double p : {1e4, 1e5, 1e6, 5e6, 1e7})
    for (double T : {kvt::TMID, 1300.0, 1600.0, 2000.0, kvt::THIGH}) grid5.push_back({p, T});
  const Region regions[] = {
      {"1", {{1e6, 280}, {1e6, 370}, {1e6, 450}, {5e6, 300}, {5e6, 530}, {20e6, 290}, {20e6, 450},
             {20e6, 620}, {50e6, 400}, {50e6, 600}, {100e6, 275}, {100e6, 620}}, 8e-12, 1e-10, false},
      {"2", {{1e3, 300}, {1e5, 400}, {1e6, 500}, {3e6, 700}, {4e6, 1000}, {5e6, 600}, {10e6, 800},
             {20e6, 1000}, {60e6, 1073}, {25e6, 680}, {40e6, 750}, {60e6, 800}, {90e6, 850}}, 8e-12, 1e-10, true},
      {"5", grid5, 1e-11, 1e-9, true}};
  for (const Region& g : regions) {
    const std::string r = g.r;
    const Fn h = D2("H" + r + "PT"), s = D2("S" + r + "PT"), cp = D2("CP" + r + "PT");
    for (auto [p0, T0] : g.states) {
      SCOPED_TRACE(testing::Message() << "region " << r << " p=" << p0 << " T=" << T0);
      const double h0 = h(p0, T0), s0 = s(p0, T0), band = 4 * cp(p0, T0) * T0 * 2e-12;
      const double T1 = D2("T" + r + "PH")(p0, h0), T2 = D2("T" + r + "PS")(p0, s0);
      EXPECT_EQ(kvtGETLASTERROR(), 0);
      EXPECT_REL(T1, T0, g.tolT);
      EXPECT_REL(T2, T0, g.tolT);
      EXPECT_NEAR(h(p0, T1), h0, band + 1e-9);
      EXPECT_NEAR(s(p0, T2), s0, band / T0 + 1e-12);
      double p = 0, T = 0;
      ASSERT_EQ(Export<Pair>("PT" + r + "HS", "P2")(h0, s0, &p, &T), 1.0);
      EXPECT_REL(p, p0, 1e-9);
      EXPECT_REL(T, T0, g.pairT);
      const bool floor = r == "1";  // region 1 h and s pass through zero near 273 K
      EXPECT_NEAR(h(p, T), h0, std::fabs(h0) * 1e-11 + (floor ? 1e-6 : 0));
      EXPECT_NEAR(s(p, T), s0, std::fabs(s0) * 1e-11 + (floor ? 1e-9 : 0));
      if (r != "5") {
        EXPECT_EQ(D2("P" + r + "HS")(h0, s0), p);
        EXPECT_EQ(D2("T" + r + "HS")(h0, s0), T);
      }
      if (!g.byDensity) continue;
      ASSERT_EQ(Export<Pair>("PT" + r + "RH", "P2")(1 / D2("V" + r + "PT")(p0, T0), h0, &p, &T), 1.0);
      EXPECT_REL(p, p0, 1e-9);
      EXPECT_REL(T, T0, g.pairT);
    }
  }
}

// With range checks on, a solved temperature is pulled onto a region bound:
// in region 1 a hair under its lowest value, in region 2 above 1073.15 K any
// T above 10 MPa and one within the band at or below it, in region 5 one
// within the band above 2273.15 K. Each row: the solve of the forward value
// at T lands in [lo, hi].
TEST_F(Inversions, SolvedTemperaturesSnapOntoTheBounds) {
  const double L = kvt::TLOW, M = kvt::TMID, H = kvt::THIGH, band = L * 2e-12;
  const double below = L - 1e-10, far = L - 100 * band, hair = M + 1e-10, top = H + 1e-9, low = M - 1e-9;
  const double inf = kInf;
  // p = 0: at 0.1 and at 5 MPa.
  const struct { const char* solve; double p, T; int range; double lo, hi; } cases[] = {
      {"1PH", 1e6, below, 1, L, L},       {"1PS", 1e6, below, 1, L, L},
      {"1PH", 1e6, L + 1e-10, 1, std::nextafter(L, inf), L + 3e-9},
      {"1PH", 1e6, far, 1, far - band, far + band},
      {"1PH", 1e6, below, 0, below - band, std::nextafter(L, 0.0)},
      {"2PH", 20e6, 1100, 1, M, M},       {"2PS", 20e6, 1100, 1, M, M},
      {"2PH", 5e6, 1100, 1, 1100 - 1e-8, 1100 + 1e-8}, {"2PH", 10e6, 1100, 1, 1100 - 1e-8, 1100 + 1e-8},
      {"2PH", 5e6, hair, 1, M, M},        {"2PS", 5e6, hair, 1, M, M},
      {"2PH", 20e6, 1000, 1, 1000 - 1e-8, 1000 + 1e-8},
      {"2PH", 20e6, 1100, 0, 1100 - 1e-8, 1100 + 1e-8}, {"2PH", 5e6, hair, 0, std::nextafter(M, inf), M + 1e-9},
      {"5PH", 0, top, 1, H, H}, {"5PS", 0, top, 1, H, H}, {"5PH", 0, 2300, 1, 2300 - 1e-8, 2300 + 1e-8},
      {"5PH", 0, H - 1e-9, 1, H - 2e-9, std::nextafter(H, 0.0)},
      {"5PH", 0, low, 1, low - 1e-11, std::min(low + 1e-11, std::nextafter(M, 0.0))},
      {"5PS", 0, low, 1, M - 1e-8, std::nextafter(M, 0.0)},
      {"5PH", 0, top, 0, std::max(top - 1e-11, std::nextafter(H, inf)), top + 1e-11},
      {"5PS", 0, top, 0, std::nextafter(H, inf), H + 1e-8}};
  for (const auto& c : cases) {
    for (double p : {c.p ? c.p : 1e5, c.p ? c.p : 5e6}) {
      SCOPED_TRACE(testing::Message() << "T" << c.solve << " p=" << p << " T=" << c.T << " range " << c.range);
      const std::string r(c.solve, 1);
      kvtSETCHECKRANGEMODE(c.range);
      const double T = D2("T" + std::string(c.solve))(p, D2(std::string(c.solve + 2, 1) + r + "PT")(p, c.T));
      EXPECT_GE(T, c.lo);
      EXPECT_LE(T, c.hi);
    }
  }
}

// Region 1 by density and h at a state of the release on p(h,s); five
// passes, the first of which steps to a negative p and restarts it, and
// converging on the last allowed pass counts as running out. No backward
// equation by density: mode 0 changes nothing.
TEST_F(Inversions, DensityAndEnthalpyInRegion1) {
  double p = 0, T = 0, p0 = 0, T0 = 0;
  ASSERT_EQ(kvtPT1RH(1000, 100000, &p, &T), 1.0);
  EXPECT_NEAR(p, 5370160.04, Nine(5370160.04));
  EXPECT_NEAR(T, 295.798744, Nine(295.798744));
  kvtSETMAXITERATION(5);
  EXPECT_CODE(kvtPT1RH(1000, 100000, &p0, &T0), 3);
  kvtSETMAXITERATION(6);
  kvtSETTOLERANCEMODE(0);
  ASSERT_EQ(kvtPT1RH(1000, 100000, &p0, &T0), 1.0);
  EXPECT_EQ(p0, p);
  EXPECT_EQ(T0, T);
}

// One pass is never enough, even from a start that is already the answer;
// mode 0 does not iterate in regions 1 and 2, so there the cap does not touch
// the backward answers. Region 5 counts its passes: each solve stops on the
// pass given, and stopping on the pass numbered maxIteration is a failure.
TEST_F(Inversions, PassCounts) {
  // Region 5 at its check point by the published h, s and density.
  const struct { const char* r; double p, T, h, s, rho; int passes[6]; } cases[] = {
      {"1", 20e6, 450, 0, 0, 0, {1, 1, 1, 1, 1, 1}}, {"2", 1e6, 500, 0, 0, 0, {1, 1, 1, 1, 1, 1}},
      {"5", 0.5e6, 1500, 5219763.32, 9654.08431, 0.72225448, {3, 5, 4, 4, 4, 16}}};
  for (const auto& c : cases) {
    const std::string r = c.r;
    const double h = c.h ? c.h : D2("H" + r + "PT")(c.p, c.T), s = c.s ? c.s : D2("S" + r + "PT")(c.p, c.T);
    const double rho = c.rho ? c.rho : 1 / D2("V" + r + "PT")(c.p, c.T);
    double p, T;
    const std::function<double()> calls[] = {
        [&] { return D2("T" + r + "PH")(c.p, h); }, [&] { return D2("T" + r + "PS")(c.p, s); },
        [&] { return D2("P" + r + "HS")(h, s); },   [&] { return D2("T" + r + "HS")(h, s); },
        [&] { return Export<Pair>("PT" + r + "HS", "P2")(h, s, &p, &T); },
        [&] { return Export<Pair>("PT" + r + "RH", "P2")(rho, h, &p, &T); }};
    for (int k = 0; k < 6; ++k) {
      SCOPED_TRACE(testing::Message() << "region " << r << " call " << k);
      kvtSETMAXITERATION(c.passes[k]);
      EXPECT_CODE(calls[k](), 3);
      kvtSETMAXITERATION(c.passes[k] + (r == "5" ? 1 : 99));
      EXPECT_CODE(calls[k](), 0);
    }
  }
  kvtSETMAXITERATION(1);
  kvtSETTOLERANCEMODE(0);
  EXPECT_CODE(kvtT1PH(20e6, kvtH1PT(20e6, 450)), 0);
  EXPECT_CODE(kvtP2HS(kvtH2PT(1e6, 500), kvtS2PT(1e6, 500)), 0);
}

// Stops that cannot be met: a zero tolerance under strict tests, and the
// relative bands of region 2 by h,s and region 5 by density,h, which a
// negative target makes negative. A NaN step counts as converged: no error 3,
// the NaN ends as error 1.
TEST_F(Inversions, StopsThatCannotBeMet) {
  const double h = kvtH2PT(1e6, 600), s = kvtS2PT(1e6, 600);
  double p = 1e6 * 1.01, T = 600 * 0.99;
  EXPECT_EQ(Water().NEWTON2HS(h, s, p, T), 1.0);
  p = 1e6, T = 600;
  EXPECT_EQ(CodeOf([&] { Water().NEWTON2HS(h, -1.0, p, T); }), 3);
  EXPECT_TRUE(std::isfinite(p) && std::isfinite(T));  // it wandered, not blew up
  EXPECT_EQ(kvtP2HS(-1000, 6000), -1.0);  // from nowhere near region 2
  EXPECT_NE(kvtGETLASTERROR(), 0);
  const double h5 = 5219763.32;  // at the region 5 check point
  EXPECT_CODE(kvtPT5RH(0.72225448, -h5, &p, &T), 3);
  EXPECT_CODE(kvtT5PH(kNaN, h5), 1);
  EXPECT_CODE(kvtP5HS(h5, kNaN), 1);
  kvtSETTOLERANCE(0.0);
  EXPECT_CODE(kvtT1PS(20e6, kvtS1PT(20e6, 450)), 3);
  EXPECT_CODE(kvtP1HS(kvtH1PT(20e6, 450), kvtS1PT(20e6, 450)), 3);
}

// Region 5 at its check point (0.5 MPa, 1500 K): the nine published figures
// of h and s allow T to about 1e-6 K, and toleranceMode has no say there.
// Without refinement the pair by (h, s) is the crude start: T from a straight
// line in h, p from an ideal-gas estimate out of 611 Pa.
TEST_F(Inversions, Region5AtItsCheckPoint) {
  const double P = 500000, T0 = 1500, H = 5219763.32, S = 9654.08431, rho = 0.72225448;
  double p = 0, T = 0;
  const double th = kvtT5PH(P, H), ts = kvtT5PS(P, S);
  for (int mode : {1, 0}) {
    kvtSETTOLERANCEMODE(mode);
    EXPECT_NEAR(kvtT5PH(P, H), T0, 1e-5);
    EXPECT_NEAR(kvtT5PS(P, S), T0, 1e-5);
    EXPECT_EQ(kvtPT5HS(H, S, &p, &T), 1.0);
    EXPECT_NEAR(p, mode ? P : 477514.79, 0.01);
    EXPECT_NEAR(T, mode ? T0 : 1494.88724, 1e-5);
    EXPECT_EQ(kvtP5HS(H, S), p);
    EXPECT_NEAR(kvtT5HS(H, S), T, 1e-5);
  }
  EXPECT_EQ(kvtT5PH(P, H), th);
  EXPECT_EQ(kvtT5PS(P, S), ts);
  ASSERT_EQ(kvtPT5RH(rho, H, &p, &T), 1.0);
  EXPECT_NEAR(p, P, 0.01);
  EXPECT_NEAR(T, T0, 1e-5);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  // From its start at 5 MPa the first step of the density solve goes below
  // zero pressure and restarts at 1 kPa; a T below zero restarts at 1300 K.
  // maxIteration 0 stops the solve right behind its first step.
  kvtSETMAXITERATION(0);
  const auto codeOf = [&](double r, double h) { return CodeOf([&] { Water().PT5RH(r, h, p, T); }); };
  EXPECT_EQ(codeOf(rho, H), 3);
  EXPECT_EQ(p, 1000.0);
  EXPECT_GT(T, 0.0);
  EXPECT_EQ(codeOf(10, 1e6), 3);
  EXPECT_GT(p, 0.0);
  EXPECT_EQ(T, 1300.0);
}

}  // namespace
