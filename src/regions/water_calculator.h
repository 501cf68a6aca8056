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

  // ---- State areas ----

  // ---- Composites by p, T and p, T, x ----

  // ---- Region 1, 2 and 5 inversions ----

  // ---- Region 3 inversions ----
  // The 3a / 3b split by p, h: enthalpy on the boundary line at pressure p.
  double H3AB(double p) const;
  // Backward equations of the two subregions, and the same with the
  // subregion chosen: by h against H3AB(p), or by s against the split entropy.
  double T3APHBACK(double p, double h);
  double T3BPHBACK(double p, double h);
  double V3APHBACK(double p, double h);
  double V3BPHBACK(double p, double h);
  double T3APSBACK(double p, double s);
  double T3BPSBACK(double p, double s);
  double V3APSBACK(double p, double s);
  double V3BPSBACK(double p, double s);
  double P3AHSBACK(double h, double s);
  double P3BHSBACK(double h, double s);
  double T3PHBACK(double p, double h);
  double V3PHBACK(double p, double h);
  double T3PSBACK(double p, double s);
  double V3PSBACK(double p, double s);
  double P3HSBACK(double h, double s);
  // Density and T in one call, refined unless toleranceMode is 0; result 1.
  double R3PHSOLVE(double p, double h, double& rho, double& T);
  double R3PSSOLVE(double p, double s, double& rho, double& T);
  // Newton in (density, T) for given h, s, from the caller's start values.
  void R3HSSOLVE(double h, double s, double& rho, double& T);
  double T3PH(double p, double h);
  double V3PH(double p, double h);
  double T3PS(double p, double s);
  double V3PS(double p, double s);
  double P3HS(double h, double s);
  double T3HS(double h, double s);
  double V3HS(double h, double s);
  double RT3HS(double h, double s, double& rho, double& T);
  double PT3HS(double h, double s, double& p, double& T);
  double T3RH(double rho, double h);

  // ---- Composites by p, h; p, s; h, s ----

  // ---- Expansion and metastable steam ----

  // ---- Transport ----

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
  // Start of the (h, s) group: p from backward p(h,s), then T and density
  // from the backward equations by p,h and p,s at that p.
  void RT3HSBACK(double h, double s, double& p, double& rho, double& T);
};

}  // namespace kvt
