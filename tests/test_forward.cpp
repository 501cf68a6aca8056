// The equations by p, T of regions 1, 2, 5 and of metastable steam against
// their published check values, through the single-property exports and the
// many-output exports, and the derivative outputs against differences.
#include "kvt_test.h"

namespace {

using namespace kvt_test;

// IF97 Tables 5 (region 1), 15 (region 2) and 18 (metastable steam), and the
// 1997 text's table for region 5 (the later six-term revision gives, for
// instance, v = 1.38455090 in its first row); SI base units, nine figures.
const struct { const char* region; double p, T, v, h, u, s, cp, w; } kChecks[] = {
    {"1", 3e6, 300, 0.100215168e-2, 0.115331273e6, 0.112324818e6, 0.392294792e3, 0.417301218e4, 0.150773921e4},
    {"1", 80e6, 300, 0.971180894e-3, 0.184142828e6, 0.106448356e6, 0.368563852e3, 0.401008987e4, 0.163469054e4},
    {"1", 3e6, 500, 0.120241800e-2, 0.975542239e6, 0.971934985e6, 0.258041912e4, 0.465580682e4, 0.124071337e4},
    {"2", 3500, 300, 0.394913866e2, 0.254991145e7, 0.241169160e7, 0.852238967e4, 0.191300162e4, 0.427920172e3},
    {"2", 3500, 700, 0.923015898e2, 0.333568375e7, 0.301262819e7, 0.101749996e5, 0.208141274e4, 0.644289068e3},
    {"2", 30e6, 700, 0.542946619e-2, 0.263149474e7, 0.246861076e7, 0.517540298e4, 0.103505092e5, 0.480386523e3},
    {"5", 0.5e6, 1500, 0.138455354e1, 0.521976332e7, 0.452748654e7, 0.965408431e4, 0.261610228e4, 0.917071933e3},
    {"5", 8e6, 1500, 0.865156616e-1, 0.520609634e7, 0.451397105e7, 0.836546724e4, 0.264453866e4, 0.919708859e3},
    {"MS", 1e6, 450, 0.192516540, 0.276881115e7, 0.257629461e7, 0.656660377e4, 0.276349265e4, 0.498408101e3},
    {"MS", 1e6, 440, 0.186212297, 0.274015123e7, 0.255393894e7, 0.650218759e4, 0.298166443e4, 0.489363295e3},
    {"MS", 1.5e6, 450, 0.121685206, 0.272134539e7, 0.253881758e7, 0.629170440e4, 0.362795578e4, 0.481941819e3},
};

TEST(Forward, MatchesPublishedCheckValues) {
  const char* names[] = {"V", "H", "U", "S", "CP", "W"};
  const int outputs[] = {0, 3, 1, 2, 13, 5};  // their places among the 14 outputs
  for (const auto& c : kChecks) {
    SCOPED_TRACE(testing::Message() << "region " << c.region << " p=" << c.p << " T=" << c.T);
    const double expected[] = {c.v, c.h, c.u, c.s, c.cp, c.w};
    for (int k = 0; k < 6; ++k)
      EXPECT_REL(D2(names[k] + std::string(c.region) + "PT")(c.p, c.T), expected[k], 5e-9) << names[k];
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    if (std::string(c.region) == "MS") continue;
    double ok = 0;
    const Out o = CallMany(Export<Many>("VUSHCVWDERPT" + std::string(c.region) + "PT", "M2"), c.p, c.T, &ok);
    EXPECT_EQ(ok, 1.0);
    for (int k = 0; k < 6; ++k) EXPECT_REL(o[outputs[k]], expected[k], 5e-9) << "many " << names[k];
  }
}

// The derivative outputs agree with central differences of v, u, s, h by p
// and by T, the first four and cv with their exports, and the Joule-Thomson
// export, where it has the textbook form, with (T (dv/dT)p - v) / cp.
TEST(Forward, DerivativeOutputsAgreeWithTheProperties) {
  const struct { const char* region; double p, T, rel; bool jt; } states[] = {
      {"1", 3e6, 400, 1e-6, true},   {"1", 50e6, 600, 1e-6, true},  {"2", 1e5, 500, 1e-6, true},
      {"2", 20e6, 900, 1e-6, true},  {"3", 50e6, 700, 1e-5, true},  {"3", 25e6, 660, 1e-5, true},
      {"3", 20e6, 640, 1e-5, true},  {"5", 0.5e6, 1500, 1e-6, false}, {"5", 8e6, 2000, 1e-6, false},
      {"5", 1e7, 1100, 1e-6, false}, {"5", 5e6, 2273.15, 1e-6, false}};
  for (const auto& st : states) {
    const double p = st.p, T = st.T, dp = p * 1e-6, dT = T * 1e-6;
    const std::string r = std::string(st.region) + "PT";
    SCOPED_TRACE(testing::Message() << "region " << r << " p=" << p << " T=" << T);
    double ok = 0;
    const Out o = CallMany(Export<Many>("VUSHCVWDERPT" + r, "M2"), p, T, &ok);
    ASSERT_EQ(ok, 1.0);
    const char* names[] = {"V", "U", "S", "H"};
    for (int k = 0; k < 4; ++k) {
      const Fn f = D2(names[k] + r);
      const double byP = (f(p + dp, T) - f(p - dp, T)) / (2 * dp);
      const double byT = (f(p, T + dT) - f(p, T - dT)) / (2 * dT);
      EXPECT_NEAR(o[6 + k], byP, std::fabs(byP) * st.rel + 1e-15) << "d/dp of " << names[k];
      EXPECT_REL(o[10 + k], byT, st.rel) << "d/dT of " << names[k];
      EXPECT_REL(o[k], f(p, T), 1e-12) << names[k];
    }
    EXPECT_REL(o[4], D2("CV" + r)(p, T), 1e-12);
    if (st.jt) {
      EXPECT_REL(D2("JOULETHOMPSON" + r)(p, T), (T * o[10] - o[0]) / o[13], 1e-9);
    }
  }
}

// Points where an equation divides by zero end in error 1, not in a trap:
// tau - 1.222 is zero in region 1 at 1386 / 1.222 K, tau - 0.5 in region 2
// at 1080 K (v has no such term), and 1 / pi at zero pressure.
TEST(Forward, DivisionByZeroEndsInErrorOne) {
  for (std::string q : {"V", "U", "S", "H", "CP", "CV", "W", "JOULETHOMPSON"}) {
    SCOPED_TRACE(q);
    EXPECT_CODE(D2(q + "1PT")(3e6, 1386.0 / 1.222), 1);
    if (q != "V") EXPECT_CODE(D2(q + "2PT")(3e6, 1080), 1);
  }
  EXPECT_CODE(kvtV2PT(0, 500), 1);
  EXPECT_CODE(kvtV5PT(0, 1500), 1);
  // No range comparison in the region-bound exports, also with the check on.
  EXPECT_CODE(kvtV5PT(50e6, 3000), 0);
  EXPECT_CODE(kvtV1PT(1e9, 200), 0);
}

// Region 5's Joule-Thomson export keeps its long-standing form, with an
// extra factor pi on the residual sums; the many-output export gives the
// textbook (T (dv/dT)p - v) / cp, and (dh/dp)T = v - T (dv/dT)p = -cp times it.
TEST(Forward, Region5JouleThomsonKeepsItsOwnForm) {
  const struct { double p, T, kept, textbook; } rows[] = {
      {0.5e6, 1500, 3.48507e-07, 0}, {8e6, 1500, 5.08893e-06, 6.87172e-07}};
  for (const auto& r : rows) {
    SCOPED_TRACE(r.p);
    const double jt = kvtJOULETHOMPSON5PT(r.p, r.T);
    EXPECT_REL(jt, r.kept, 1.5e-6);
    EXPECT_EQ(kvtGETLASTERROR(), 0);
    const Out o = CallMany(kvtVUSHCVWDERPT5PT, r.p, r.T);
    const double textbook = (r.T * o[10] - o[0]) / o[13];
    if (r.textbook != 0) {
      EXPECT_REL(textbook, r.textbook, 1.5e-6);
    }
    EXPECT_GT(std::fabs(jt - textbook), 0.1 * std::fabs(textbook));
    EXPECT_REL(o[9], -o[13] * textbook, 1e-12);
  }
}

}  // namespace
