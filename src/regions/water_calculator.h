// The water calculator: every water and steam core, as members, with the two
// power tables they use as scratch and a back reference through which they
// read the engine's settings at the moment of use.
#pragma once

#include <cstdint>

#include "frame/raise.h"
#include "regions/gibbs.h"
#include "regions/power_table.h"

namespace kvt {

class Engine;

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

  // ---- Region 3 inversions ----

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
};

}  // namespace kvt
