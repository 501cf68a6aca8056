// Metastable (subcooled) steam by p, T: the supplementary IAPWS-IF97 equation
// against its verification values, its range rule at the edges, and the
// derived quantities.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "forward_checks.h"
#include "frame/engine.h"
#include "frame/ranges.h"
#include "kvtcore.h"

namespace {

using kvt_test::Check;
using kvt_test::ExpectNine;
using kvt_test::Fn;

const double kNaN = std::numeric_limits<double>::quiet_NaN();

class Metastable : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
  }
};

// IF97 Table 18, in SI base units.
const Check kTable18[] = {
    {1e6, 450, 0.192516540, 0.276881115e7, 0.257629461e7, 0.656660377e4, 0.276349265e4,
     0.498408101e3},
    {1e6, 440, 0.186212297, 0.274015123e7, 0.255393894e7, 0.650218759e4, 0.298166443e4,
     0.489363295e3},
    {1.5e6, 450, 0.121685206, 0.272134539e7, 0.253881758e7, 0.629170440e4, 0.362795578e4,
     0.481941819e3},
};

const Fn kAll[] = {kvtVMSPT,         kvtUMSPT,      kvtSMSPT,         kvtHMSPT,
                   kvtCPMSPT,        kvtCVMSPT,     kvtWMSPT,         kvtTHERMCONDMSPT,
                   kvtDYNVISMSPT,    kvtPRANDTLEMSPT, kvtKINVISMSPT,  kvtKMSPT,
                   kvtJOULETHOMPSONMSPT};

