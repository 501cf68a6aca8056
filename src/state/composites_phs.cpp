// Properties by p, h; p, s; and h, s. Each composite resolves the area once,
// finds the state of that area once (T, and the density in region 3, or T
// and x when wet) and then evaluates the property on the region's own
// equation. The property side is one table of the region cores.
#include "frame/engine.h"
#include "regions/water_calculator.h"

namespace kvt {

using W = WaterCalculator;

namespace {

struct PropCores {
  W::PTCore r1, r2, r5;  // by p, T
  W::RTCore r3;          // by density, T
  W::TXCore wet;         // by T, x
};

// Indexed by W::Prop.
const PropCores kProps[] = {
    {&W::V1PT, &W::V2PT, &W::V5PT, &W::V3RT, &W::VSTX},
    {&W::U1PT, &W::U2PT, &W::U5PT, &W::U3RT, &W::USTX},
    {&W::S1PT, &W::S2PT, &W::S5PT, &W::S3RT, &W::SSTX},
    {&W::H1PT, &W::H2PT, &W::H5PT, &W::H3RT, &W::HSTX},
    {&W::CP1PT, &W::CP2PT, &W::CP5PT, &W::CP3RT, &W::CPSTX},
    {&W::CV1PT, &W::CV2PT, &W::CV5PT, &W::CV3RT, &W::CVSTX},
    {&W::W1PT, &W::W2PT, &W::W5PT, &W::W3RT, &W::WSTX},
    {&W::JOULETHOMPSON1PT, &W::JOULETHOMPSON2PT, &W::JOULETHOMPSON5PT, &W::JOULETHOMPSON3RT,
     &W::JOULETHOMPSONSTX},
    {nullptr, nullptr, nullptr, nullptr, &W::THERMCONDSTX},
    {nullptr, nullptr, nullptr, nullptr, &W::DYNVISSTX},
    {nullptr, nullptr, nullptr, nullptr, &W::KINVISSTX},
    {nullptr, nullptr, nullptr, nullptr, &W::PRANDTLESTX},
    {nullptr, nullptr, nullptr, nullptr, &W::KSTX},
};

}  // namespace

double W::RegionValue(Prop prop, const WaterState& st) {
  const PropCores& c = kProps[static_cast<int>(prop)];
  switch (st.area) {
    case 1: return (this->*c.r1)(st.p, st.T);
    case 2: return (this->*c.r2)(st.p, st.T);
    case 3: return (this->*c.r3)(st.rho, st.T);
    case 5: return (this->*c.r5)(st.p, st.T);
    default: raise(4);
  }
}

double W::OfState(Prop prop, const WaterState& st, bool byHS) {
  if (st.area == 4) return (this->*kProps[static_cast<int>(prop)].wet)(st.T, st.x);
  if (prop <= Prop::JT) return RegionValue(prop, st);
  // Transport and derived values: from the density in region 3, from the
  // region's volume elsewhere.
  const bool r3 = st.area == 3;
  const double v = r3 ? 0.0 : RegionValue(Prop::V, st);
  const double rho = r3 ? st.rho : 1 / v;
  switch (prop) {
    case Prop::THERMCOND: return THERMCONDRT(rho, st.T);
    case Prop::DYNVIS: return DYNVISRT(rho, st.T);
    case Prop::KINVIS: {
      const double mu = DYNVISRT(rho, st.T);
      return r3 ? mu / rho : mu * v;
    }
    case Prop::PRANDTLE: {
      const double mu = DYNVISRT(rho, st.T);
      if (byHS) {  // the quotient first, then the product
        const double ratio = mu / THERMCONDRT(rho, st.T);
        return ratio * RegionValue(Prop::CP, st);
      }
      const double cp = RegionValue(Prop::CP, st);
      return mu * cp / THERMCONDRT(rho, st.T);
    }
    case Prop::K: {
      // k = w^2 / (p v), from the speed of sound.
      const double w = RegionValue(Prop::W, st);
      if (!r3) return w * w / (v * st.p);
      if (byHS) return w * w / (P3RT(rho, st.T) / rho);  // no pressure in the (h, s) state
      return w * (rho / st.p) * w;
    }
    default: raise(4);
  }
}

W::WaterState W::StatePH(double p, double h) {
  WaterState st{WATERSTATEAREAPH(p, h), p, 0, 0, 0};
  switch (st.area) {
    case 1: st.T = T1PH(p, h); break;
    case 2: st.T = T2PH(p, h); break;
    case 3: R3PHSOLVE(p, h, st.rho, st.T); break;
    case 4: st.T = TSP(p); st.x = XSTH(st.T, h); break;
    case 5: st.T = T5PH(p, h); break;
    default: raise(4);
  }
  return st;
}

W::WaterState W::StatePS(double p, double s) {
  WaterState st{WATERSTATEAREAPS(p, s), p, 0, 0, 0};
  switch (st.area) {
    case 1: st.T = T1PS(p, s); break;
    case 2: st.T = T2PS(p, s); break;
    case 3: R3PSSOLVE(p, s, st.rho, st.T); break;
    case 4: st.T = TSP(p); st.x = XSTS(st.T, s); break;
    case 5: st.T = T5PS(p, s); break;
    default: raise(4);
  }
  return st;
}

// In the wet area the enthalpy alone gives x; s only serves to find T.
W::WaterState W::StateHS(double h, double s) {
  WaterState st{WATERSTATEAREAHS(h, s), 0, 0, 0, 0};
  switch (st.area) {
    case 1: PT1HS(h, s, st.p, st.T); break;
    case 2: PT2HS(h, s, st.p, st.T); break;
    case 3: RT3HS(h, s, st.rho, st.T); break;
    case 4: st.T = TSHS(h, s); st.x = XSTH(st.T, h); break;
    case 5: PT5HS(h, s, st.p, st.T); break;
    default: raise(4);
  }
  return st;
}

// ---- by p, h ----
double W::TPH(double p, double h) {
  switch (WATERSTATEAREAPH(p, h)) {
    case 1: return T1PH(p, h);
    case 2: return T2PH(p, h);
    case 3: return T3PH(p, h);
    case 4: return TSP(p);
    case 5: return T5PH(p, h);
    default: raise(4);
  }
}
double W::VPH(double p, double h) { return OfState(Prop::V, StatePH(p, h), false); }
double W::UPH(double p, double h) { return OfState(Prop::U, StatePH(p, h), false); }
double W::SPH(double p, double h) { return OfState(Prop::S, StatePH(p, h), false); }
double W::CPPH(double p, double h) { return OfState(Prop::CP, StatePH(p, h), false); }
double W::CVPH(double p, double h) { return OfState(Prop::CV, StatePH(p, h), false); }
double W::WPH(double p, double h) { return OfState(Prop::W, StatePH(p, h), false); }
double W::JOULETHOMPSONPH(double p, double h) { return OfState(Prop::JT, StatePH(p, h), false); }
double W::THERMCONDPH(double p, double h) {
  return OfState(Prop::THERMCOND, StatePH(p, h), false);
}
double W::DYNVISPH(double p, double h) { return OfState(Prop::DYNVIS, StatePH(p, h), false); }
double W::KINVISPH(double p, double h) { return OfState(Prop::KINVIS, StatePH(p, h), false); }
double W::PRANDTLEPH(double p, double h) {
  return OfState(Prop::PRANDTLE, StatePH(p, h), false);
}
double W::KPH(double p, double h) { return OfState(Prop::K, StatePH(p, h), false); }

// A state outside the wet area has no dryness: error 2, not 0 or 1.
double W::XPH(double p, double h) {
  if (WATERSTATEAREAPH(p, h) != 4) raise(2);
  return XSTH(TSP(p), h);
}

// ---- by p, s ----
double W::TPS(double p, double s) {
  switch (WATERSTATEAREAPS(p, s)) {
    case 1: return T1PS(p, s);
    case 2: return T2PS(p, s);
    case 3: return T3PS(p, s);
    case 4: return TSP(p);
    case 5: return T5PS(p, s);
    default: raise(4);
  }
}
double W::VPS(double p, double s) { return OfState(Prop::V, StatePS(p, s), false); }
double W::UPS(double p, double s) { return OfState(Prop::U, StatePS(p, s), false); }
double W::HPS(double p, double s) { return OfState(Prop::H, StatePS(p, s), false); }
double W::JOULETHOMPSONPS(double p, double s) { return OfState(Prop::JT, StatePS(p, s), false); }
double W::THERMCONDPS(double p, double s) {
  return OfState(Prop::THERMCOND, StatePS(p, s), false);
}
double W::DYNVISPS(double p, double s) { return OfState(Prop::DYNVIS, StatePS(p, s), false); }
double W::KINVISPS(double p, double s) { return OfState(Prop::KINVIS, StatePS(p, s), false); }
double W::PRANDTLEPS(double p, double s) {
  return OfState(Prop::PRANDTLE, StatePS(p, s), false);
}
double W::KPS(double p, double s) { return OfState(Prop::K, StatePS(p, s), false); }

// cp, cv and w by p, s take region 3 by T and the p,T functions, which solve
// the density once more; the results agree with the state's within the
// solves' tolerance.
double W::Region3ByPS(PTCore byPT, Prop prop, double p, double s) {
  if (WATERSTATEAREAPS(p, s) == 3) return (this->*byPT)(p, T3PS(p, s));
  return OfState(prop, StatePS(p, s), false);
}
double W::CPPS(double p, double s) { return Region3ByPS(&W::CP3PT, Prop::CP, p, s); }
double W::CVPS(double p, double s) { return Region3ByPS(&W::CV3PT, Prop::CV, p, s); }
double W::WPS(double p, double s) { return Region3ByPS(&W::W3PT, Prop::W, p, s); }

double W::XPS(double p, double s) {
  if (WATERSTATEAREAPS(p, s) != 4) raise(2);
  return XSTS(TSP(p), s);
}

// ---- by h, s ----
double W::PHS(double h, double s) {
  switch (WATERSTATEAREAHS(h, s)) {
    case 1: return P1HS(h, s);
    case 2: return P2HS(h, s);
    case 3: return P3HS(h, s);
    case 4: return PST(TSHS(h, s));
    case 5: return P5HS(h, s);
    default: raise(4);
  }
}
double W::THS(double h, double s) {
  switch (WATERSTATEAREAHS(h, s)) {
    case 1: return T1HS(h, s);
    case 2: return T2HS(h, s);
    case 3: return T3HS(h, s);
    case 4: return TSHS(h, s);
    case 5: return T5HS(h, s);
    default: raise(4);
  }
}
double W::PTHS(double h, double s, double& p, double& T) {
  switch (WATERSTATEAREAHS(h, s)) {
    case 1: return PT1HS(h, s, p, T);
    case 2: return PT2HS(h, s, p, T);
    case 3: return PT3HS(h, s, p, T);
    case 4:
      T = TSHS(h, s);
      p = PST(T);
      return 1.0;
    case 5: return PT5HS(h, s, p, T);
    default: raise(4);
  }
}
double W::VHS(double h, double s) { return OfState(Prop::V, StateHS(h, s), true); }
double W::UHS(double h, double s) { return OfState(Prop::U, StateHS(h, s), true); }
double W::CPHS(double h, double s) { return OfState(Prop::CP, StateHS(h, s), true); }
double W::CVHS(double h, double s) { return OfState(Prop::CV, StateHS(h, s), true); }
double W::WHS(double h, double s) { return OfState(Prop::W, StateHS(h, s), true); }
double W::JOULETHOMPSONHS(double h, double s) { return OfState(Prop::JT, StateHS(h, s), true); }
double W::THERMCONDHS(double h, double s) {
  return OfState(Prop::THERMCOND, StateHS(h, s), true);
}
double W::DYNVISHS(double h, double s) { return OfState(Prop::DYNVIS, StateHS(h, s), true); }
double W::KINVISHS(double h, double s) { return OfState(Prop::KINVIS, StateHS(h, s), true); }
double W::PRANDTLEHS(double h, double s) {
  return OfState(Prop::PRANDTLE, StateHS(h, s), true);
}
double W::KHS(double h, double s) { return OfState(Prop::K, StateHS(h, s), true); }

// The dryness of the (h, s) solve itself, not the one from h at T.
double W::XHS(double h, double s) {
  if (WATERSTATEAREAHS(h, s) != 4) raise(2);
  double T = 0, x = 0;
  TXSHS(h, s, T, x);
  return x;
}

}  // namespace kvt
