// Input validity ranges. A rule is a type whose Fails(engine, inputs...)
// answers whether the inputs of its family lie outside the range; the guarded
// call asks it only while checkRangeMode is nonzero. Every comparison is
// written so that a NaN is not caught and runs on to the finiteness test.
// Arguments a rule does not name (output slots and the like) are ignored.
#pragma once

#include "frame/engine.h"
#include "regions/constants.h"

namespace kvt {

// Bounds of the water families. All are inclusive: a value equal to a bound
// passes. The lowest pressure is the saturation pressure at 273.15 K while
// the lowest temperature is 273.16 K less a hair; the two do not describe one
// point, and that stays.
constexpr double kTMin = 273.15999999999;       // K
constexpr double kPMin = 611.212677444343;      // Pa
constexpr double kPMax = 100000000.0;           // Pa
constexpr double kTMax = 2273.15;               // K
constexpr double kTSplit = 1073.15;             // K; above it the pressure limit drops
constexpr double kPHighT = 10000000.0;          // Pa; pressure limit above kTSplit
constexpr double kTCrit = 647.096;              // K; top of the saturation families
constexpr double kPCrit = 22064000.0;           // Pa; top of kvtTSP
constexpr double kGasTMin = 200.0;              // K; span of the gas families
constexpr double kGasTMax = 2500.0;             // K

// The bounds at which the p,h and p,s rules evaluate regions 1 and 2 have
// their powers formed at load (H1PTLOW, H2PTMID and their entropy twins).
static_assert(kTMin == TLOW && kTSplit == TMID, "bounds of the fixed-temperature cores");

namespace rules {

// The tests of the p,T rule, split where other rules insert their own.
inline bool PTBase(double p, double T) {
  return T < kTMin || T > kTMax || p < kPMin || p > kPMax;
}
inline bool HighT(double p, double T) { return T > kTSplit && p > kPHighT; }
inline bool Dryness(double x) { return x < 0 || x > 1; }

// Saturation families by T.
struct T {
  template <class... X>
  static bool Fails(Engine&, double t, X&&...) { return t > kTCrit || t < kTMin; }
};

// kvtTSP.
struct P {
  template <class... X>
  static bool Fails(Engine&, double p, X&&...) { return p > kPCrit || p < kPMin; }
};

// Water by p, T.
struct PT {
  template <class... X>
  static bool Fails(Engine&, double p, double t, X&&...) {
    return PTBase(p, t) || HighT(p, t);
  }
};

// Water by p, T, x.
struct PTX {
  template <class... X>
  static bool Fails(Engine&, double p, double t, double x, X&&...) {
    return PTBase(p, t) || Dryness(x) || HighT(p, t);
  }
};

// Wet steam by T, x.
struct TX {
  template <class... X>
  static bool Fails(Engine& e, double t, double x, X&&...) {
    return T::Fails(e, t) || Dryness(x);
  }
};

// Dryness from T and a property: only T is tested.
struct XST {
  template <class... X>
  static bool Fails(Engine& e, double t, X&&...) { return T::Fails(e, t); }
};

// No comparison in any mode.
struct None {
  template <class... X>
  static bool Fails(Engine&, X&&...) { return false; }
};

// Frame markers for the settings functions: Getter clears the error code and
// reads with no guarded region; Plain leaves the error code as it stands.
struct Getter {};
struct Plain {};

// Water by p, h. The margin F = 1 + tolerance widens the enthalpy bounds,
// which are the region 1 value at the lowest temperature and the region 5 (or,
// above 10 MPa, region 2) value at the highest. F multiplies h itself on the
// lower side, so for a negative h the margin works against the caller.
struct PH {
  template <class... X>
  static bool Fails(Engine& e, double p, double h, X&&...) {
    if (p < kPMin || p > kPMax) return true;
    const double F = 1 + e.tolerance;
    if (F * h < e.water.H1PTLOW(p)) return true;  // H1PT at kTMin
    const double hmax = p <= kPHighT ? e.water.H5PT(p, kTMax) : e.water.H2PTMID(p);
    return h > F * hmax;
  }
};

// Water by p, s: as by p, h, but the lower side takes care of the sign of s.
struct PS {
  template <class... X>
  static bool Fails(Engine& e, double p, double s, X&&...) {
    if (p < kPMin || p > kPMax) return true;
    const double F = 1 + e.tolerance;
    const double G = s > 0 ? F : 1 / F;
    if (G * s < e.water.S1PTLOW(p)) return true;  // S1PT at kTMin
    const double smax = p <= kPHighT ? e.water.S5PT(p, kTMax) : e.water.S2PTMID(p);
    return s > F * smax;
  }
};

inline bool Pressure(double p) { return p < kPMin || p > kPMax; }

// Expansion from (p, T) to p2 with an efficiency; the efficiency is free.
struct EXP {
  template <class... X>
  static bool Fails(Engine&, double p, double t, double p2, X&&...) {
    return PTBase(p, t) || Pressure(p2) || HighT(p, t);
  }
};

// Expansion from (p, T, x) to p2 with an efficiency.
struct EXPX {
  template <class... X>
  static bool Fails(Engine&, double p, double t, double x, double p2, X&&...) {
    return PTBase(p, t) || Pressure(p2) || Dryness(x) || HighT(p, t);
  }
};

// Gases by gas and T, or by gas, p and T: only T is tested, and before the
// gas is looked up, so a bad T and a bad gas at once give 2.
struct GT {
  static bool GasT(double t) { return t < kGasTMin || t > kGasTMax; }
  template <class G>
  static bool Fails(Engine&, G, double t) { return GasT(t); }
  template <class G>
  static bool Fails(Engine&, G, double, double t) { return GasT(t); }
};

// The pressure test of the metastable family. It reads "p below the lowest
// pressure and at once above 10 MPa", which no real p can be; each half is
// negated rather than flipped, so a NaN (for which every comparison is false)
// makes both halves true. It thus stops exactly the NaN pressures, and lets
// through every real one, infinities included, whatever the range of the
// equation: the only test of the library that catches a NaN input.
inline bool MSPressure(double p) { return !(p >= kPMin) && !(kPHighT >= p); }

// Metastable steam by p, T: the pressure test; T no higher than the
// saturation temperature with the margin F = 1 + tolerance; and the state
// above the 5 % moisture line, judged by the dryness that the metastable
// enthalpy would give on the saturation line at that widened temperature.
struct MS {
  template <class... X>
  static bool Fails(Engine& e, double p, double t, X&&...) {
    if (MSPressure(p)) return true;
    const double F = 1 + e.tolerance;
    const double Tb = F * e.water.TSP(p);
    if (t > Tb) return true;
    const double y = e.water.XSTH(Tb, e.water.HMSPT(p, t));
    return 0.95 * F > y;
  }
};

}  // namespace rules
}  // namespace kvt
