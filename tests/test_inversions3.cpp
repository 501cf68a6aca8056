// Region 3 by p,h, p,s, h,s and density,h: the backward equations against the
// releases' check values, the subregion splits, round trips through the
// refined solves over the region, and the iteration limits.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "frame/engine.h"
#include "kvtcore.h"

namespace {

class Inversions3 : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
    kvtSETLASTERROR(0);
  }
};

kvt::WaterCalculator& water() { return kvt::engine().water; }

// The check values are printed to ten significant figures.
void ExpectTen(double expected, double actual, const char* what) {
  const double unit = std::pow(10.0, std::floor(std::log10(std::fabs(expected))) - 9);
  EXPECT_NEAR(actual, expected, 0.5 * unit) << what;
}

struct Backward {
  double p, x, T, v;  // x is h or s
};

// Revised release on T(p,h), v(p,h), T(p,s), v(p,s) for region 3: 3a rows
// first, then 3b.
const Backward kByPH[] = {
    {20e6, 1700e3, 629.3083892, 0.001749903962}, {50e6, 2000e3, 690.5718338, 0.001908139035},
    {100e6, 2100e3, 733.6163014, 0.001676229776}, {20e6, 2500e3, 641.8418053, 0.006670547043},
    {50e6, 2400e3, 735.1848618, 0.002801244590}, {100e6, 2700e3, 842.0460876, 0.002404234998},
};
const Backward kByPS[] = {
    {20e6, 3800, 628.2959869, 0.001733791463}, {50e6, 3600, 629.7158726, 0.001469680170},
    {100e6, 4000, 705.6880237, 0.001555893131}, {20e6, 5000, 640.1176443, 0.006262101987},
    {50e6, 4500, 716.3687517, 0.002332634294}, {100e6, 5000, 847.4332825, 0.002449610757},
};
// Release on p(h,s) for region 3.
const double kByHS[][3] = {
    {1700e3, 3800, 25.55703246e6}, {2000e3, 4200, 45.40873468e6},
    {2100e3, 4300, 60.78123340e6}, {2600e3, 5100, 34.34999263e6},
    {2400e3, 4700, 63.63924887e6}, {2700e3, 5000, 88.39043281e6},
};

TEST_F(Inversions3, BackwardEquationsMatchPublishedCheckValues) {
  kvtSETTOLERANCEMODE(0);
  for (const Backward& c : kByPH) {
    SCOPED_TRACE(testing::Message() << "p=" << c.p << " h=" << c.x);
    ExpectTen(c.T, kvtT3PH(c.p, c.x), "T(p,h)");
    ExpectTen(c.v, kvtV3PH(c.p, c.x), "v(p,h)");
  }
  for (const Backward& c : kByPS) {
    SCOPED_TRACE(testing::Message() << "p=" << c.p << " s=" << c.x);
    ExpectTen(c.T, kvtT3PS(c.p, c.x), "T(p,s)");
    ExpectTen(c.v, kvtV3PS(c.p, c.x), "v(p,s)");
  }
  for (const auto& c : kByHS) {
    SCOPED_TRACE(testing::Message() << "h=" << c[0] << " s=" << c[1]);
    ExpectTen(c[2], kvtP3HS(c[0], c[1]), "p(h,s)");
    // The rest of the group stands on that pressure.
    double p = 0, T = 0, rho = 0, T2 = 0;
    EXPECT_EQ(kvtPT3HS(c[0], c[1], &p, &T), 1.0);
    EXPECT_EQ(p, kvtP3HS(c[0], c[1]));
    EXPECT_EQ(T, water().T3PHBACK(p, c[0]));
    EXPECT_EQ(kvtT3HS(c[0], c[1]), T);
    EXPECT_EQ(kvtV3HS(c[0], c[1]), water().V3PSBACK(p, c[1]));
    EXPECT_EQ(kvtRT3HS(c[0], c[1], &rho, &T2), 1.0);
    EXPECT_EQ(rho, 1.0 / water().V3PSBACK(p, c[1]));
    EXPECT_EQ(T2, T);
  }
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  ExpectTen(2095.936454e3, water().H3AB(25e6), "h3ab");
}

