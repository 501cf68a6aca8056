// The water calculator: every water and steam core, as members, with the two
// power tables they use as scratch and a back reference through which they
// read the engine's settings at the moment of use.
#pragma once

#include <cmath>
#include <cstdint>

#include "regions/gibbs.h"
#include "regions/power_table.h"

namespace kvt {

class Engine;

// Raised failure: an integer code, caught only by the guarded call.
[[noreturn]] inline void raise(int32_t code) { throw code; }

// Stop tests of the iterative solves, inclusive and strict. A NaN counts as
// inside the band: the solve ends at once and the NaN reaches the finiteness
// test of the guarded call (error 1) instead of running out of passes.
inline bool WithinBand(double x, double band) { return !(x > band || -x > band); }
inline bool BelowBand(double x, double band) { return !(x >= band || -x >= band); }

// Stop band of a two-variable solve for a target x: relative, with a floor
// for targets near zero.
inline double RelativeBand(double x, double tolerance) {
  return std::fabs(x) <= 1.0 ? 10000.0 * tolerance : std::fabs(x * tolerance);
}

class WaterCalculator {
 public:
  explicit WaterCalculator(Engine* engine);
  ~WaterCalculator();
  WaterCalculator(const WaterCalculator&) = delete;
  WaterCalculator& operator=(const WaterCalculator&) = delete;

  // ---- Region 1 by p, T ----
  double V1PT(double p, double T);
  double U1PT(double p, double T);
  double S1PT(double p, double T);
  double H1PT(double p, double T);
  double CP1PT(double p, double T);
  double CV1PT(double p, double T);
  double W1PT(double p, double T);
  double JOULETHOMPSON1PT(double p, double T);
  double VUSHCVWDERPT1PT(double p, double T, Out14& out);

  // ---- Region 2 by p, T ----
  double V2PT(double p, double T);
  double U2PT(double p, double T);
  double S2PT(double p, double T);
  double H2PT(double p, double T);
  double CP2PT(double p, double T);
  double CV2PT(double p, double T);
  double W2PT(double p, double T);
  double JOULETHOMPSON2PT(double p, double T);
  double VUSHCVWDERPT2PT(double p, double T, Out14& out);

  // ---- Region 5 by p, T ----

  // ---- Region 3 by density, T and by p, T ----

  // ---- Saturation line ----

  // ---- Saturated phases and wet steam ----

  // ---- Boundary curves ----

  // ---- State areas ----

  // ---- Composites by p, T and p, T, x ----

  // ---- Region 1, 2 and 5 inversions ----
  // Region 1: backward equations, then Newton refinement on the basic
  // equation unless toleranceMode is 0.
  double T1PHBACK(double p, double h);
  double T1PSBACK(double p, double s);
  double P1HSBACK(double h, double s);
  double T1PH(double p, double h);
  double T1PS(double p, double s);
  double P1HS(double h, double s);
  double T1HS(double h, double s);
  double PT1HS(double h, double s, double& p, double& T);
  double PT1RH(double density, double h, double& p, double& T);

  // Region 2: the sub-region backward equations, each usable by itself, and
  // the boundaries between the sub-regions.
  double T2APH(double p, double h);
  double T2BPH(double p, double h);
  double T2CPH(double p, double h);
  double T2APS(double p, double s);
  double T2BPS(double p, double s);
  double T2CPS(double p, double s);
  double P2AHSBACK(double h, double s);
  double P2BHSBACK(double h, double s);
  double P2CHSBACK(double h, double s);
  double P2B2CH(double h);
  double H2B2CP(double p);
  double H2ABS(double s);
  double T2PH(double p, double h);
  double T2PS(double p, double s);
  double P2HS(double h, double s);
  double T2HS(double h, double s);
  double PT2HS(double h, double s, double& p, double& T);
  double PT2RH(double density, double h, double& p, double& T);

  // Newton refinement in two variables behind PT1HS, PT1RH, PT2HS, PT2RH:
  // moves (p, T) in place from the start given, returns 1.0 or raises 3.
  double NEWTON1HS(double h, double s, double& p, double& T);
  double NEWTON1RH(double density, double h, double& p, double& T);
  double NEWTON2HS(double h, double s, double& p, double& T);
  double NEWTON2RH(double density, double h, double& p, double& T);

  // ---- Region 3 inversions ----

  // ---- Composites by p, h; p, s; h, s ----

  // ---- Expansion and metastable steam ----

  // ---- Transport ----

  PowerTable powerA;
  PowerTable powerB;
  Engine* engine;

 private:
  // Region 1 and 2 passes (regions/region1_sums.h, region2_sums.h): FillA
  // fills powerA for a fixed p, Pass refills powerB and sums; Sums and
  // Residual do both.
  template <int SA>
  void Region1FillA(double p);
  template <int SA, int SB>
  Gibbs Region1Pass(double tau);
  template <int SA, int SB>
  Gibbs Region1Sums(double p, double tau);
  template <int SA>
  void Region2FillA(double p);
  template <int SA, int SB>
  Gibbs Region2ResidualPass(double tau);
  template <int SA, int SB>
  Gibbs Region2Residual(double p, double tau);
  template <int S>
  void Region2Ideal(PowerTable& table, double tau, Gibbs& g);
  Gibbs Region2Full(double p, double tau);

  // Backward equation of the sub-region the state lies in.
  double T2PHBACK(double p, double h);
  double T2PSBACK(double p, double s);
  double P2HSBACK(double h, double s);
};

}  // namespace kvt
