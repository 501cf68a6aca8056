// Boundary curves between the regions: B23 in the p,T plane, and the region
// 1/3 and 2/3 boundaries in the h,s plane. Closed forms, no iteration; the
// h,s curves read their powers from the water calculator's tables.
#include <cmath>

#include "regions/water_calculator.h"
#include "state/boundaries_tables.h"

namespace kvt {

using namespace boundaries;

double WaterCalculator::P23T(double T) { return 1000000.0 * ((B23N3 * T + B23N2) * T + B23N1); }

// No test of p: below n5 MPa the root is of a negative number, and the
// non-finite result is the caller's error 1.
double WaterCalculator::T23P(double p) {
  return B23N4 + std::sqrt((p / 1000000.0 - B23N5) / B23N3);
}

double WaterCalculator::HB13S(double s) {
  const double sigma = s / 3800.0;
  return 1700000.0 * BackwardSum<HB13N, HB13I, HB13J>(powerA, sigma - 0.884, powerB, sigma - 0.864);
}

double WaterCalculator::TB23HS(double h, double s) {
  return 900.0 * BackwardSum<TB23N, TB23I, TB23J>(powerA, h / 3000000.0 - 0.727,
                                                  powerB, s / 5300.0 - 0.864);
}

double WaterCalculator::PB23HS(double h, double s) {
  return 100000000.0 * BackwardSum<PB23N, PB23I, PB23J>(powerA, h / 3000000.0 - 0.709,
                                                        powerB, s / 5300.0 - 0.824);
}

}  // namespace kvt
