// The water calculator: every water and steam core, as members, with the two
// power tables they use as scratch and a back reference through which they
// read the engine's settings at the moment of use.
#pragma once

#include <cstdint>

#include "regions/gibbs.h"
#include "regions/power_table.h"

namespace kvt {

class Engine;

// Raised failure: an integer code, caught only by the guarded call.
[[noreturn]] inline void raise(int32_t code) { throw code; }

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
  double V5PT(double p, double T);
  double U5PT(double p, double T);
  double S5PT(double p, double T);
  double H5PT(double p, double T);
  double CP5PT(double p, double T);
  double CV5PT(double p, double T);
  double W5PT(double p, double T);
  double JOULETHOMPSON5PT(double p, double T);
  double VUSHCVWDERPT5PT(double p, double T, Out14& out);

  // ---- Region 3 by density, T and by p, T ----
  double P3RT(double rho, double T);
  double U3RT(double rho, double T);
  double S3RT(double rho, double T);
  double H3RT(double rho, double T);
  double CP3RT(double rho, double T);
  double CV3RT(double rho, double T);
  double W3RT(double rho, double T);
  double JOULETHOMPSON3RT(double rho, double T);
  double VUSHCVWDERPT3RT(double rho, double T, Out14& out);
  // The density fit: which of its seven areas a state falls in, and the
  // estimated specific volume there.
  int32_t V3ESTAREA(double p, double T);
  double V3EST(double p, double T);
  double R3PTR0(double p, double T, double rho0);
  double R3PT(double p, double T);
  double V3PT(double p, double T);
  double U3PT(double p, double T);
  double S3PT(double p, double T);
  double H3PT(double p, double T);
  double CP3PT(double p, double T);
  double CV3PT(double p, double T);
  double W3PT(double p, double T);
  double JOULETHOMPSON3PT(double p, double T);
  double VUSHCVWDERPT3PT(double p, double T, Out14& out);

  // ---- Saturation line ----
  double PST(double T) const;
  double TSP(double p) const;
  double DPDTST(double T) const;
  double ROUGHRSWT(double T);
  double ROUGHRSST(double T);
  double ROUGHHSWS(double s);
  double ROUGHHSSS(double s);
  double TSATHS(double h, double s);

  // ---- Saturated phases and wet steam ----

  // ---- Boundary curves ----
  double P23T(double T);
  double T23P(double p);
  double HB13S(double s);
  double TB23HS(double h, double s);
  double PB23HS(double h, double s);

  // ---- State areas ----

  // ---- Composites by p, T and p, T, x ----

  // ---- Region 1, 2 and 5 inversions ----

  // ---- Region 3 inversions ----

  // ---- Composites by p, h; p, s; h, s ----

  // ---- Expansion and metastable steam ----

  // ---- Transport ----
  double THERMCONDRT(double rho, double T);
  double DYNVISRT(double rho, double T);
  double SURFTENT(double T);

  PowerTable powerA;
  PowerTable powerB;
  Engine* engine;

 private:
  template <int SA, int SB>
  Gibbs Region1Sums(double p, double tau);
  template <int SA, int SB>
  Gibbs Region2Residual(double p, double tau);
  template <int S>
  void Region2Ideal(PowerTable& table, double tau, Gibbs& g);
  template <int SA, int SB>
  Gibbs Region5Sums(double pi, double tau, Gibbs start, int32_t countB);
};

}  // namespace kvt
