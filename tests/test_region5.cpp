// Region 5 by p, T: the 1997 equation against its verification table, the
// Joule-Thomson coefficient in the form this library keeps, and the
// derivative outputs.
#include <gtest/gtest.h>

#include <cmath>

#include "forward_checks.h"
#include "kvtcore.h"

namespace {

using kvt_test::CallMany;
using kvt_test::Check;

// Verification values of the 1997 text of IAPWS-IF97 for region 5 (the later
// six-term revision gives, for instance, v = 1.38455090 in the first row).
const Check kRegion5[] = {
    {0.5e6, 1500, 0.138455354e1, 0.521976332e7, 0.452748654e7, 0.965408431e4, 0.261610228e4,
     0.917071933e3},
    {8e6, 1500, 0.865156616e-1, 0.520609634e7, 0.451397105e7, 0.836546724e4, 0.264453866e4,
     0.919708859e3},
};

TEST(Region5, MatchesPublishedCheckValues) {
  kvt_test::CheckRegion(kRegion5, kvtV5PT, kvtH5PT, kvtU5PT, kvtS5PT, kvtCP5PT, kvtW5PT,
                        kvtVUSHCVWDERPT5PT);
}

// The Joule-Thomson export keeps its long-standing form, which carries an
// extra factor pi on the residual sums; the many-output export does not use
// it, and gives the textbook (T (dv/dT)p - v) / cp.
TEST(Region5, JouleThomsonKeepsItsOwnForm) {
  struct Row {
    double p, T, kept, textbook;
  };
  const Row rows[] = {
      {0.5e6, 1500, 3.48507e-07, 0},
      {8e6, 1500, 5.08893e-06, 6.87172e-07},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(testing::Message() << "p=" << r.p);
    const double jt = kvtJOULETHOMPSON5PT(r.p, r.T);
    EXPECT_NEAR(jt, r.kept, r.kept * 1.5e-6);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    double o[14];
    CallMany(kvtVUSHCVWDERPT5PT, r.p, r.T, o);
    const double textbook = (r.T * o[10] - o[0]) / o[13];
    if (r.textbook != 0) {
      EXPECT_NEAR(textbook, r.textbook, r.textbook * 1.5e-6);
    }
    EXPECT_GT(std::fabs(jt - textbook), 0.1 * std::fabs(textbook));
    // (dh/dp)T is v - T (dv/dT)p, i.e. -cp times the textbook coefficient.
    EXPECT_NEAR(o[9], -o[13] * textbook, std::fabs(o[9]) * 1e-12);
  }
}

TEST(Region5, DerivativeOutputsAgreeWithTheProperties) {
  const double states[][2] = {{0.5e6, 1500}, {8e6, 2000}, {1e7, 1100}, {5e6, 2273.15}};
  for (const auto& st : states) {
    SCOPED_TRACE(testing::Message() << "p=" << st[0] << " T=" << st[1]);
    kvt_test::CheckDerivatives(kvtV5PT, kvtH5PT, kvtS5PT, kvtU5PT, kvtCV5PT, nullptr,
                               kvtVUSHCVWDERPT5PT, st[0], st[1]);
  }
}

// The region-bound exports take any state the equation can evaluate: no
// range comparison, also with the range check on.
TEST(Region5, NoRangeComparison) {
  EXPECT_GT(kvtV5PT(50e6, 3000), 0);
  EXPECT_EQ(kvtGETLASTERROR(), 0);
  EXPECT_EQ(kvtV5PT(0, 1500), -1.0);  // 1 / pi at zero pressure
  EXPECT_EQ(kvtGETLASTERROR(), 1);
}

}  // namespace
