// Newton in two variables (p, T) on a Gibbs equation g(pi, tau), shared by
// regions 1, 2 and 5. `gibbs(p, tau)` gives the reduced derivatives there;
// pstar and tstar are the equation's reducing constants. The step is applied
// before the stop test, which therefore judges the residuals of the point
// before the last step; a solve that stops on the pass numbered `limit`
// still fails with error 3.
#pragma once

#include <cstdint>

#include "frame/raise.h"
#include "regions/constants.h"
#include "regions/gibbs.h"
#include "regions/water_calculator.h"

namespace kvt {

// On the residuals of h and s, with the Jacobian [[dh/dp, cp], [-dv/dT, cp/T]].
template <class GibbsAt>
void NewtonHS(GibbsAt gibbs, double pstar, double tstar, double h, double s, double tolh,
              double tols, int32_t limit, double& p, double& T) {
  const double c = RGAS / pstar;
  for (int64_t count = 1;; ++count) {
    const double tau = tstar / T;
    const Gibbs g = gibbs(p, tau);
    const double vT = (g.gp - g.gpt * tau) * c;
    const double hp = c * T * g.gp - vT * T;
    const double cp = -g.gtt * tau * tau * RGAS;
    const double sT = cp / T;
    const double det = sT * hp - cp * (-vT);
    const double Fh = RGAS * tstar * g.gt - h;
    const double Fs = (g.gt * tau - g.g) * RGAS - s;
    p += (Fs * cp - Fh * sT) / det;
    T += (Fh * (-vT) - Fs * hp) / det;
    if (count > limit) raise(3);
    if (BelowBand(Fh, tolh) && BelowBand(Fs, tols)) {
      if (count < limit) return;
      raise(3);
    }
  }
}

// On the residuals of v and h. A step past zero restarts p at 1000 Pa and T
// at the region's own restart temperature; a NaN passes these tests.
template <class GibbsAt>
void NewtonRH(GibbsAt gibbs, double pstar, double tstar, double density, double h, double tolr,
              double tolh, double restartT, int32_t limit, double& p, double& T) {
  const double c = RGAS / pstar;
  for (int64_t count = 1;; ++count) {
    const double tau = tstar / T;
    const Gibbs g = gibbs(p, tau);
    const double v = c * T * g.gp;
    const double vp = (1.0 / pstar) * T * c * g.gpp;
    const double vT = (g.gp - g.gpt * tau) * c;
    const double hp = v - vT * T;
    const double cp = -g.gtt * tau * tau * RGAS;
    const double det = hp * vT - cp * vp;
    const double Fh = RGAS * tstar * g.gt - h;
    const double Fv = v - 1.0 / density;
    const double Fr = 1.0 / v - density;
    p += (Fv * cp - Fh * vT) / det;
    T += (Fh * vp - Fv * hp) / det;
    if (p < 0) p = 1000.0;
    if (T < 0) T = restartT;
    if (count > limit) raise(3);
    if (BelowBand(Fh, tolh) && BelowBand(Fr, tolr)) {
      if (count < limit) return;
      raise(3);
    }
  }
}

}  // namespace kvt
