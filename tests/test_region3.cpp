// Region 3: the equation by density and T against IAPWS-IF97 Table 33, and
// the density solve by p and T with its estimate, stop rule and failures.
#include "frame/engine.h"
#include "kvt_test.h"

namespace {

using namespace kvt_test;
using Region3 = Defaults;

// IF97 Table 33, in SI base units.
const struct { double rho, T, p, h, u, s, cp, w; } kTable33[] = {
    {500, 650, 0.255837018e8, 0.186343019e7, 0.181226279e7, 0.405427273e4, 0.138935717e5, 0.502005554e3},
    {200, 650, 0.222930643e8, 0.237512401e7, 0.226365868e7, 0.485438792e4, 0.446579342e5, 0.383444594e3},
    {500, 750, 0.783095639e8, 0.225868845e7, 0.210206932e7, 0.446971906e4, 0.634165359e4, 0.760696041e3},
};

// By density, and by the pressure through the density solve, through the
// single exports and the many-output ones.
TEST_F(Region3, MatchesPublishedCheckValues) {
  const char* names[] = {"H", "U", "S", "CP", "W"};
  const int outputs[] = {3, 1, 2, 13, 5};
  for (const auto& c : kTable33) {
    SCOPED_TRACE(testing::Message() << "rho=" << c.rho << " T=" << c.T);
    const double expected[] = {c.h, c.u, c.s, c.cp, c.w};
    EXPECT_REL(kvtP3RT(c.rho, c.T), c.p, 5e-9);
    const double p = kvtP3RT(c.rho, c.T);
    EXPECT_REL(kvtR3PT(p, c.T), c.rho, 1e-9);
    EXPECT_REL(kvtV3PT(p, c.T), 1 / c.rho, 5e-9);
    for (int k = 0; k < 5; ++k) {
      EXPECT_REL(D2(names[k] + std::string("3RT"))(c.rho, c.T), expected[k], 5e-9) << names[k];
      EXPECT_REL(D2(names[k] + std::string("3PT"))(p, c.T), expected[k], 5e-9) << names[k];
    }
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    double ok = 0, okPT = 0;
    const Out o = CallMany(kvtVUSHCVWDERPT3RT, c.rho, c.T, &ok);
    const Out oPT = CallMany(kvtVUSHCVWDERPT3PT, p, c.T, &okPT);
    EXPECT_EQ(ok + okPT, 2.0);
    EXPECT_REL(o[0], 1 / c.rho, 5e-9);
    for (int k = 0; k < 5; ++k) {
      EXPECT_REL(o[outputs[k]], expected[k], 5e-9) << "many " << names[k];
      EXPECT_REL(oPT[outputs[k]], expected[k], 5e-9) << "many by p " << names[k];
    }
  }
  EXPECT_REL(kvtCV3RT(200, 650), 4041.18076, 5e-9);  // the release's worked example
}

TEST_F(Region3, ZeroDensityFailsWhereTheEquationDividesByIt) {
  for (Fn f : {kvtP3RT, kvtS3RT, kvtH3RT, kvtCP3RT, kvtW3RT, kvtJOULETHOMPSON3RT})
    EXPECT_CODE(f(0.0, 650), 1);
  for (Fn f : {kvtU3RT, kvtCV3RT}) EXPECT_CODE(f(0.0, 650), 0);
  // The many-output call checks only its own result: bad outputs pass through
  // (the entropy takes the log of the density).
  double ok = 0;
  EXPECT_FALSE(std::isfinite(CallMany(kvtVUSHCVWDERPT3RT, -100, 650, &ok)[2]));
  EXPECT_EQ(ok, 1.0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  // No range comparison in the region functions.
  kvtP3RT(500, 250);
  EXPECT_NE(kvtGETLASTERROR(), 2);
  kvtR3PT(150e6, 700);
  EXPECT_NE(kvtGETLASTERROR(), 2);
}

// Over region 3, from its low corner at 623.15 K up to the B23 line, the solve
// reproduces the forward pressure, and the estimate alone is good to about a
// part in a thousand. States close to the saturation line are left out: there
// the fit may start on the other phase.
TEST_F(Region3, DensitySolveRoundTripsOverTheRegion) {
  int states = 0;
  for (double p = 16.6e6; p <= 100e6; p += 2.5e6) {
    const double t23 = 572.54459862746 + std::sqrt((p / 1e6 - 13.91883977887) / 1.0192970039326e-3);
    for (double T = 623.15; T <= t23; T += 5) {
      if (T < 647.096 && std::fabs(p / kvtPST(T) - 1) < 0.02) continue;
      SCOPED_TRACE(testing::Message() << "p=" << p << " T=" << T);
      const double rho = kvtR3PT(p, T);
      ASSERT_EQ(kvtGETLASTERROR(), 0);
      EXPECT_REL(kvtP3RT(rho, T), p, 1e-10);
      EXPECT_NEAR(rho * kvt::engine().water.V3EST(p, T), 1.0, 1.2e-3);
      ++states;
    }
  }
  EXPECT_GT(states, 300);
}

// Where each area of the fit begins: the bounds belong to the area named
// first, a state on the saturation line to the steam side.
TEST_F(Region3, EstimateAreaBoundaries) {
  const double K = 268248.402312516, TC = 647.096, T1 = 654.313191168, T2 = 713.959399168;
  const auto pl = [&](double T) { return 22064000.0 + K * (T - TC); };
  const struct { double p, T; int area; } cases[] = {
      {40e6, 650, 7}, {40e6, 800, 7}, {39.9e6, 700, 5},  // above the line pl
      {39.9e6, 713.9, 6},                                 // below it
      {24e6, 690, 6}, {23.99e6, 690, 3},  // 24 MPa opens the upper block, below it the lower
      {24e6, 650, 5}, {30e6, T2 + 1e-6, 6}, {30e6, T1 - 1e-6, 5},
      {pl(690), 690, 6}, {pl(690) * (1 + 1e-9), 690, 5}, {pl(650), 650, 3},
      {pl(650) * (1 + 1e-9), 650, 2}, {23e6, T1, 3}, {23e6, TC, 1}, {23e6, 647.1, 2},
      {22064000.0, 647.1, 4}, {22064000.0, TC, 4},  // the line ends a hair above PC
      {22e6, 640, 1}, {20e6, 640, 4}, {kvtPST(640), 640, 4},
      {std::nextafter(kvtPST(640), 1e9), 640, 1}};
  for (const auto& c : cases)
    EXPECT_EQ(kvt::engine().water.V3ESTAREA(c.p, c.T), c.area) << c.p << " " << c.T;
}

// With toleranceMode 0 the solve returns the bare estimate; the start-value
// solve iterates whatever the mode says.
TEST_F(Region3, EstimateWithoutRefinement) {
  kvtSETTOLERANCEMODE(0);
  EXPECT_NEAR(kvtR3PT(25.5837018e6, 650), 500.18, 0.005);
  EXPECT_NEAR(kvtR3PT(22.3e6, 650), 200.56, 0.005);
  EXPECT_NEAR(kvtR3PTR0(kvtP3RT(500, 650), 650, 450), 500, 1e-8);
  kvtSETTOLERANCEMODE(1);
  EXPECT_NEAR(kvtR3PT(25.5837018e6, 650), 500.0, 1e-6);
  EXPECT_NEAR(kvtR3PT(22.3e6, 650), 200.52, 0.005);
}

// The pass limit is tested before the residual: one pass is always too few,
// even from the exact density; a zero tolerance is never met.
TEST_F(Region3, PassLimitComesBeforeTheStopTest) {
  const double p = kvtP3RT(500, 650);
  kvtSETMAXITERATION(1);
  EXPECT_CODE(kvtR3PTR0(p, 650, 500), 3);
  EXPECT_CODE(kvtR3PT(p, 650), 3);
  EXPECT_CODE(kvtH3PT(p, 650), 3);
  kvtSETMAXITERATION(2);
  EXPECT_NEAR(kvtR3PTR0(p, 650, 500), 500, 1e-9);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  kvtSETMAXITERATION(100);
  kvtSETTOLERANCE(0);
  EXPECT_CODE(kvtR3PT(30e6, 700), 3);
}

}  // namespace
