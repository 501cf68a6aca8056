// State areas by p,h, p,s and h,s, and the composites that stand on them:
// they agree with the p,T composites at the same states in every area, and
// with the wet-steam functions in the wet area.
#include <gtest/gtest.h>

#include <cmath>

#include "frame/engine.h"
#include "kvtcore.h"

namespace {

class CompositesPHS : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
  }
};

bool Near(double a, double b, double rel) { return std::fabs(a - b) <= rel * std::fabs(b); }

// Single-phase states of every area, away from the boundaries.
const struct { double p, T; int area; } kStates[] = {
    {1e5, 300, 1},   {3e6, 500, 1},    {50e6, 600, 1},  {1e8, 620, 1},
    {1e4, 400, 2},   {1e6, 600, 2},    {15e6, 800, 2},  {80e6, 1000, 2},
    {25e6, 650, 3},  {50e6, 700, 3},   {22.5e6, 647.5, 3}, {1e8, 800, 3},
    {5e5, 1500, 5},  {8e6, 2000, 5},
};

TEST_F(CompositesPHS, AreasOfSinglePhaseStates) {
  for (const auto& st : kStates) {
    SCOPED_TRACE(testing::Message() << "p=" << st.p << " T=" << st.T);
    const double h = kvtHPT(st.p, st.T), s = kvtSPT(st.p, st.T);
    EXPECT_EQ(kvtWATERSTATEAREAPH(st.p, h), st.area);
    EXPECT_EQ(kvtWATERSTATEAREAPS(st.p, s), st.area);
    EXPECT_EQ(kvtWATERSTATEAREAHS(h, s), st.area);
  }
}

TEST_F(CompositesPHS, AreasAtTheirEdges) {
  const double p = 1e6, Ts = kvtTSP(p);
  // On the saturated-steam enthalpy: steam; on the water one: liquid.
  EXPECT_EQ(kvtWATERSTATEAREAPH(p, kvtHSST(Ts)), 2);
  EXPECT_EQ(kvtWATERSTATEAREAPH(p, kvtHSWT(Ts)), 1);
  EXPECT_EQ(kvtWATERSTATEAREAPH(p, (kvtHSWT(Ts) + kvtHSST(Ts)) / 2), 4);
  EXPECT_EQ(kvtWATERSTATEAREAPS(p, kvtSSWT(Ts)), 1);
  EXPECT_EQ(kvtWATERSTATEAREAPS(p, kvtSSST(Ts)), 2);
  // The three pressure branches meet at PSAT350 and the critical pressure.
  const double hw = kvtHPT(16529164.252621602, 600);
  EXPECT_EQ(kvtWATERSTATEAREAPH(16529164.252621602, hw), 1);
  EXPECT_EQ(kvtWATERSTATEAREAPH(22064000, kvtHPT(22064000, 700)), 2);
  EXPECT_EQ(kvtWATERSTATEAREAPH(std::nextafter(22064000.0, 1e9), kvtHPT(22064001, 650)), 3);
  // Fixed cuts of the h,s plane: above the cut enthalpy and at or below the
  // cut entropy it is steam, however high h is.
  EXPECT_EQ(kvtWATERSTATEAREAHS(2812953.67524354, 5000), 2);
  EXPECT_EQ(kvtWATERSTATEAREAHS(9e6, 7408.67489346782), 2);
  EXPECT_EQ(kvtWATERSTATEAREAHS(kvtROUGHHSSS(6000), 6000), 2);  // on the rough line
  EXPECT_EQ(kvtWATERSTATEAREAHS(kvtROUGHHSSS(6000) - 1, 6000), 4);
}

using Fn = double (*)(double, double);

