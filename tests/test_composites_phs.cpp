// State areas by p,h, p,s and h,s, and the composites that stand on them:
// they agree with the p,T composites at the same states in every area, and
// with the wet-steam functions in the wet area; the expansion of steam.
#include "kvt_test.h"

namespace {

using namespace kvt_test;
using CompositesPHS = Defaults;

// Single-phase states of every area, away from the boundaries.
const struct { double p, T; int area; } kStates[] = {
    {1e5, 300, 1},  {3e6, 500, 1},  {50e6, 600, 1}, {1e8, 620, 1},      {1e4, 400, 2},
    {1e6, 600, 2},  {15e6, 800, 2}, {80e6, 1000, 2}, {25e6, 650, 3},     {50e6, 700, 3},
    {22.5e6, 647.5, 3}, {1e8, 800, 3}, {5e5, 1500, 5}, {8e6, 2000, 5},
};

TEST_F(CompositesPHS, ByPressureAndEnthalpyOrEntropyAgreeWithPT) {
  const struct { const char* q; double rel; } props[] = {
      {"V", 1e-9}, {"U", 1e-9}, {"CP", 1e-7}, {"CV", 1e-7}, {"W", 1e-8}, {"JOULETHOMPSON", 1e-6},
      {"THERMCOND", 1e-8}, {"DYNVIS", 1e-8}, {"KINVIS", 1e-8}, {"PRANDTLE", 1e-7}, {"K", 1e-7}};
  for (const auto& st : kStates) {
    SCOPED_TRACE(testing::Message() << "p=" << st.p << " T=" << st.T);
    const double h = kvtHPT(st.p, st.T), s = kvtSPT(st.p, st.T);
    EXPECT_EQ(kvtWATERSTATEAREAPH(st.p, h), st.area);
    EXPECT_EQ(kvtWATERSTATEAREAPS(st.p, s), st.area);
    EXPECT_EQ(kvtWATERSTATEAREAHS(h, s), st.area);
    EXPECT_REL(kvtTPH(st.p, h), st.T, 1e-10);
    EXPECT_REL(kvtTPS(st.p, s), st.T, 1e-10);
    EXPECT_REL(kvtSPH(st.p, h), s, 1e-9);
    EXPECT_REL(kvtHPS(st.p, s), h, 1e-10);
    EXPECT_REL(kvtTHS(h, s), st.T, 1e-9);
    EXPECT_REL(kvtPHS(h, s), st.p, 1e-8);
    double p = 0, T = 0;
    EXPECT_EQ(kvtPTHS(h, s, &p, &T), 1.0);
    EXPECT_REL(p, st.p, 1e-8);
    EXPECT_REL(T, st.T, 1e-9);
    for (const auto& f : props) {
      const double ref = D2(f.q + std::string("PT"))(st.p, st.T);
      EXPECT_REL(D2(f.q + std::string("PH"))(st.p, h), ref, f.rel) << f.q;
      EXPECT_REL(D2(f.q + std::string("PS"))(st.p, s), ref, f.rel) << f.q;
      EXPECT_REL(D2(f.q + std::string("HS"))(h, s), ref, f.rel * 10) << f.q;
    }
  }
}

TEST_F(CompositesPHS, AreasAtTheirEdges) {
  const double p = 1e6, Ts = kvtTSP(p), hs6 = kvtROUGHHSSS(6000);
  const struct { const char* by; double a, b; int area; } cases[] = {
      // On the saturated-steam enthalpy: steam; on the water one: liquid.
      {"PH", p, kvtHSST(Ts), 2}, {"PH", p, kvtHSWT(Ts), 1}, {"PH", p, (kvtHSWT(Ts) + kvtHSST(Ts)) / 2, 4},
      {"PS", p, kvtSSWT(Ts), 1}, {"PS", p, kvtSSST(Ts), 2},
      // The three pressure branches meet at PSAT350 and the critical pressure.
      {"PH", 16529164.252621602, kvtHPT(16529164.252621602, 600), 1},
      {"PH", 22064000, kvtHPT(22064000, 700), 2},
      {"PH", std::nextafter(22064000.0, 1e9), kvtHPT(22064001, 650), 3},
      // Fixed cuts of the h,s plane: above the cut enthalpy and at or below
      // the cut entropy it is steam, however high h is; on the rough line too.
      {"HS", 2812953.67524354, 5000, 2}, {"HS", 9e6, 7408.67489346782, 2},
      {"HS", hs6, 6000, 2}, {"HS", hs6 - 1, 6000, 4}};
  for (const auto& c : cases) {
    const auto area = Export<int32_t (*)(double, double)>("WATERSTATEAREA" + std::string(c.by), "I2");
    EXPECT_EQ(area(c.a, c.b), c.area) << c.by << " " << c.a << " " << c.b;
  }
}

// In the wet area they are the wet-steam functions at the saturation
// temperature (the h,s plane's wet area lies under the rough lines, below
// 16 MPa); halfway between the saturated enthalpies the volume is the mean.
TEST_F(CompositesPHS, WetStatesUseTheWetSteamFunctions) {
  for (double p : {1e4, 1e6, 10e6, 18e6}) {
    const double T = kvtTSP(p);
    for (double x : {0.1, 0.6}) {
      SCOPED_TRACE(testing::Message() << "p=" << p << " x=" << x);
      const double h = kvtHSTX(T, x), s = kvtSSTX(T, x);
      EXPECT_EQ(kvtTPH(p, h), T);
      EXPECT_EQ(kvtTPS(p, s), T);
      EXPECT_NEAR(kvtXPH(p, h), x, 1e-9);
      EXPECT_NEAR(kvtXPS(p, s), x, 1e-9);
      EXPECT_EQ(kvtVPH(p, h), kvtVSTX(T, kvtXSTH(T, h)));
      EXPECT_EQ(kvtVPS(p, s), kvtVSTX(T, kvtXSTS(T, s)));
      EXPECT_EQ(kvtKPH(p, h), kvtKSTX(T, kvtXSTH(T, h)));
      EXPECT_EQ(kvtJOULETHOMPSONPH(p, h), 1 / kvtDPDTST(T));
      if (p > 16e6) continue;
      EXPECT_NEAR(kvtXHS(h, s), x, 1e-6);
      EXPECT_NEAR(kvtTHS(h, s), T, 1e-6);
      EXPECT_NEAR(kvtPHS(h, s), kvtPST(kvtTHS(h, s)), 1e-6 * p);
      double pp = 0, TT = 0;
      EXPECT_EQ(kvtPTHS(h, s, &pp, &TT), 1.0);
      EXPECT_EQ(pp, kvtPST(TT));
    }
  }
  const double T = kvtTSP(1e6);
  EXPECT_REL(kvtVPH(1e6, (kvtHSWT(T) + kvtHSST(T)) / 2), (kvtVSWT(T) + kvtVSST(T)) / 2, 1e-12);
}

// Between 16.5 MPa and the critical pressure the saturated enthalpies come
// from region 3, and a state a little off the line must not take the wrong
// phase.
TEST_F(CompositesPHS, NearSaturationBelowTheCriticalPressure) {
  for (double p : {16.6e6, 18e6, 20e6, 21.5e6, 22e6}) {
    for (double dT : {-2.0, -0.2, 0.2, 2.0}) {
      SCOPED_TRACE(testing::Message() << "p=" << p << " dT=" << dT);
      const double T = kvtTSP(p) + dT, h = kvtHPT(p, T), s = kvtSPT(p, T);
      EXPECT_EQ(kvtWATERSTATEAREAPH(p, h), kvtWATERSTATEAREA2(p, T));
      EXPECT_EQ(kvtWATERSTATEAREAPS(p, s), kvtWATERSTATEAREA2(p, T));
      EXPECT_REL(kvtTPH(p, h), T, 1e-10);
      EXPECT_REL(kvtTPS(p, s), T, 1e-10);
      EXPECT_REL(kvtHPS(p, s), h, 1e-10);
    }
  }
}

// Dryness outside the wet area (saturated water reads as liquid), ranges by
// p,h and p,s (the h,s family has none in any mode), and the iteration cap.
TEST_F(CompositesPHS, Failures) {
  const double p = 1e6, T = kvtTSP(p), h6 = kvtHPT(p, 600), s6 = kvtSPT(p, 600);
  EXPECT_CODE(kvtXPH(p, kvtHSWT(T)), 2);
  EXPECT_EQ(kvtTPH(p, kvtHSWT(T)), kvtT1PH(p, kvtHSWT(T)));  // from region 1
  EXPECT_CODE(kvtXPS(p, s6), 2);
  EXPECT_CODE(kvtXHS(h6, s6), 2);
  EXPECT_CODE(kvtTPH(600, 1e6), 2);
  EXPECT_CODE(kvtTPS(1e6, 1e5), 2);
  EXPECT_NE(kvtWATERSTATEAREAHS(-1e6, 1e5), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  const double h = kvtHPT(3e6, 500), s = kvtSPT(3e6, 500);
  kvtSETMAXITERATION(1);
  EXPECT_CODE(kvtTPH(3e6, h), 3);
  EXPECT_CODE(kvtVPS(3e6, s), 3);
  EXPECT_CODE(kvtTHS(h, s), 3);
  EXPECT_CODE(kvtVPH(3e6, h), 3);
}

// A throttle keeps h, the isentropic expansion s, and a real stage lies
// between; a dry outlet has no dryness, a wet one has. From a wet inlet the
// dryness counts on the line and is ignored away from it.
TEST_F(CompositesPHS, Expansion) {
  const double p1 = 10e6, T1 = 800, h1 = kvtHPT(p1, T1), s1 = kvtSPT(p1, T1);
  EXPECT_EQ(kvtHEXPANSIONPTPEFF(p1, T1, 1e6, 0.0), h1);
  EXPECT_REL(kvtSEXPANSIONPTPEFF(p1, T1, 1e6, 1.0), s1, 1e-10);
  EXPECT_REL(kvtTEXPANSIONPTPEFF(p1, T1, p1, 1.0), T1, 1e-10);
  const double h2 = kvtHEXPANSIONPTPEFF(p1, T1, 1e6, 0.85);
  EXPECT_REL(h2, h1 - 0.85 * (h1 - kvtHPS(1e6, s1)), 1e-14);
  EXPECT_EQ(kvtTEXPANSIONPTPEFF(p1, T1, 1e6, 0.85), kvtTPH(1e6, h2));
  EXPECT_EQ(kvtVEXPANSIONPTPEFF(p1, T1, 1e6, 0.85), kvtVPH(1e6, h2));
  EXPECT_CODE(kvtXEXPANSIONPTPEFF(p1, T1, 1e6, 0.85), 2);
  const double x = kvtXEXPANSIONPTPEFF(p1, T1, 1e4, 0.85);
  EXPECT_TRUE(x > 0.7 && x < 1.0) << x;
  EXPECT_REL(x, kvtXPH(1e4, kvtHEXPANSIONPTPEFF(p1, T1, 1e4, 0.85)), 1e-14);

  const double pw = 1e6, Tw = kvtTSP(pw);
  EXPECT_EQ(kvtHEXPANSIONPTXPEFF(pw, Tw, 0.9, 1e5, 0.0), kvtHSTX(Tw, 0.9));
  EXPECT_REL(kvtSPH(1e5, kvtHEXPANSIONPTXPEFF(pw, Tw, 0.9, 1e5, 1.0)), kvtSSTX(Tw, 0.9), 1e-10);
  EXPECT_LT(kvtXEXPANSIONPTXPEFF(pw, Tw, 0.9, 1e5, 1.0), 0.9);
  EXPECT_EQ(kvtTEXPANSIONPTXPEFF(10e6, 800, 0.3, 1e6, 0.9), kvtTEXPANSIONPTPEFF(10e6, 800, 1e6, 0.9));
  EXPECT_CODE(kvtTEXPANSIONPTXPEFF(1e6, 400, 1.5, 1e5, 0.9), 2);
}

}  // namespace