// h on the line h3ab(p) and s at the split entropy belong to 3a; the next
// double above them to 3b.
TEST_F(Inversions3, SplitValuesBelongToSubregion3a) {
  kvtSETTOLERANCEMODE(0);
  const double sAB = 4412.02148223476, sUp = std::nextafter(sAB, 1e10);
  for (double p : {18e6, 25e6, 60e6, 100e6}) {
    SCOPED_TRACE(testing::Message() << "p=" << p);
    const double h = water().H3AB(p), hUp = std::nextafter(h, 1e10);
    EXPECT_EQ(kvtT3PH(p, h), water().T3APHBACK(p, h));
    EXPECT_EQ(kvtV3PH(p, h), water().V3APHBACK(p, h));
    EXPECT_EQ(kvtT3PH(p, hUp), water().T3BPHBACK(p, hUp));
    EXPECT_EQ(kvtV3PH(p, hUp), water().V3BPHBACK(p, hUp));
    EXPECT_NE(water().T3APHBACK(p, h), water().T3BPHBACK(p, h));

    EXPECT_EQ(kvtT3PS(p, sAB), water().T3APSBACK(p, sAB));
    EXPECT_EQ(kvtV3PS(p, sAB), water().V3APSBACK(p, sAB));
    EXPECT_EQ(kvtT3PS(p, sUp), water().T3BPSBACK(p, sUp));
    EXPECT_EQ(kvtV3PS(p, sUp), water().V3BPSBACK(p, sUp));
    EXPECT_NE(water().T3APSBACK(p, sAB), water().T3BPSBACK(p, sAB));
  }
  for (double h : {2000e3, 2100e3, 2200e3}) {
    EXPECT_EQ(kvtP3HS(h, sAB), water().P3AHSBACK(h, sAB));
    EXPECT_EQ(kvtP3HS(h, sUp), water().P3BHSBACK(h, sUp));
    EXPECT_NE(water().P3AHSBACK(h, sAB), water().P3BHSBACK(h, sAB));
  }
}

// In the (h, s) group T and v each take their own subregion: here h lies
// below h3ab at the backward pressure, while s is above the split.
TEST_F(Inversions3, HsGroupSplitsTAndVEachByItsOwnRule) {
  kvtSETTOLERANCEMODE(0);
  const double h = 2160e3, s = 4412.3;
  const double p = kvtP3HS(h, s);
  ASSERT_LE(h, water().H3AB(p));
  ASSERT_GT(s, 4412.02148223476);
  EXPECT_EQ(kvtT3HS(h, s), water().T3APHBACK(p, h));
  EXPECT_EQ(kvtV3HS(h, s), water().V3BPSBACK(p, s));
}

struct State {
  double rho, T;
};

// Region 3 states: a grid by p and T from 623.15 K up to the B23 line, the
// critical neighbourhood, and both sides of the saturation line from 16.5 MPa
// up to the critical point, a hair away from it.
std::vector<State> RegionStates() {
  std::vector<State> out;
  for (double p = 16.6e6; p <= 100e6; p += 3.5e6) {
    const double pm = p / 1e6;
    const double t23 = 572.54459862746 + std::sqrt((pm - 13.91883977887) / 1.0192970039326e-3);
    for (double T = 623.15; T <= t23; T += 3) {
      if (T < 647.096 && std::fabs(p / kvtPST(T) - 1) < 0.02) continue;
      out.push_back({kvtR3PT(p, T), T});
    }
  }
  for (double T : {647.0, 647.096, 647.2, 648.0, 650.0})
    for (double rho : {250.0, 300.0, 315.0, 322.0, 330.0, 345.0, 400.0})
      if (T > 647.096 || std::fabs(rho - 322) > 20) out.push_back({rho, T});
  for (double T = 624.0; T < 647.0; T += 1.5) {
    const double ps = kvtPST(T);
    const double liquid = kvtR3PTR0(ps, T, kvtROUGHRSWT(T));
    const double vapour = kvtR3PTR0(ps, T, kvtROUGHRSST(T));
    out.push_back({liquid * (1 + 1e-4), T});
    // On the steam side region 3 begins at B23.
    const double p23 = (348.05185628969 - 1.1671859879975 * T + 1.0192970039326e-3 * T * T) * 1e6;
    if (ps > p23 * 1.001) out.push_back({vapour * (1 - 1e-4), T});
  }
  return out;
}

double Rel(double a, double b) { return std::fabs(a / b - 1); }

// Refined, every inversion comes back to the state it started from within a
// few times the tolerance; the backward equations alone stay within the
// deviations their releases permit (25 mK in T, 0.01 % in v and in p).
TEST_F(Inversions3, RoundTripsOverTheRegion) {
  const std::vector<State> states = RegionStates();
  ASSERT_GT(states.size(), 300u);
  const double band = 10 * kvtGETTOLERANCE();
  for (const State& st : states) {
    const double rho = st.rho, T = st.T;
    SCOPED_TRACE(testing::Message() << "rho=" << rho << " T=" << T);
    const double p = kvtP3RT(rho, T), h = kvtH3RT(rho, T), s = kvtS3RT(rho, T);

    kvtSETTOLERANCEMODE(1);
    EXPECT_LE(Rel(kvtT3PH(p, h), T), band);
    EXPECT_LE(Rel(kvtV3PH(p, h) * rho, 1), band);
    EXPECT_LE(Rel(kvtT3PS(p, s), T), band);
    EXPECT_LE(Rel(kvtV3PS(p, s) * rho, 1), band);
    double pp = 0, tp = 0, rr = 0, tr = 0;
    EXPECT_EQ(kvtPT3HS(h, s, &pp, &tp), 1.0);
    EXPECT_LE(Rel(pp, p), band);
    EXPECT_LE(Rel(tp, T), band);
    EXPECT_EQ(kvtRT3HS(h, s, &rr, &tr), 1.0);
    EXPECT_LE(Rel(rr, rho), band);
    EXPECT_LE(Rel(tr, T), band);
    EXPECT_LE(Rel(kvtP3HS(h, s), p), band);
    EXPECT_LE(Rel(kvtT3HS(h, s), T), band);
    EXPECT_LE(Rel(kvtV3HS(h, s) * rho, 1), band);
    EXPECT_LE(Rel(kvtT3RH(rho, h), T), band);
    EXPECT_EQ(kvtGETLASTERROR(), 0);

    kvtSETTOLERANCEMODE(0);
    EXPECT_LE(std::fabs(kvtT3PH(p, h) - T), 0.025);
    EXPECT_LE(std::fabs(kvtT3PS(p, s) - T), 0.025);
    EXPECT_LE(Rel(kvtV3PH(p, h) * rho, 1), 1e-4);
    EXPECT_LE(Rel(kvtV3PS(p, s) * rho, 1), 1e-4);
    EXPECT_LE(Rel(kvtP3HS(h, s), p), 1e-4);
  }
}