TEST_F(CompositesPHS, ByPressureAndEnthalpyOrEntropyAgreeWithPT) {
  const struct { Fn byPT, byPH, byPS, byHS; double rel; } props[] = {
      {kvtVPT, kvtVPH, kvtVPS, kvtVHS, 1e-9},
      {kvtUPT, kvtUPH, kvtUPS, kvtUHS, 1e-9},
      {kvtCPPT, kvtCPPH, kvtCPPS, kvtCPHS, 1e-7},
      {kvtCVPT, kvtCVPH, kvtCVPS, kvtCVHS, 1e-7},
      {kvtWPT, kvtWPH, kvtWPS, kvtWHS, 1e-8},
      {kvtJOULETHOMPSONPT, kvtJOULETHOMPSONPH, kvtJOULETHOMPSONPS, kvtJOULETHOMPSONHS, 1e-6},
      {kvtTHERMCONDPT, kvtTHERMCONDPH, kvtTHERMCONDPS, kvtTHERMCONDHS, 1e-8},
      {kvtDYNVISPT, kvtDYNVISPH, kvtDYNVISPS, kvtDYNVISHS, 1e-8},
      {kvtKINVISPT, kvtKINVISPH, kvtKINVISPS, kvtKINVISHS, 1e-8},
      {kvtPRANDTLEPT, kvtPRANDTLEPH, kvtPRANDTLEPS, kvtPRANDTLEHS, 1e-7},
      {kvtKPT, kvtKPH, kvtKPS, kvtKHS, 1e-7},
  };
  for (const auto& st : kStates) {
    SCOPED_TRACE(testing::Message() << "p=" << st.p << " T=" << st.T);
    const double h = kvtHPT(st.p, st.T), s = kvtSPT(st.p, st.T);
    EXPECT_TRUE(Near(kvtTPH(st.p, h), st.T, 1e-10));
    EXPECT_TRUE(Near(kvtTPS(st.p, s), st.T, 1e-10));
    EXPECT_TRUE(Near(kvtSPH(st.p, h), s, 1e-9));
    EXPECT_TRUE(Near(kvtHPS(st.p, s), h, 1e-10));
    EXPECT_TRUE(Near(kvtTHS(h, s), st.T, 1e-9));
    EXPECT_TRUE(Near(kvtPHS(h, s), st.p, 1e-8));
    double p = 0, T = 0;
    EXPECT_EQ(kvtPTHS(h, s, &p, &T), 1.0);
    EXPECT_TRUE(Near(p, st.p, 1e-8));
    EXPECT_TRUE(Near(T, st.T, 1e-9));
    for (const auto& f : props) {
      const double ref = f.byPT(st.p, st.T);
      EXPECT_TRUE(Near(f.byPH(st.p, h), ref, f.rel)) << f.byPH(st.p, h) << " vs " << ref;
      EXPECT_TRUE(Near(f.byPS(st.p, s), ref, f.rel)) << f.byPS(st.p, s) << " vs " << ref;
      EXPECT_TRUE(Near(f.byHS(h, s), ref, f.rel * 10)) << f.byHS(h, s) << " vs " << ref;
    }
  }
}

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
      if (p < 16e6) {  // the h,s plane's wet area lies under the rough lines
        EXPECT_NEAR(kvtXHS(h, s), x, 1e-6);
        EXPECT_NEAR(kvtTHS(h, s), T, 1e-6);
        EXPECT_NEAR(kvtPHS(h, s), kvtPST(kvtTHS(h, s)), 1e-6 * p);
        double pp = 0, TT = 0;
        EXPECT_EQ(kvtPTHS(h, s, &pp, &TT), 1.0);
        EXPECT_EQ(pp, kvtPST(TT));
      }
    }
  }
  // Halfway between the saturated enthalpies: the mean of the volumes.
  const double p = 1e6, T = kvtTSP(p);
  const double hmid = (kvtHSWT(T) + kvtHSST(T)) / 2;
  EXPECT_TRUE(Near(kvtVPH(p, hmid), (kvtVSWT(T) + kvtVSST(T)) / 2, 1e-12));
}

// Between 16.5 MPa and the critical pressure the saturated enthalpies come
// from region 3, and a state a little off the line must not take the wrong
// phase.
TEST_F(CompositesPHS, NearSaturationBelowTheCriticalPressure) {
  for (double p : {16.6e6, 18e6, 20e6, 21.5e6, 22e6}) {
    const double Ts = kvtTSP(p);
    for (double dT : {-2.0, -0.2, 0.2, 2.0}) {
      SCOPED_TRACE(testing::Message() << "p=" << p << " dT=" << dT);
      const double T = Ts + dT, h = kvtHPT(p, T), s = kvtSPT(p, T);
      const int area = kvtWATERSTATEAREA2(p, T);
      EXPECT_EQ(kvtWATERSTATEAREAPH(p, h), area);
      EXPECT_EQ(kvtWATERSTATEAREAPS(p, s), area);
      EXPECT_TRUE(Near(kvtTPH(p, h), T, 1e-10));
      EXPECT_TRUE(Near(kvtTPS(p, s), T, 1e-10));
      EXPECT_TRUE(Near(kvtHPS(p, s), h, 1e-10));
    }
  }
}