TEST_F(Metastable, MatchesPublishedCheckValues) {
  for (const Check& c : kTable18) {
    SCOPED_TRACE(testing::Message() << "p=" << c.p << " T=" << c.T);
    ExpectNine(c.v, kvtVMSPT(c.p, c.T), "v");
    ExpectNine(c.h, kvtHMSPT(c.p, c.T), "h");
    ExpectNine(c.u, kvtUMSPT(c.p, c.T), "u");
    ExpectNine(c.s, kvtSMSPT(c.p, c.T), "s");
    ExpectNine(c.cp, kvtCPMSPT(c.p, c.T), "cp");
    ExpectNine(c.w, kvtWMSPT(c.p, c.T), "w");
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
}

// The range rule runs cores on the power tables just before the evaluation:
// with and without it the results agree to the bit.
TEST_F(Metastable, RangeRuleLeavesTheResultsAlone) {
  for (Fn f : kAll) {
    const double checked = f(1e6, 450);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    kvtSETCHECKRANGEMODE(0);
    EXPECT_EQ(f(1e6, 450), checked);
    kvtSETCHECKRANGEMODE(1);
  }
}

TEST_F(Metastable, SaturationTemperaturePassesWithItsMargin) {
  for (double p : {1e4, 1e6, 5e6}) {
    SCOPED_TRACE(p);
    const double Ts = kvtTSP(p);
    const double v = kvtVMSPT(p, Ts);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    // The metastable equation, not region 2, though close to it on the line.
    EXPECT_EQ(v, kvt::engine().water.VMSPT(p, Ts));
    EXPECT_NE(v, kvtV2PT(p, Ts));
    EXPECT_NEAR(v, kvtV2PT(p, Ts), 1e-3 * v);

    const double Tb = (1 + 2e-12) * Ts;
    EXPECT_NE(kvtHMSPT(p, Tb), -1.0);
    EXPECT_EQ(kvtHMSPT(p, std::nextafter(Tb, 1e4)), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 2);
  }
  // The margin is the tolerance at the moment of the call.
  const double T = kvtTSP(1e6) * (1 + 1e-7);
  EXPECT_EQ(kvtVMSPT(1e6, T), -1.0);
  kvtSETTOLERANCE(1e-6);
  EXPECT_NE(kvtVMSPT(1e6, T), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// Below the saturation temperature the state must stay above the 5 % moisture
// line, judged by the dryness its enthalpy would give on the line at Tb.
TEST_F(Metastable, WetStatesFailByTheirDryness) {
  const double p = 1e6, F = 1 + 2e-12, Tb = F * kvtTSP(p);
  const struct { double T; bool passes; } cases[] = {
      {440, true}, {430, true}, {420, false}, {400, false}, {350, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.T);
    kvtSETCHECKRANGEMODE(0);
    const double y = kvtXSTH(Tb, kvtHMSPT(p, c.T));
    kvtSETCHECKRANGEMODE(1);
    EXPECT_EQ(y >= 0.95 * F, c.passes) << y;
    const double v = kvtVMSPT(p, c.T);
    EXPECT_EQ(kvtGETLASTERROR(), c.passes ? 0 : 2);
    EXPECT_EQ(v == -1.0, !c.passes);
  }
}

// The pressure test reads as a range but can hold for no real number: it
// stops NaN and nothing else.
TEST_F(Metastable, PressureTestStopsOnlyNaN) {
  using kvt::rules::MSPressure;
  const double inf = std::numeric_limits<double>::infinity();
  for (double p : {611.212677444343, 1e7, 0.0, -1.0, 100.0, 5e7, 1e9, inf, -inf})
    EXPECT_FALSE(MSPressure(p)) << p;
  EXPECT_TRUE(MSPressure(kNaN));
  EXPECT_TRUE(MSPressure(-kNaN));

  // Below the lowest pressure the equation is simply evaluated.
  EXPECT_EQ(kvtVMSPT(100, 250), kvt::engine().water.VMSPT(100, 250));
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  // At 50 MPa the saturation formula, extrapolated, gives about 650 K: 600 K
  // passes the first two tests, and what stops the call is not a range error
  // but the saturated phases above the critical temperature.
  EXPECT_EQ(kvtVMSPT(50e6, 600), -1.0);
  EXPECT_NE(kvtGETLASTERROR(), 2);
  EXPECT_NE(kvtGETLASTERROR(), 0);

  EXPECT_EQ(kvtVMSPT(kNaN, 450), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtVMSPT(1e6, kNaN), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST_F(Metastable, WithoutRangeModeNothingIsChecked) {
  kvtSETCHECKRANGEMODE(0);
  for (double T : {350.0, 500.0}) {  // deep in the wet area; above saturation
    EXPECT_EQ(kvtHMSPT(1e6, T), kvt::engine().water.HMSPT(1e6, T));
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
  EXPECT_EQ(kvtVMSPT(kNaN, 450), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

TEST_F(Metastable, DerivedQuantitiesFollowTheirFormulas) {
  for (const Check& c : kTable18) {
    const double p = c.p, T = c.T;
    SCOPED_TRACE(testing::Message() << "p=" << p << " T=" << T);
    const double v = kvtVMSPT(p, T), cp = kvtCPMSPT(p, T), w = kvtWMSPT(p, T);
    const double lambda = kvtTHERMCONDRT(1 / v, T), mu = kvtDYNVISRT(1 / v, T);
    EXPECT_EQ(kvtTHERMCONDMSPT(p, T), lambda);
    EXPECT_EQ(kvtDYNVISMSPT(p, T), mu);
    EXPECT_EQ(kvtPRANDTLEMSPT(p, T), mu * cp / lambda);
    EXPECT_EQ(kvtKINVISMSPT(p, T), mu * v);
    EXPECT_EQ(kvtKMSPT(p, T), w * w / (v * p));

    // Joule-Thomson (T (dv/dT)p - v) / cp, and cv from the speed of sound,
    // w^2 = -v^2 (dp/dv)T cp / cv, by central differences.
    const double dT = 1e-5 * T, dp = 1e-5 * p;
    const double dvdT = (kvtVMSPT(p, T + dT) - kvtVMSPT(p, T - dT)) / (2 * dT);
    const double dvdp = (kvtVMSPT(p + dp, T) - kvtVMSPT(p - dp, T)) / (2 * dp);
    const double jt = kvtJOULETHOMPSONMSPT(p, T);
    EXPECT_NEAR(jt, (T * dvdT - v) / cp, 1e-6 * std::fabs(jt));
    const double cv = kvtCVMSPT(p, T);
    EXPECT_NEAR(cv, -v * v * cp / (w * w * dvdp), 1e-6 * cv);
  }
}

}  // namespace
