#include "regions/water_calculator.h"

#include <cmath>

#include "regions/constants.h"

namespace kvt {

PowerTable::PowerTable(Engine* owner) : values(new double[kSize]), owner(owner) {
  values[0] = 1.0;
}

PowerTable::~PowerTable() {
  owner = nullptr;
  delete[] values;
  values = nullptr;
}

WaterCalculator::WaterCalculator(Engine* engine) : powerA(engine), powerB(engine), engine(engine) {}

WaterCalculator::~WaterCalculator() { engine = nullptr; }

// The fourteen outputs from the reduced Gibbs derivatives, in the order in
// which each builds on the ones before.
void GibbsOutputs(const Gibbs& g, double p, double T, double tau, double pstar, double tstar,
                  Out14& out) {
  const double c = RGAS / pstar;
  const double v = c * g.gp * T;
  const double dvdp = (RGAS / pstar / pstar) * g.gpp * T;
  const double d = g.gp - g.gpt * tau;
  const double dvdT = d * c;
  const double cv = (d * d / g.gpp - g.gtt * tau * tau) * RGAS;
  const double w = std::sqrt(RGAS * g.gp * g.gp * T / (d * d / (g.gtt * tau * tau) - g.gpp));
  const double s = (g.gt * tau - g.g) * RGAS;
  const double dsdp = -dvdT;
  const double h = RGAS * tstar * g.gt;
  const double dhdp = v - T * dvdT;
  const double cp = -g.gtt * tau * tau * RGAS;
  const double u = h - p * v;
  const double dudp = dhdp - (p * dvdp + v);
  const double dudT = cp - p * dvdT;
  const double dsdT = (1.0 / T) * cp;
  const double r[14] = {v, u, s, h, cv, w, dvdp, dudp, dsdp, dhdp, dvdT, dudT, dsdT, cp};
  for (int i = 0; i < 14; ++i) out[i] = r[i];
}

}  // namespace kvt
