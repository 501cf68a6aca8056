// State areas by p, T and the composites that dispatch on them.
#include <gtest/gtest.h>

#include <cmath>

#include "frame/engine.h"
#include "kvtcore.h"

namespace {

class StatePT : public testing::Test {
 protected:
  void TearDown() override {
    kvtSETTOLERANCE(2e-12);
    kvtSETCHECKRANGEMODE(1);
    kvtSETMAXITERATION(100);
  }
};

struct AreaCase {
  double p, T;
  int32_t area, area2;
};

TEST_F(StatePT, AreasOnBothSidesOfEveryBoundary) {
  // The resolvers themselves, without the range check of their exports.
  kvtSETCHECKRANGEMODE(0);
  const double up = std::nextafter(1073.15, 2000.0);
  const double ts1 = kvtTSP(1e6);
  const AreaCase cases[] = {
      {1e6, 300, 1, 1},
      {1e6, 500, 2, 2},
      {1e6, ts1, 4, 2},               // on the line: wet for one, steam for the other
      {1e6, ts1 * (1 - 1e-9), 1, 1},  // outside the band of 2e-12
      {1e6, ts1 * (1 + 1e-9), 2, 2},
      {1e8, 863.15, 2, 2},            // the B23 top: steam even at 100 MPa
      {1e8, 863.14, 3, 3},
      {5e7, 1073.15, 2, 2},
      {5e7, 1073.16, 5, 5},           // no pressure test in the resolvers
      {5e6, up, 5, 2},                // within the tolerance of 1073.15
      {3e7, 623.15, 1, 1},
      {3e7, 623.16, 3, 3},
      {20e6, 630, 3, 3},              // between PSAT350 and the critical pressure
      {kvtP23T(700) * 1.001, 700, 3, 3},
      {kvtP23T(700) * 0.999, 700, 2, 2},
  };
  for (const AreaCase& c : cases) {
    SCOPED_TRACE(testing::Message() << "p=" << c.p << " T=" << c.T);
    EXPECT_EQ(kvtWATERSTATEAREA(c.p, c.T), c.area);
    EXPECT_EQ(kvtWATERSTATEAREA2(c.p, c.T), c.area2);
  }
}

TEST_F(StatePT, ThePressureOfTheRegion3CornerBelongsToTheLowSide) {
  // At exactly PSAT350 the saturation test of the low pressures still applies.
  const double p = 16529164.252621602;
  EXPECT_EQ(kvtWATERSTATEAREA(p, 620), 1);
  EXPECT_EQ(kvtWATERSTATEAREA(p, 625), 2);
  EXPECT_EQ(kvtWATERSTATEAREA2(p, 625), 2);
  // One step above it there is no saturation line: below 623.15 K it is
  // liquid whatever the saturation temperature says.
  EXPECT_EQ(kvtWATERSTATEAREA(std::nextafter(p, 1e9), 620), 1);
  EXPECT_EQ(kvtWATERSTATEAREA2(std::nextafter(p, 1e9), 620), 1);
}

TEST_F(StatePT, ZeroToleranceMeansNothingIsWet) {
  const double ts = kvtTSP(1e6);
  kvtSETTOLERANCE(0.0);
  EXPECT_EQ(kvtWATERSTATEAREA(1e6, ts), 2);
}

TEST_F(StatePT, PhaseState) {
  EXPECT_EQ(kvtPHASESTATEPT(1e5, 300), 1);
  EXPECT_EQ(kvtPHASESTATEPT(1e5, 400), 2);
  EXPECT_EQ(kvtPHASESTATEPT(kvtPST(400), 400), 2);  // on the line: vapour
  EXPECT_EQ(kvtPHASESTATEPT(3e7, 200), 3);          // supercritical tests come first
  EXPECT_EQ(kvtPHASESTATEPT(1e5, 700), 3);
  EXPECT_EQ(kvtPHASESTATEPT(1000, 200), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  EXPECT_EQ(kvtPHASESTATEPT(600, 300), -1);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
}

using Fn = double (*)(double, double);

struct Family {
  Fn composite, r1, r2, r3, r5;
};

TEST_F(StatePT, CompositesHandOverToTheRegionOfTheState) {
  const Family families[] = {
      {kvtVPT, kvtV1PT, kvtV2PT, kvtV3PT, kvtV5PT},
      {kvtUPT, kvtU1PT, kvtU2PT, kvtU3PT, kvtU5PT},
      {kvtSPT, kvtS1PT, kvtS2PT, kvtS3PT, kvtS5PT},
      {kvtHPT, kvtH1PT, kvtH2PT, kvtH3PT, kvtH5PT},
      {kvtCPPT, kvtCP1PT, kvtCP2PT, kvtCP3PT, kvtCP5PT},
      {kvtCVPT, kvtCV1PT, kvtCV2PT, kvtCV3PT, kvtCV5PT},
      {kvtWPT, kvtW1PT, kvtW2PT, kvtW3PT, kvtW5PT},
      {kvtJOULETHOMPSONPT, kvtJOULETHOMPSON1PT, kvtJOULETHOMPSON2PT, kvtJOULETHOMPSON3PT,
       kvtJOULETHOMPSON5PT},
  };
  const struct { double p, T; int area; } states[] = {
      {3e6, 300, 1}, {3e7, 623.15, 1}, {3e7, 623.16, 3}, {25e6, 650, 3},
      {1e6, kvtTSP(1e6), 2}, {3500, 700, 2}, {1e8, 863.15, 2}, {5e6, 1073.15, 2},
      {5e6, 1073.16, 5}, {5e5, 1500, 5}};
  for (const Family& f : families) {
    for (const auto& st : states) {
      SCOPED_TRACE(testing::Message() << "p=" << st.p << " T=" << st.T);
      const Fn region = st.area == 1 ? f.r1 : st.area == 2 ? f.r2 : st.area == 3 ? f.r3 : f.r5;
      EXPECT_EQ(f.composite(st.p, st.T), region(st.p, st.T));
    }
  }
}

TEST_F(StatePT, ManyOutputsFollowTheArea) {
  double a[14], b[14];
  auto many = [](auto fn, double p, double T, double* o) {
    return fn(p, T, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8], &o[9],
              &o[10], &o[11], &o[12], &o[13]);
  };
  const struct { double p, T; decltype(&kvtVUSHCVWDERPT1PT) region; } cases[] = {
      {3e6, 300, kvtVUSHCVWDERPT1PT}, {1e5, 500, kvtVUSHCVWDERPT2PT},
      {25e6, 650, kvtVUSHCVWDERPT3PT}, {5e5, 1500, kvtVUSHCVWDERPT5PT}};
  for (const auto& c : cases) {
    ASSERT_EQ(many(kvtVUSHCVWDERPTPT, c.p, c.T, a), 1.0);
    ASSERT_EQ(many(c.region, c.p, c.T, b), 1.0);
    for (int i = 0; i < 14; ++i) EXPECT_EQ(a[i], b[i]) << i;
  }
  EXPECT_EQ(many(kvtVUSHCVWDERPTPT, 1e5, 5000, a), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
}

TEST_F(StatePT, DerivedQuantities) {
  const struct { double p, T; } states[] = {{3e6, 300}, {1e5, 500}, {25e6, 650}, {5e5, 1500}};
  for (const auto& st : states) {
    SCOPED_TRACE(testing::Message() << "p=" << st.p << " T=" << st.T);
    const double v = kvtVPT(st.p, st.T), w = kvtWPT(st.p, st.T), cp = kvtCPPT(st.p, st.T);
    const double lambda = kvtTHERMCONDRT(1 / v, st.T), mu = kvtDYNVISRT(1 / v, st.T);
    EXPECT_EQ(kvtTHERMCONDPT(st.p, st.T), lambda);
    EXPECT_EQ(kvtDYNVISPT(st.p, st.T), mu);
    EXPECT_EQ(kvtKINVISPT(st.p, st.T), mu * v);
    EXPECT_EQ(kvtPRANDTLEPT(st.p, st.T), mu * cp / lambda);
    EXPECT_EQ(kvtKPT(st.p, st.T), w * w / (v * st.p));
  }
  // The exponent from the speed of sound is not cp / cv in steam.
  const double k = kvtKPT(1e6, 500), ratio = kvtCPPT(1e6, 500) / kvtCVPT(1e6, 500);
  EXPECT_GT(std::fabs(k - ratio), 1e-3);
}

TEST_F(StatePT, HighTemperatureAboveTenMegapascal) {
  // The range check refuses it; without the check the region 5 equation is
  // evaluated outside its range.
  EXPECT_EQ(kvtHPT(5e7, 1200), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  kvtSETCHECKRANGEMODE(0);
  EXPECT_EQ(kvtHPT(5e7, 1200), kvtH5PT(5e7, 1200));
}

TEST_F(StatePT, Region3SolveFailuresReachTheCaller) {
  kvtSETMAXITERATION(1);
  EXPECT_EQ(kvtVPT(25e6, 650), -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 3);
  EXPECT_GT(kvtVPT(3e6, 300), 0.0);  // region 1 does not iterate
}

}  // namespace