// The refinement is a real one: at the edge case of 25 MPa and 1863.43
// kJ/kg, in 3a, the backward value carries a small error that the
// iteration removes.
TEST_F(Inversions3, ModeZeroReturnsTheBackwardValueUnrefined) {
  const double p = 25e6, h = 1863.43e3;
  ASSERT_LE(h, water().H3AB(p));
  kvtSETTOLERANCEMODE(0);
  const double backward = kvtT3PH(p, h);
  EXPECT_EQ(backward, water().T3APHBACK(p, h));
  kvtSETTOLERANCEMODE(1);
  const double refined = kvtT3PH(p, h);
  EXPECT_NE(backward, refined);
  EXPECT_NEAR(backward, refined, 0.025);
  const double rho = 1 / kvtV3PH(p, h);
  EXPECT_NEAR(kvtP3RT(rho, refined), p, p * 1e-11);
  EXPECT_NEAR(kvtH3RT(rho, refined), h, h * 1e-11);
}

using Fn = double (*)(double, double);

// Out of passes, every refined inversion fails with error 3; with the mode
// off only T3RH iterates, so only it still fails.
TEST_F(Inversions3, IterationLimitGivesError3) {
  const double p = 50e6, h = 2000e3, s = 4200, rho = 520;
  const struct {
    Fn f;
    double a, b;
  } refined[] = {{kvtT3PH, p, h},  {kvtV3PH, p, h},  {kvtT3PS, p, s},  {kvtV3PS, p, s},
                 {kvtP3HS, h, s},  {kvtT3HS, h, s},  {kvtV3HS, h, s},  {kvtT3RH, rho, h}};
  kvtSETMAXITERATION(1);
  for (const auto& c : refined) {
    EXPECT_EQ(c.f(c.a, c.b), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 3);
  }
  // The pair outputs fail the same way, and keep the values the one pass
  // reached: already closer to the state than the start.
  double o1 = 0, o2 = 0;
  EXPECT_EQ(kvtPT3HS(h, s, &o1, &o2), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  EXPECT_EQ(kvtRT3HS(h, s, &o1, &o2), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  kvtSETMAXITERATION(100);
  double rhoExact = 0, tExact = 0;
  kvtRT3HS(h, s, &rhoExact, &tExact);
  kvtSETTOLERANCEMODE(0);
  double rho0 = 0, t0 = 0;
  kvtRT3HS(h, s, &rho0, &t0);
  EXPECT_LT(std::fabs(o2 - tExact), std::fabs(t0 - tExact));
  EXPECT_LT(std::fabs(o1 - rhoExact), std::fabs(rho0 - rhoExact));

  kvtSETMAXITERATION(1);
  for (const auto& c : refined) {
    const double r = c.f(c.a, c.b);
    if (c.f == kvtT3RH) {
      EXPECT_EQ(r, -1.0);
      EXPECT_EQ(kvtGETLASTERROR(), 3);
    } else {
      EXPECT_GT(r, 0.0);
      EXPECT_EQ(kvtGETLASTERROR(), 0);
    }
  }
  EXPECT_EQ(kvtPT3HS(h, s, &o1, &o2), 1.0);
  EXPECT_EQ(kvtRT3HS(h, s, &o1, &o2), 1.0);
}

// T3RH has no backward equation: it iterates from 743.15 K in either mode,
// and a small cap stops it.
TEST_F(Inversions3, DensityEnthalpySolveAlwaysIterates) {
  const double rho = 500, T = 650, h = kvtH3RT(rho, T);
  kvtSETTOLERANCEMODE(0);
  EXPECT_NEAR(kvtT3RH(rho, h), T, T * 1e-11);
  kvtSETMAXITERATION(3);
  EXPECT_EQ(kvtT3RH(rho, h), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
}

}  // namespace
