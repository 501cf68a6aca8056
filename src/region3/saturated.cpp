// The two saturated phases by temperature. Each call works out the
// saturation pressure and evaluates the region equation on the proper side of
// the line: regions 1 and 2 up to 623.15 K, region 3 above it, at the density
// that the Newton solve finds from the rough saturation density. Nothing is
// smoothed at 623.15 K and nothing is special at the critical point.
#include "frame/engine.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {
constexpr double kTSplit = 623.15;  // saturation line meets region 3
}

using W = WaterCalculator;

double W::V3RT(double rho, double) { return 1 / rho; }

double W::Saturated(bool steam, PTCore r12, RTCore r3, double T) {
  const double ps = PST(T);
  if (T <= kTSplit) return (this->*r12)(ps, T);
  const double rho = R3PTR0(ps, T, steam ? ROUGHRSST(T) : ROUGHRSWT(T));
  return (this->*r3)(rho, T);
}

double W::SaturatedMany(bool steam, double T, Out14& out) {
  const double ps = PST(T);
  if (T <= kTSplit) return steam ? VUSHCVWDERPT2PT(ps, T, out) : VUSHCVWDERPT1PT(ps, T, out);
  const double rho = R3PTR0(ps, T, steam ? ROUGHRSST(T) : ROUGHRSWT(T));
  return VUSHCVWDERPT3RT(rho, T, out);
}

// cv of a state on the line approached from inside the two-phase area.
double W::TwoPhaseCV(bool steam, double T) {
  Out14 o;
  SaturatedMany(steam, T, o);
  const double cv = o[4], dvdp = o[6], dvdT = o[10];
  const double a = DPDTST(T);
  return cv - (dvdT / dvdp + a) * (a * dvdp + dvdT) * T;
}

double W::VSWT(double T) { return Saturated(false, &W::V1PT, &W::V3RT, T); }
double W::USWT(double T) { return Saturated(false, &W::U1PT, &W::U3RT, T); }
double W::SSWT(double T) { return Saturated(false, &W::S1PT, &W::S3RT, T); }
double W::HSWT(double T) { return Saturated(false, &W::H1PT, &W::H3RT, T); }
double W::CPSWT(double T) { return Saturated(false, &W::CP1PT, &W::CP3RT, T); }
double W::CVSWT(double T) { return Saturated(false, &W::CV1PT, &W::CV3RT, T); }
double W::WSWT(double T) { return Saturated(false, &W::W1PT, &W::W3RT, T); }
double W::JOULETHOMPSONSWT(double T) {
  return Saturated(false, &W::JOULETHOMPSON1PT, &W::JOULETHOMPSON3RT, T);
}
double W::CVDPSWT(double T) { return TwoPhaseCV(false, T); }
double W::VUSHCVWDERPTSWT(double T, Out14& out) { return SaturatedMany(false, T, out); }

double W::VSST(double T) { return Saturated(true, &W::V2PT, &W::V3RT, T); }
double W::USST(double T) { return Saturated(true, &W::U2PT, &W::U3RT, T); }
double W::SSST(double T) { return Saturated(true, &W::S2PT, &W::S3RT, T); }
double W::HSST(double T) { return Saturated(true, &W::H2PT, &W::H3RT, T); }
double W::CPSST(double T) { return Saturated(true, &W::CP2PT, &W::CP3RT, T); }
double W::CVSST(double T) { return Saturated(true, &W::CV2PT, &W::CV3RT, T); }
double W::WSST(double T) { return Saturated(true, &W::W2PT, &W::W3RT, T); }
double W::JOULETHOMPSONSST(double T) {
  return Saturated(true, &W::JOULETHOMPSON2PT, &W::JOULETHOMPSON3RT, T);
}
double W::CVDPSST(double T) { return TwoPhaseCV(true, T); }
double W::VUSHCVWDERPTSST(double T, Out14& out) { return SaturatedMany(true, T, out); }

// Transport and derived values: each ingredient is evaluated in full.
double W::SaturatedThermCond(bool steam, double T) {
  return THERMCONDRT(1 / (steam ? VSST(T) : VSWT(T)), T);
}
double W::SaturatedDynVis(bool steam, double T) {
  return DYNVISRT(1 / (steam ? VSST(T) : VSWT(T)), T);
}

double W::THERMCONDSWT(double T) { return SaturatedThermCond(false, T); }
double W::THERMCONDSST(double T) { return SaturatedThermCond(true, T); }
double W::DYNVISSWT(double T) { return SaturatedDynVis(false, T); }
double W::DYNVISSST(double T) { return SaturatedDynVis(true, T); }

double W::PRANDTLESWT(double T) {
  const double mu = DYNVISSWT(T), cp = CPSWT(T);
  return mu * cp / THERMCONDSWT(T);
}
double W::PRANDTLESST(double T) {
  const double mu = DYNVISSST(T), cp = CPSST(T);
  return mu * cp / THERMCONDSST(T);
}
double W::KINVISSWT(double T) {
  const double mu = DYNVISSWT(T);
  return mu * VSWT(T);
}
double W::KINVISSST(double T) {
  const double mu = DYNVISSST(T);
  return mu * VSST(T);
}
// Isentropic exponent from the speed of sound: w^2 / (ps v).
double W::KSWT(double T) {
  const double w = WSWT(T), ps = PST(T);
  return w * w / (ps * VSWT(T));
}
double W::KSST(double T) {
  const double w = WSST(T), ps = PST(T);
  return w * w / (ps * VSST(T));
}

double W::RST(double T) {
  const double steam = HSST(T);
  return steam - HSWT(T);
}

}  // namespace kvt
