// State areas by p, T and the composites that dispatch on them.
#include "kvt_test.h"

namespace {

using namespace kvt_test;
using StatePT = Defaults;
const double kPSat350 = 16529164.252621602;

TEST_F(StatePT, AreasOnBothSidesOfEveryBoundary) {
  // The resolvers themselves, without the range check of their exports.
  kvtSETCHECKRANGEMODE(0);
  const double ts1 = kvtTSP(1e6), pUp = std::nextafter(kPSat350, 1e9);
  const struct { double p, T; int32_t area, area2; } cases[] = {
      {1e6, 300, 1, 1}, {1e6, 500, 2, 2},
      {1e6, ts1, 4, 2},                                  // on the line: wet for one, steam for the other
      {1e6, ts1 * (1 - 1e-9), 1, 1}, {1e6, ts1 * (1 + 1e-9), 2, 2},  // outside the band of 2e-12
      {1e8, 863.15, 2, 2}, {1e8, 863.14, 3, 3},          // the B23 top: steam even at 100 MPa
      {5e7, 1073.15, 2, 2}, {5e7, 1073.16, 5, 5},        // no pressure test in the resolvers
      {5e6, std::nextafter(1073.15, 2000.0), 5, 2},      // within the tolerance of 1073.15
      {3e7, 623.15, 1, 1}, {3e7, 623.16, 3, 3},
      {20e6, 630, 3, 3},                                 // between PSAT350 and the critical pressure
      {kvtP23T(700) * 1.001, 700, 3, 3}, {kvtP23T(700) * 0.999, 700, 2, 2},
      // At exactly PSAT350 the saturation test of the low pressures still
      // applies; one step above there is no line: below 623.15 K it is liquid.
      {kPSat350, 620, 1, 1}, {kPSat350, 625, 2, 2}, {pUp, 620, 1, 1}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << "p=" << c.p << " T=" << c.T);
    EXPECT_EQ(kvtWATERSTATEAREA(c.p, c.T), c.area);
    EXPECT_EQ(kvtWATERSTATEAREA2(c.p, c.T), c.area2);
  }
  kvtSETTOLERANCE(0.0);  // a zero tolerance: nothing is wet
  EXPECT_EQ(kvtWATERSTATEAREA(1e6, ts1), 2);
}

TEST_F(StatePT, PhaseState) {
  const struct { double p, T; int32_t phase, code; } cases[] = {
      {1e5, 300, 1, 0}, {1e5, 400, 2, 0}, {kvtPST(400), 400, 2, 0},  // on the line: vapour
      {3e7, 200, 3, 0},  // the supercritical tests come first
      {1e5, 700, 3, 0},  {1000, 200, -1, 2}, {600, 300, -1, 2}};
  for (const auto& c : cases) {
    EXPECT_EQ(kvtPHASESTATEPT(c.p, c.T), c.phase) << c.p << " " << c.T;
    EXPECT_EQ(kvtGETLASTERROR(), c.code);
  }
}

// The composites hand over to the region of the state, the many-output one
// too; the derived quantities follow from them by their formulas.
TEST_F(StatePT, CompositesHandOverToTheRegionOfTheState) {
  const struct { double p, T; const char* region; } states[] = {
      {3e6, 300, "1"},   {3e7, 623.15, "1"}, {3e7, 623.16, "3"}, {25e6, 650, "3"},
      {1e6, kvtTSP(1e6), "2"}, {3500, 700, "2"}, {1e8, 863.15, "2"}, {5e6, 1073.15, "2"},
      {5e6, 1073.16, "5"}, {5e5, 1500, "5"}, {1e5, 500, "2"}};
  for (const auto& st : states) {
    const double p = st.p, T = st.T;
    SCOPED_TRACE(testing::Message() << "p=" << p << " T=" << T);
    for (std::string q : {"V", "U", "S", "H", "CP", "CV", "W", "JOULETHOMPSON"})
      EXPECT_EQ(D2(q + "PT")(p, T), D2(q + st.region + "PT")(p, T)) << q;
    double ok = 0;
    const Out a = CallMany(kvtVUSHCVWDERPTPT, p, T, &ok);
    EXPECT_EQ(ok, 1.0);
    EXPECT_EQ(a, CallMany(Export<Many>(std::string("VUSHCVWDERPT") + st.region + "PT", "M2"), p, T));
    const double v = kvtVPT(p, T), w = kvtWPT(p, T), cp = kvtCPPT(p, T);
    const double lambda = kvtTHERMCONDRT(1 / v, T), mu = kvtDYNVISRT(1 / v, T);
    EXPECT_EQ(kvtTHERMCONDPT(p, T), lambda);
    EXPECT_EQ(kvtDYNVISPT(p, T), mu);
    EXPECT_EQ(kvtKINVISPT(p, T), mu * v);
    EXPECT_EQ(kvtPRANDTLEPT(p, T), mu * cp / lambda);
    EXPECT_EQ(kvtKPT(p, T), w * w / (v * p));
  }
  double ok = 0;
  CallMany(kvtVUSHCVWDERPTPT, 1e5, 5000, &ok);
  EXPECT_EQ(ok, -1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 2);
  // The exponent from the speed of sound is not cp / cv in steam.
  EXPECT_GT(std::fabs(kvtKPT(1e6, 500) - kvtCPPT(1e6, 500) / kvtCVPT(1e6, 500)), 1e-3);
}

// Above 10 MPa and 1073.15 K the range check refuses the state; without it
// the region 5 equation is evaluated outside its range. The region 3 solve's
// failures reach the caller; region 1 does not iterate.
TEST_F(StatePT, FailuresReachTheCaller) {
  EXPECT_CODE(kvtHPT(5e7, 1200), 2);
  kvtSETCHECKRANGEMODE(0);
  EXPECT_EQ(kvtHPT(5e7, 1200), kvtH5PT(5e7, 1200));
  kvtSETMAXITERATION(1);
  EXPECT_CODE(kvtVPT(25e6, 650), 3);
  EXPECT_CODE(kvtVPT(3e6, 300), 0);
}

}  // namespace
