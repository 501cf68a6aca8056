// Region 5 inversions: T by (p, h) and (p, s), (p, T) by (h, s) and by
// (density, h), with their starts, pass counts, snapping and failures.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/engine.h"
#include "kvtcore.h"

namespace {

class Inversions5 : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETTOLERANCEMODE(1);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
    kvtSETLASTERROR(0);
  }
};

// IF97 check point of region 5 (1997 equation): p = 0.5 MPa, T = 1500 K.
constexpr double kP = 500000, kT = 1500, kH = 5219763.32, kS = 9654.08431, kRho = 0.72225448;
constexpr double kTHigh = 2273.15, kTMid = 1073.15;

double PairP(double (*f)(double, double, double*, double*), double a, double b, double* T) {
  double p = 0;
  EXPECT_EQ(f(a, b, &p, T), 1.0);
  return p;
}

// The nine published figures of h and s allow T to about 1e-6 K; the exact
// forward values give it back to the tolerance. toleranceMode has no say.
TEST_F(Inversions5, TemperatureByPHAndPSAtTheCheckPoint) {
  EXPECT_NEAR(kvtT5PH(kP, kH), kT, 1e-5);
  EXPECT_NEAR(kvtT5PS(kP, kS), kT, 1e-5);
  EXPECT_NEAR(kvtT5PH(kP, kvtH5PT(kP, kT)), kT, kT * 1e-11);
  EXPECT_NEAR(kvtT5PS(kP, kvtS5PT(kP, kT)), kT, kT * 1e-11);
  EXPECT_EQ(kvtGETLASTERROR(), 0);

  const double th = kvtT5PH(kP, kH), ts = kvtT5PS(kP, kS);
  kvtSETTOLERANCEMODE(0);
  EXPECT_EQ(kvtT5PH(kP, kH), th);
  EXPECT_EQ(kvtT5PS(kP, kS), ts);
}

