// Saturated water and steam by T, wet steam by (T, x), the dryness from T and
// a property, the (T, x) solve from (h, s), and the composites by p, T, x.
#include "kvt_test.h"

namespace {

using namespace kvt_test;
using Wet = Defaults;

bool Near(double a, double b, double rel) { return std::fabs(a - b) <= rel * std::fabs(b); }

// Up to 623.15 K the saturated phases are regions 1 and 2 at the pressure of
// the line; above it region 3 on the line, and the next double above 623.15 K
// steps by the small inconsistency between the regions, which nothing smooths.
TEST_F(Wet, SaturatedPhasesAreTheRegionEquationsOnTheLine) {
  for (double T : {273.16, 300.0, 373.15, 500.0, 600.0, 623.15}) {
    const double ps = kvtPST(T);
    for (std::string q : {"V", "U", "S", "H", "CP", "CV", "W", "JOULETHOMPSON"}) {
      EXPECT_EQ(D1(q + "SWT")(T), D2(q + "1PT")(ps, T)) << q << " " << T;
      EXPECT_EQ(D1(q + "SST")(T), D2(q + "2PT")(ps, T)) << q << " " << T;
    }
  }
  for (double T : {623.16, 630.0, 640.0, 646.0}) {
    const double rw = 1 / kvtVSWT(T), rs = 1 / kvtVSST(T);
    EXPECT_GT(rw, rs) << T;
    EXPECT_REL(kvtP3RT(rw, T), kvtPST(T), 1e-9);
    EXPECT_REL(kvtP3RT(rs, T), kvtPST(T), 1e-9);
    EXPECT_EQ(kvtHSWT(T), kvtH3RT(rw, T));
  }
  const double T0 = 623.15, T1 = std::nextafter(T0, 700.0);
  EXPECT_NE(kvtHSWT(T1), kvtHSWT(T0));
  EXPECT_REL(kvtHSWT(T1), kvtHSWT(T0), 1e-4);
  EXPECT_REL(kvtHSST(T1), kvtHSST(T0), 1e-4);
  // Steam tables: the enthalpy of vaporisation and of the water at 100 C.
  EXPECT_NEAR(kvtRST(373.15), 2256.47e3, 0.5e3);
  EXPECT_NEAR(kvtHSWT(373.15), 419.17e3, 0.1e3);
  // At 647.096 K both sides start at 322 kg/m3, where dp/drho vanishes: the
  // solve either settles near the critical volume or reports its failure.
  for (Fn1 f : {kvtVSWT, kvtVSST}) {
    const double v = f(647.096);
    EXPECT_TRUE(v == -1.0 ? kvtGETLASTERROR() != 0 : Near(v, 1 / 322.0, 0.05)) << v;
  }
}

// The properties of wet steam: at the ends the saturated values (cv takes
// its two-phase end values), and the inverses recover the dryness.
TEST_F(Wet, MixturesAndTheirInverses) {
  const struct { const char *q, *end; bool inverse; } props[] = {
      {"V", "V", true},  {"U", "U", true},   {"S", "S", true},           {"H", "H", true},
      {"CP", "CP", true}, {"CV", "CVDP", true}, {"THERMCOND", "THERMCOND", true},
      {"DYNVIS", "DYNVIS", true}, {"PRANDTLE", "PRANDTLE", true}, {"KINVIS", "KINVIS", true},
      {"K", nullptr, true}};
  for (double T : {300.0, 450.0, 500.0, 600.0, 640.0}) {
    for (const auto& f : props) {
      const Fn mix = D2(f.q + std::string("STX"));
      if (f.end) {
        EXPECT_EQ(mix(T, 0), D1(f.end + std::string("SWT"))(T)) << f.q << " " << T;
        EXPECT_EQ(mix(T, 1), D1(f.end + std::string("SST"))(T)) << f.q << " " << T;
      }
      for (double x : {0.0, 0.1, 0.5, 0.9, 1.0})
        EXPECT_NEAR(D2("XST" + std::string(f.q))(T, mix(T, x)), x, 1e-8) << f.q << " " << T << " " << x;
    }
    // The speed of sound gives x or the other root of its quadratic. At the
    // ends rounding may put the root a hair outside [0, 1], which is error 1.
    for (double x : {0.1, 0.5, 0.9}) {
      const double w = kvtWSTX(T, x), xw = kvtXSTW(T, w);
      ASSERT_NE(xw, -1.0) << T << " " << x;
      EXPECT_TRUE(xw >= 0.0 && xw <= 1.0 && Near(kvtWSTX(T, xw), w, 1e-9)) << xw;
    }
  }
  EXPECT_CODE(kvtXSTW(400, 1e5), 1);  // no dryness gives that speed
  EXPECT_GT(kvtXSTH(400, kvtHSST(400) + 1e4), 1.0);  // beyond the steam: past 1, no error
  EXPECT_EQ(kvtGETLASTERROR(), 0);
}

// cv of the mixture is du/dT at constant volume, k and w follow the
// isentrope. The line is consistent with the region equations to a few parts
// in ten thousand, which bounds the agreement.
TEST_F(Wet, TwoPhaseDerivatives) {
  const double dT = 1e-3;
  for (double T : {350.0, 450.0, 550.0, 630.0}) {
    for (double x : {0.1, 0.2, 0.7, 0.9}) {
      SCOPED_TRACE(testing::Message() << T << " " << x);
      const double v = kvtVSTX(T, x), s = kvtSSTX(T, x), p = kvtPST(T);
      const double du = kvtUSTX(T + dT, kvtXSTV(T + dT, v)) - kvtUSTX(T - dT, kvtXSTV(T - dT, v));
      EXPECT_REL(kvtCVSTX(T, x), du / (2 * dT), 1e-3);
      if (T == 630.0) continue;
      const double dv = kvtVSTX(T + dT, kvtXSTS(T + dT, s)) - kvtVSTX(T - dT, kvtXSTS(T - dT, s));
      const double k = -(v / p) * (kvtPST(T + dT) - kvtPST(T - dT)) / dv;
      EXPECT_REL(kvtKSTX(T, x), k, 1e-4);
      EXPECT_REL(kvtWSTX(T, x), std::sqrt(v * p * k), 1e-4);
    }
  }
}

// The Joule-Thomson coefficient of wet steam is the slope of the line; its
// inverse gives 0 for it or for any negative value, error 2 otherwise.
TEST_F(Wet, JouleThomsonOfWetSteamIsTheSlopeOfTheLine) {
  const double T = 450, j = 1 / kvtDPDTST(T);
  EXPECT_EQ(kvtJOULETHOMPSONSTX(T, 0.1), j);
  EXPECT_EQ(kvtJOULETHOMPSONSTX(T, 0.9), j);
  EXPECT_EQ(kvtXSTJOULETHOMPSON(T, j), 0.0);
  EXPECT_EQ(kvtXSTJOULETHOMPSON(T, -5.0), 0.0);
  EXPECT_CODE(kvtXSTJOULETHOMPSON(T, 2 * j), 2);
  EXPECT_CODE(kvtXSTJOULETHOMPSON(T, 0.0), 2);
}

// The lower path always bisects; the upper one refines the backward value
// only with the tolerance mode on.
TEST_F(Wet, TemperatureAndDrynessFromEnthalpyAndEntropy) {
  for (int mode : {1, 0}) {
    kvtSETTOLERANCEMODE(mode);
    for (double T : {280.0, 350.0, 450.0, 550.0, 620.0, 640.0}) {
      for (double x : {0.05, 0.5, 0.95}) {
        SCOPED_TRACE(testing::Message() << T << " " << x << " mode " << mode);
        const double h = kvtHSTX(T, x), s = kvtSSTX(T, x);
        const bool refined = mode == 1 || s <= 5210.88782493073;
        double Tr = 0, xr = 0;
        ASSERT_EQ(kvtTXSHS(h, s, &Tr, &xr), 1.0);
        EXPECT_NEAR(Tr, T, refined ? 1e-6 : 0.05);
        EXPECT_NEAR(xr, x, refined ? 1e-6 : 1e-3);
        EXPECT_EQ(kvtTSHS(h, s), Tr);
      }
    }
  }
  kvtSETMAXITERATION(5);
  double T = 0, x = 0;
  EXPECT_CODE(kvtTXSHS(kvtHSTX(350, 0.5), kvtSSTX(350, 0.5), &T, &x), 3);
  EXPECT_GT(T, 273.0);  // the last trial stays with the caller
}

// On the line (within its band) the composites by p, T, x are the wet-steam
// functions; away from it the first eight follow WATERSTATEAREA and the last
// five the p,T composite.
TEST_F(Wet, CompositesByPTXUseTheDrynessOnlyInTheBand) {
  const double p = 1e6, T = kvtTSP(p), off = T * (1 + 1e-9);
  EXPECT_EQ(kvtVPTX(p, T, 0.5), kvtVSTX(T, 0.5));
  EXPECT_REL(kvtVPTX(p, T, 0.5), (kvtVSWT(T) + kvtVSST(T)) / 2, 1e-15);
  EXPECT_EQ(kvtVPTX(p, off, 0.5), kvtVPT(p, off));
  EXPECT_EQ(kvtHPTX(p, off, 0.0), kvtHPTX(p, off, 1.0));
  EXPECT_EQ(kvtTHERMCONDPTX(p, T, 0.3), kvtTHERMCONDSTX(T, 0.3));
  EXPECT_EQ(kvtTHERMCONDPTX(p, off, 0.3), kvtTHERMCONDPT(p, off));
  EXPECT_EQ(kvtPRANDTLEPTX(p, T, 0.0), kvtPRANDTLESWT(T));
  EXPECT_EQ(kvtJOULETHOMPSONPTX(p, T, 0.1), kvtJOULETHOMPSONPTX(p, T, 0.9));
  EXPECT_EQ(kvtKPTX(p, T, 0.4), kvtKSTX(T, 0.4));
  EXPECT_EQ(kvtCPPTX(3e6, 300, 0.5), kvtCP1PT(3e6, 300));
  EXPECT_EQ(kvtDYNVISPTX(3e6, 300, 0.5), kvtDYNVISPT(3e6, 300));
  EXPECT_CODE(kvtVPTX(1e5, 373.15, 1.01), 2);
  EXPECT_CODE(kvtVPTX(1e5, 373.15, 1.0), 0);
}

TEST_F(Wet, RangesOfTheSaturationFamilies) {
  EXPECT_CODE(kvtHSWT(273.15), 2);
  EXPECT_CODE(kvtHSTX(400, 1.5), 2);
  EXPECT_CODE(kvtXSTH(650, 1e6), 2);
  Out o{};
  EXPECT_CODE(kvtVUSHCVWDERPTSWT(700, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8],
                                 &o[9], &o[10], &o[11], &o[12], &o[13]), 2);
  EXPECT_EQ(kvtVUSHCVWDERPTSST(400, &o[0], &o[1], &o[2], &o[3], &o[4], &o[5], &o[6], &o[7], &o[8],
                               &o[9], &o[10], &o[11], &o[12], &o[13]), 1.0);
  EXPECT_EQ(o[3], kvtHSST(400));
}

}  // namespace
