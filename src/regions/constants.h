// Constants shared by the water and steam equations. Several carry odd last
// digits: they are the doubles that the products and quotients behind them
// come out as, and they are kept to the last bit.
#pragma once

namespace kvt {

constexpr double RGAS = 461.526;                   // specific gas constant of water, J/(kg K)
constexpr double TSTAR1 = 1386.0;                  // region 1 reducing temperature, K
constexpr double P1STAR = 16530000.000000002;      // region 1 reducing pressure, 16.53 * 1e6 in doubles
constexpr double TSTAR2 = 540.0;                   // region 2 reducing temperature, K
constexpr double P2STAR = 1000000.0;               // region 2 reducing pressure, Pa
constexpr double TSTAR5 = 1000.0;                  // region 5 reducing temperature, K
constexpr double P5STAR = 1000000.0;               // region 5 reducing pressure, Pa
constexpr double PCRIT = 22064000.0;               // critical pressure, Pa
constexpr double PMIN = 611.212677444343;          // saturation pressure at 273.15 K, Pa
constexpr double TLOW = 273.15999999999;           // 273.16 - 1e-11: lowest temperature, K
constexpr double TMID = 1073.15;                   // top of region 2, bottom of region 5, K
constexpr double THIGH = 2273.15;                  // top of region 5, K
constexpr double PMAX = 100000000.0;               // top pressure of regions 1 and 2, Pa
constexpr double P5MAX = 10000000.0;               // top pressure of region 5, Pa
constexpr double P2AB = 4000000.0;                 // sub-regions 2a / 2b, Pa
constexpr double PSAT350 = 16529164.252621602;     // saturation pressure at 623.15 K, Pa
constexpr double VCRIT = 0.003105590062111801;     // 1 / 322, m3/kg
constexpr double SURFTENB = 0.2358;                // surface tension scale B, N/m (IAPWS 1994)

}  // namespace kvt
