// State areas by p, h; p, s; and h, s. By pressure there are three branches:
// above the critical pressure, below the saturation pressure at 623.15 K, and
// between them, where the saturated enthalpies or entropies come from the
// region 3 density solve. In the h,s plane the areas are cut by fixed lines
// and by the rough saturated and boundary curves, with no solve at all.
#include <cmath>

#include "frame/engine.h"
#include "regions/constants.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {
constexpr double kTR3Low = 623.15;  // K
constexpr double kSCrit = 4412.02148223476;  // critical entropy, J/(kg K)
}  // namespace

using W = WaterCalculator;

int32_t W::AreaPY(double p, double y, PTCore y1, PTCore y2, RTCore y3, TCore water, TCore steam,
                  TCore y1Low, TCore y2Mid, bool entropy) {
  const double k = 1 + engine->tolerance;
  if (p > PCRIT) {
    if ((this->*y1Low)(p) >= y * k) return 1;
    if ((this->*y2)(p, T23P(p)) > y * k) return 3;
    return 2;
  }
  if (p < PSAT350) {
    if (p <= P5MAX && (this->*y2Mid)(p) * k < y) return 5;
    const double Ts = TSP(p);
    if (entropy) {
      // The liquid side is tested first by entropy.
      if ((this->*water)(Ts) >= y) return 1;
      if ((this->*steam)(Ts) <= y) return 2;
      return 4;
    }
    if ((this->*steam)(Ts) <= y) return 2;
    if ((this->*water)(Ts) < y) return 4;
    return 1;
  }
  // Here the tolerance widens the boundary temperature, and the saturated
  // values have no margin at all.
  if ((this->*y1)(p, kTR3Low * k) >= y) return 1;
  const double Ts = TSP(p);
  if ((this->*y3)(R3PTR0(p, Ts, ROUGHRSWT(Ts)), Ts) >= y) return 3;
  if ((this->*y3)(R3PTR0(p, Ts, ROUGHRSST(Ts)), Ts) > y) return 4;
  if ((this->*y2)(p, T23P(p)) > y * k) return 3;
  return 2;
}

int32_t W::WATERSTATEAREAPH(double p, double h) {
  return AreaPY(p, h, &W::H1PT, &W::H2PT, &W::H3RT, &W::HSWT, &W::HSST, &W::H1PTR3LOW,
                &W::H2PTMID, false);
}

int32_t W::WATERSTATEAREAPS(double p, double s) {
  return AreaPY(p, s, &W::S1PT, &W::S2PT, &W::S3RT, &W::SSWT, &W::SSST, &W::S1PTR3LOW,
                &W::S2PTMID, true);
}

int32_t W::WATERSTATEAREAHS(double h, double s) {
  if (h >= 2812953.67524354) {
    if (h <= 4114732.78376497) return 2;
    if (s <= 7408.67489346782) return 2;
    if (4160807.93569341 - 253259841911.804 * std::exp(-0.00209479468123115 * s) >= h) return 2;
    return 5;
  }
  if (s > kSCrit) {
    if (ROUGHHSSS(s) > h) return 4;
    if (s < 5041) return 3;
    if (s > 5269) return 2;
    if (TB23HS(h, s) > T23P(PB23HS(h, s))) return 2;
    return 3;
  }
  if (ROUGHHSWS(s) > h) return 4;
  if (h < 1553900) return 1;
  if (h > 1670850) return 3;
  if (HB13S(s) < h) return 3;
  return 1;
}

}  // namespace kvt