TEST_F(CompositesPHS, DrynessOutsideTheWetAreaIsAnError) {
  const double p = 1e6, T = kvtTSP(p);
  EXPECT_EQ(kvtXPH(p, kvtHSWT(T)), -1.0);  // saturated water reads as liquid
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtXPS(p, kvtSPT(p, 600)), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtXHS(kvtHPT(p, 600), kvtSPT(p, 600)), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  // The temperature by p,h on saturated water comes from region 1.
  EXPECT_EQ(kvtTPH(p, kvtHSWT(T)), kvtT1PH(p, kvtHSWT(T)));
}

TEST_F(CompositesPHS, IterationCapReachesTheCaller) {
  kvtSETMAXITERATION(1);
  const double h = kvtHPT(3e6, 500), s = kvtSPT(3e6, 500);
  for (double r : {kvtTPH(3e6, h), kvtVPS(3e6, s), kvtTHS(h, s)}) {
    EXPECT_EQ(r, -1.0);
  }
  EXPECT_EQ(kvtVPH(3e6, h), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
}

TEST_F(CompositesPHS, RangesByEnthalpyAndEntropy) {
  EXPECT_EQ(kvtTPH(600, 1e6), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtTPS(1e6, 1e5), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  // The h,s family has no range check in any mode.
  EXPECT_NE(kvtWATERSTATEAREAHS(-1e6, 1e5), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// ---- Expansion ----

TEST_F(CompositesPHS, ExpansionFromAnInlet) {
  const double p1 = 10e6, T1 = 800, h1 = kvtHPT(p1, T1), s1 = kvtSPT(p1, T1);
  // A throttle keeps h; the isentropic expansion keeps s.
  EXPECT_EQ(kvtHEXPANSIONPTPEFF(p1, T1, 1e6, 0.0), h1);
  EXPECT_TRUE(Near(kvtSEXPANSIONPTPEFF(p1, T1, 1e6, 1.0), s1, 1e-10));
  EXPECT_TRUE(Near(kvtTEXPANSIONPTPEFF(p1, T1, p1, 1.0), T1, 1e-10));
  // A real stage lies between the two.
  const double h2s = kvtHPS(1e6, s1), h2 = kvtHEXPANSIONPTPEFF(p1, T1, 1e6, 0.85);
  EXPECT_TRUE(Near(h2, h1 - 0.85 * (h1 - h2s), 1e-14));
  EXPECT_EQ(kvtTEXPANSIONPTPEFF(p1, T1, 1e6, 0.85), kvtTPH(1e6, h2));
  EXPECT_EQ(kvtVEXPANSIONPTPEFF(p1, T1, 1e6, 0.85), kvtVPH(1e6, h2));
  // A dry outlet has no dryness; a wet one has.
  EXPECT_EQ(kvtXEXPANSIONPTPEFF(p1, T1, 1e6, 0.85), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  const double x = kvtXEXPANSIONPTPEFF(p1, T1, 1e4, 0.85);
  EXPECT_GT(x, 0.7);
  EXPECT_LT(x, 1.0);
  EXPECT_TRUE(Near(x, kvtXPH(1e4, kvtHEXPANSIONPTPEFF(p1, T1, 1e4, 0.85)), 1e-14));
}

TEST_F(CompositesPHS, ExpansionFromAWetInlet) {
  const double p1 = 1e6, T1 = kvtTSP(p1);
  const double h1 = kvtHSTX(T1, 0.9);
  EXPECT_EQ(kvtHEXPANSIONPTXPEFF(p1, T1, 0.9, 1e5, 0.0), h1);
  const double x2 = kvtXEXPANSIONPTXPEFF(p1, T1, 0.9, 1e5, 1.0);
  EXPECT_TRUE(Near(kvtSPH(1e5, kvtHEXPANSIONPTXPEFF(p1, T1, 0.9, 1e5, 1.0)),
                   kvtSSTX(T1, 0.9), 1e-10));
  EXPECT_LT(x2, 0.9);
  // Away from the line x1 is ignored.
  EXPECT_EQ(kvtTEXPANSIONPTXPEFF(10e6, 800, 0.3, 1e6, 0.9),
            kvtTEXPANSIONPTPEFF(10e6, 800, 1e6, 0.9));
  EXPECT_EQ(kvtTEXPANSIONPTXPEFF(1e6, 400, 1.5, 1e5, 0.9), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
}

}  // namespace