// T5PH stops on its third pass, T5PS on its fifth, PT5HS on its fourth and
// PT5RH on its sixteenth; stopping on the pass numbered maxIteration is a
// failure too.
TEST_F(Inversions5, PassCounts) {
  const struct {
    const char* name;
    int32_t passes;
    double (*call)();
  } cases[] = {
      {"T5PH", 3, [] { return kvtT5PH(kP, kH); }},
      {"T5PS", 5, [] { return kvtT5PS(kP, kS); }},
      {"PT5HS", 4, [] { double a, b; return kvtPT5HS(kH, kS, &a, &b); }},
      {"PT5RH", 16, [] { double a, b; return kvtPT5RH(kRho, kH, &a, &b); }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    kvtSETMAXITERATION(c.passes);
    EXPECT_EQ(c.call(), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 3);
    kvtSETMAXITERATION(c.passes + 1);
    EXPECT_NE(c.call(), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
  }
}

// Without refinement the pair by (h, s) is the crude start: T from a straight
// line in h, p from an ideal-gas estimate out of 611 Pa.
TEST_F(Inversions5, PressureAndTemperatureByHS) {
  double T = 0;
  kvtSETTOLERANCEMODE(0);
  EXPECT_NEAR(PairP(kvtPT5HS, kH, kS, &T), 477514.79, 0.01);
  EXPECT_NEAR(T, 1494.88724, 1e-5);
  EXPECT_NEAR(kvtP5HS(kH, kS), 477514.79, 0.01);
  EXPECT_NEAR(kvtT5HS(kH, kS), 1494.88724, 1e-5);

  kvtSETTOLERANCEMODE(1);
  EXPECT_NEAR(PairP(kvtPT5HS, kH, kS, &T), kP, 0.01);
  EXPECT_NEAR(T, kT, 1e-5);
  EXPECT_NEAR(kvtP5HS(kH, kS), kP, 0.01);
  EXPECT_NEAR(kvtT5HS(kH, kS), kT, 1e-5);
  EXPECT_NEAR(PairP(kvtPT5HS, kvtH5PT(kP, kT), kvtS5PT(kP, kT), &T), kP, kP * 1e-9);
  EXPECT_NEAR(T, kT, kT * 1e-9);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

TEST_F(Inversions5, PressureAndTemperatureByDensityAndH) {
  double T = 0;
  EXPECT_NEAR(PairP(kvtPT5RH, kRho, kH, &T), kP, 0.01);
  EXPECT_NEAR(T, kT, 1e-5);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// From its start at 5 MPa the first step of this solve goes below zero
// pressure, and the solve restarts at 1 kPa; a T below zero restarts at
// 1300 K. maxIteration 0 stops the solve right behind its first step.
TEST_F(Inversions5, DensitySolveRestartsBelowZero) {
  auto& water = kvt::engine().water;
  kvtSETMAXITERATION(0);
  double p = 0, T = 0;
  try {
    water.PT5RH(kRho, kH, p, T);
    ADD_FAILURE() << "no error 3";
  } catch (int32_t code) {
    EXPECT_EQ(code, 3);
  }
  EXPECT_EQ(p, 1000.0);
  EXPECT_GT(T, 0.0);
  try {
    water.PT5RH(10, 1e6, p, T);
    ADD_FAILURE() << "no error 3";
  } catch (int32_t code) {
    EXPECT_EQ(code, 3);
  }
  EXPECT_GT(p, 0.0);
  EXPECT_EQ(T, 1300.0);
}

// Every inversion gives back the state whose forward values it was given,
// across region 5.
TEST_F(Inversions5, RoundTripsOverTheRegion) {
  const double ps[] = {1e4, 1e5, 1e6, 5e6, 1e7};
  const double Ts[] = {kTMid, 1300, 1600, 2000, kTHigh};
  for (double p : ps) {
    for (double T : Ts) {
      SCOPED_TRACE(testing::Message() << "p=" << p << " T=" << T);
      const double h = kvtH5PT(p, T), s = kvtS5PT(p, T), rho = 1 / kvtV5PT(p, T);
      const double th = kvtT5PH(p, h), ts = kvtT5PS(p, s);
      EXPECT_NEAR(th, T, T * 1e-11);
      EXPECT_NEAR(ts, T, T * 1e-11);
      EXPECT_NEAR(kvtH5PT(p, th), h, h * 1e-11);
      EXPECT_NEAR(kvtS5PT(p, ts), s, s * 1e-11);
      double T2 = 0;
      EXPECT_NEAR(PairP(kvtPT5HS, h, s, &T2), p, p * 1e-9);
      EXPECT_NEAR(T2, T, T * 1e-9);
      EXPECT_NEAR(PairP(kvtPT5RH, rho, h, &T2), p, p * 1e-9);
      EXPECT_NEAR(T2, T, T * 1e-9);
      EXPECT_EQ(kvtGETLASTERROR(), 0);
    }
  }
}

// With the range check on, a solved T within the stop band above 2273.15 K
// is put on the bound; further above, just below it, or below 1073.15 K, it
// stays.
TEST_F(Inversions5, OnlyTheUpperEndIsSnapped) {
  for (double p : {1e5, 5e6}) {
    SCOPED_TRACE(testing::Message() << "p=" << p);
    const double above = kTHigh + 1e-9, below = kTMid - 1e-9;
    const double ha = kvtH5PT(p, above), sa = kvtS5PT(p, above);
    EXPECT_EQ(kvtT5PH(p, ha), kTHigh);
    EXPECT_EQ(kvtT5PS(p, sa), kTHigh);
    EXPECT_NEAR(kvtT5PH(p, kvtH5PT(p, 2300)), 2300, 1e-8);
    EXPECT_LT(kvtT5PH(p, kvtH5PT(p, kTHigh - 1e-9)), kTHigh);
    const double tb = kvtT5PH(p, kvtH5PT(p, below)), sb = kvtT5PS(p, kvtS5PT(p, below));
    EXPECT_LT(tb, kTMid);
    EXPECT_LT(sb, kTMid);
    EXPECT_NEAR(tb, below, 1e-11);

    kvtSETCHECKRANGEMODE(0);
    EXPECT_GT(kvtT5PH(p, ha), kTHigh);
    EXPECT_GT(kvtT5PS(p, sa), kTHigh);
    EXPECT_NEAR(kvtT5PH(p, ha), above, 1e-11);
    kvtSETCHECKRANGEMODE(1);
  }
}

TEST_F(Inversions5, FailuresAndTheirCodes) {
  double p, T;
  kvtSETMAXITERATION(1);
  using Call = double (*)();
  const Call calls[] = {
      [] { return kvtT5PH(kP, kH); },
      [] { return kvtT5PS(kP, kS); },
      [] { double a, b; return kvtPT5HS(kH, kS, &a, &b); },
      [] { return kvtP5HS(kH, kS); },
      [] { return kvtT5HS(kH, kS); },
      [] { double a, b; return kvtPT5RH(kRho, kH, &a, &b); },
  };
  for (Call c : calls) {
    EXPECT_EQ(c(), -1.0);
    EXPECT_EQ(kvtGETLASTERROR(), 3);
  }
  kvtSETMAXITERATION(100);

  // A negative h makes the relative band of the density solve negative: no
  // residual gets below it, and the passes run out.
  EXPECT_EQ(kvtPT5RH(kRho, -kH, &p, &T), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);

  // A NaN step counts as converged: no error 3, the NaN ends as error 1.
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(kvtT5PH(nan, kH), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
  EXPECT_EQ(kvtP5HS(kH, nan), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

}  // namespace
