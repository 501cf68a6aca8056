// Region 3 by p,h, p,s, h,s and density,h: the backward equations against the
// releases' check values, the subregion splits, round trips through the
// refined solves over the region, and the iteration limits.
#include <vector>

#include "frame/engine.h"
#include "kvt_test.h"

namespace {

using namespace kvt_test;
using Inversions3 = Defaults;
kvt::WaterCalculator& Water() { return kvt::engine().water; }
const double kSAB = 4412.02148223476;  // the entropy that splits 3a from 3b

// The check values are printed to ten significant figures.
double Ten(double x) { return 0.5 * std::pow(10.0, std::floor(std::log10(std::fabs(x))) - 9); }

// Revised release on T(p,h), v(p,h), T(p,s), v(p,s) for region 3 (3a rows
// first, then 3b), and release on p(h,s) for region 3.
const struct { const char* by; double a, b, T, v; } kBackward[] = {
    {"PH", 20e6, 1700e3, 629.3083892, 0.001749903962}, {"PH", 50e6, 2000e3, 690.5718338, 0.001908139035},
    {"PH", 100e6, 2100e3, 733.6163014, 0.001676229776}, {"PH", 20e6, 2500e3, 641.8418053, 0.006670547043},
    {"PH", 50e6, 2400e3, 735.1848618, 0.002801244590}, {"PH", 100e6, 2700e3, 842.0460876, 0.002404234998},
    {"PS", 20e6, 3800, 628.2959869, 0.001733791463},   {"PS", 50e6, 3600, 629.7158726, 0.001469680170},
    {"PS", 100e6, 4000, 705.6880237, 0.001555893131},  {"PS", 20e6, 5000, 640.1176443, 0.006262101987},
    {"PS", 50e6, 4500, 716.3687517, 0.002332634294},   {"PS", 100e6, 5000, 847.4332825, 0.002449610757},
};
const double kByHS[][3] = {
    {1700e3, 3800, 25.55703246e6}, {2000e3, 4200, 45.40873468e6}, {2100e3, 4300, 60.78123340e6},
    {2600e3, 5100, 34.34999263e6}, {2400e3, 4700, 63.63924887e6}, {2700e3, 5000, 88.39043281e6},
};

TEST_F(Inversions3, BackwardEquationsMatchPublishedCheckValues) {
  kvtSETTOLERANCEMODE(0);
  for (const auto& c : kBackward) {
    SCOPED_TRACE(testing::Message() << c.by << " " << c.a << ", " << c.b);
    EXPECT_NEAR(D2("T3" + std::string(c.by))(c.a, c.b), c.T, Ten(c.T));
    EXPECT_NEAR(D2("V3" + std::string(c.by))(c.a, c.b), c.v, Ten(c.v));
  }
  for (const auto& c : kByHS) {
    SCOPED_TRACE(testing::Message() << "h=" << c[0] << " s=" << c[1]);
    const double p = kvtP3HS(c[0], c[1]);
    EXPECT_NEAR(p, c[2], Ten(c[2]));
    // The rest of the group stands on that pressure.
    double pp = 0, T = 0, rho = 0, T2 = 0;
    EXPECT_EQ(kvtPT3HS(c[0], c[1], &pp, &T), 1.0);
    EXPECT_EQ(pp, p);
    EXPECT_EQ(T, Water().T3PHBACK(p, c[0]));
    EXPECT_EQ(kvtT3HS(c[0], c[1]), T);
    EXPECT_EQ(kvtV3HS(c[0], c[1]), Water().V3PSBACK(p, c[1]));
    EXPECT_EQ(kvtRT3HS(c[0], c[1], &rho, &T2), 1.0);
    EXPECT_EQ(rho, 1.0 / Water().V3PSBACK(p, c[1]));
    EXPECT_EQ(T2, T);
  }
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  EXPECT_NEAR(Water().H3AB(25e6), 2095.936454e3, Ten(2095.936454e3));
}

// h on the line h3ab(p) and s at the split entropy belong to 3a, the next
// double above them to 3b; in the (h, s) group T and v each take their own
// subregion (below h3ab at the backward pressure, s above the split).
TEST_F(Inversions3, SplitValuesBelongToSubregion3a) {
  kvtSETTOLERANCEMODE(0);
  kvt::WaterCalculator& w = Water();
  const double sUp = std::nextafter(kSAB, 1e10);
  for (double p : {18e6, 25e6, 60e6, 100e6}) {
    SCOPED_TRACE(testing::Message() << "p=" << p);
    const double h = w.H3AB(p), hUp = std::nextafter(h, 1e10);
    EXPECT_EQ(kvtT3PH(p, h), w.T3APHBACK(p, h));
    EXPECT_EQ(kvtV3PH(p, h), w.V3APHBACK(p, h));
    EXPECT_EQ(kvtT3PH(p, hUp), w.T3BPHBACK(p, hUp));
    EXPECT_EQ(kvtV3PH(p, hUp), w.V3BPHBACK(p, hUp));
    EXPECT_NE(w.T3APHBACK(p, h), w.T3BPHBACK(p, h));
    EXPECT_EQ(kvtT3PS(p, kSAB), w.T3APSBACK(p, kSAB));
    EXPECT_EQ(kvtV3PS(p, kSAB), w.V3APSBACK(p, kSAB));
    EXPECT_EQ(kvtT3PS(p, sUp), w.T3BPSBACK(p, sUp));
    EXPECT_EQ(kvtV3PS(p, sUp), w.V3BPSBACK(p, sUp));
    EXPECT_NE(w.T3APSBACK(p, kSAB), w.T3BPSBACK(p, kSAB));
  }
  for (double h : {2000e3, 2100e3, 2200e3}) {
    EXPECT_EQ(kvtP3HS(h, kSAB), w.P3AHSBACK(h, kSAB));
    EXPECT_EQ(kvtP3HS(h, sUp), w.P3BHSBACK(h, sUp));
    EXPECT_NE(w.P3AHSBACK(h, kSAB), w.P3BHSBACK(h, kSAB));
  }
  const double h = 2160e3, s = 4412.3, p = kvtP3HS(h, s);
  ASSERT_LE(h, w.H3AB(p));
  EXPECT_EQ(kvtT3HS(h, s), w.T3APHBACK(p, h));
  EXPECT_EQ(kvtV3HS(h, s), w.V3BPSBACK(p, s));
}

// Region 3 states: a grid by p and T from 623.15 K up to the B23 line, the
// critical neighbourhood, and both sides of the saturation line from 16.5 MPa
// up to the critical point, a hair away from it.
std::vector<std::pair<double, double>> RegionStates() {
  std::vector<std::pair<double, double>> out;  // density, T
  for (double p = 16.6e6; p <= 100e6; p += 3.5e6) {
    const double t23 = 572.54459862746 + std::sqrt((p / 1e6 - 13.91883977887) / 1.0192970039326e-3);
    for (double T = 623.15; T <= t23; T += 3)
      if (T >= 647.096 || std::fabs(p / kvtPST(T) - 1) >= 0.02) out.push_back({kvtR3PT(p, T), T});
  }
  for (double T : {647.0, 647.096, 647.2, 648.0, 650.0})
    for (double rho : {250.0, 300.0, 315.0, 322.0, 330.0, 345.0, 400.0})
      if (T > 647.096 || std::fabs(rho - 322) > 20) out.push_back({rho, T});
  for (double T = 624.0; T < 647.0; T += 1.5) {
    const double ps = kvtPST(T);
    out.push_back({kvtR3PTR0(ps, T, kvtROUGHRSWT(T)) * (1 + 1e-4), T});
    // On the steam side region 3 begins at B23.
    const double p23 = (348.05185628969 - 1.1671859879975 * T + 1.0192970039326e-3 * T * T) * 1e6;
    if (ps > p23 * 1.001) out.push_back({kvtR3PTR0(ps, T, kvtROUGHRSST(T)) * (1 - 1e-4), T});
  }
  return out;
}

// Refined, every inversion comes back to the state it started from within a
// few times the tolerance; the backward equations alone stay within the
// deviations their releases permit (25 mK in T, 0.01 % in v and in p).
TEST_F(Inversions3, RoundTripsOverTheRegion) {
  const auto states = RegionStates();
  ASSERT_GT(states.size(), 300u);
  const double band = 10 * kvtGETTOLERANCE();
  for (auto [rho, T] : states) {
    SCOPED_TRACE(testing::Message() << "rho=" << rho << " T=" << T);
    const double p = kvtP3RT(rho, T), h = kvtH3RT(rho, T), s = kvtS3RT(rho, T);
    kvtSETTOLERANCEMODE(1);
    double pp = 0, tp = 0, rr = 0, tr = 0;
    EXPECT_EQ(kvtPT3HS(h, s, &pp, &tp), 1.0);
    EXPECT_EQ(kvtRT3HS(h, s, &rr, &tr), 1.0);
    const double got[][2] = {{kvtT3PH(p, h), T},  {kvtV3PH(p, h) * rho, 1}, {kvtT3PS(p, s), T},
                             {kvtV3PS(p, s) * rho, 1}, {pp, p}, {tp, T}, {rr, rho}, {tr, T},
                             {kvtP3HS(h, s), p},  {kvtT3HS(h, s), T},    {kvtV3HS(h, s) * rho, 1},
                             {kvtT3RH(rho, h), T}};
    for (const auto& g : got) EXPECT_REL(g[0], g[1], band);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    kvtSETTOLERANCEMODE(0);
    EXPECT_NEAR(kvtT3PH(p, h), T, 0.025);
    EXPECT_NEAR(kvtT3PS(p, s), T, 0.025);
    EXPECT_NEAR(kvtV3PH(p, h) * rho, 1, 1e-4);
    EXPECT_NEAR(kvtV3PS(p, s) * rho, 1, 1e-4);
    EXPECT_REL(kvtP3HS(h, s), p, 1e-4);
  }
}

// The refinement is a real one: at the edge case of 25 MPa and 1863.43
// kJ/kg, in 3a, the backward value carries a small error that the
// iteration removes.
TEST_F(Inversions3, ModeZeroReturnsTheBackwardValueUnrefined) {
  const double p = 25e6, h = 1863.43e3;
  ASSERT_LE(h, Water().H3AB(p));
  kvtSETTOLERANCEMODE(0);
  const double backward = kvtT3PH(p, h);
  EXPECT_EQ(backward, Water().T3APHBACK(p, h));
  kvtSETTOLERANCEMODE(1);
  const double refined = kvtT3PH(p, h), rho = 1 / kvtV3PH(p, h);
  EXPECT_NE(backward, refined);
  EXPECT_NEAR(backward, refined, 0.025);
  EXPECT_REL(kvtP3RT(rho, refined), p, 1e-11);
  EXPECT_REL(kvtH3RT(rho, refined), h, 1e-11);
}

// Out of passes, every refined inversion fails with error 3; with the mode
// off only T3RH iterates, so only it still fails. The pair outputs fail the
// same way, and keep the values the one pass reached: already closer to the
// state than the start. T3RH iterates from 743.15 K in either mode.
TEST_F(Inversions3, IterationLimitGivesError3) {
  const double p = 50e6, h = 2000e3, s = 4200, rho = 520;
  const struct { Fn f; double a, b; } refined[] = {
      {kvtT3PH, p, h}, {kvtV3PH, p, h}, {kvtT3PS, p, s}, {kvtV3PS, p, s},
      {kvtP3HS, h, s}, {kvtT3HS, h, s}, {kvtV3HS, h, s}, {kvtT3RH, rho, h}};
  kvtSETMAXITERATION(1);
  for (const auto& c : refined) EXPECT_CODE(c.f(c.a, c.b), 3);
  double o1 = 0, o2 = 0, r1 = 0, t1 = 0, rhoExact = 0, tExact = 0, rho0 = 0, t0 = 0;
  EXPECT_CODE(kvtPT3HS(h, s, &o1, &o2), 3);
  EXPECT_CODE(kvtRT3HS(h, s, &r1, &t1), 3);
  kvtSETMAXITERATION(100);
  kvtRT3HS(h, s, &rhoExact, &tExact);
  kvtSETTOLERANCEMODE(0);
  kvtRT3HS(h, s, &rho0, &t0);
  EXPECT_LT(std::fabs(t1 - tExact), std::fabs(t0 - tExact));
  EXPECT_LT(std::fabs(r1 - rhoExact), std::fabs(rho0 - rhoExact));
  kvtSETMAXITERATION(1);
  for (const auto& c : refined) EXPECT_CODE(c.f(c.a, c.b), c.f == kvtT3RH ? 3 : 0);
  EXPECT_EQ(kvtPT3HS(h, s, &o1, &o2), 1.0);
  EXPECT_EQ(kvtRT3HS(h, s, &o1, &o2), 1.0);
  kvtSETMAXITERATION(100);
  const double h650 = kvtH3RT(500, 650);
  EXPECT_REL(kvtT3RH(500, h650), 650, 1e-11);
  kvtSETMAXITERATION(3);
  EXPECT_CODE(kvtT3RH(500, h650), 3);
}

}  // namespace
