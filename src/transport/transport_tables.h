// Coefficients of the 1985 IAPS transport equations (revised releases), in
// the releases' order.
#pragma once

#include <cstdint>

namespace kvt::transport {

// Thermal conductivity, interpolating equation for industrial use.
constexpr double TSTARK = 647.256;   // K
constexpr double RHOSTARK = 317.7;   // kg/m3
constexpr double K0A[4] = {0.0102811, 0.0299621, 0.0156146, -0.00422464};

// Viscosity: dilute-gas denominator H0..H3 and the 19 nonzero H_ij of
// (1/t - 1)^i (r - 1)^j, grouped by j, then i.
constexpr double TSTARMU = 647.226;   // K
constexpr double RHOSTARMU = 317.763; // kg/m3
constexpr double MUSTAR = 0.000055071; // Pa s
constexpr double MU0H[4] = {1.0, 0.978197, 0.579829, -0.202354};
constexpr double MU1H[19] = {
    0.5132047, 0.3205656, -0.7782567, 0.1885447, 0.2151778, 0.7317883, 1.241044,
    1.476783, -0.2818107, -1.070786, -1.263184, 0.1778064, 0.4605040, 0.2340379,
    -0.4924179, -0.04176610, 0.1600435, -0.01578386, -0.003629481,
};
constexpr int32_t MU1I[19] = {
    0, 1, 4, 5, 0, 1, 2, 3, 0, 1, 2, 0, 1, 2, 3, 0, 3, 1, 3,
};
constexpr int32_t MU1J[19] = {
    0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 3, 3, 3, 3, 4, 4, 5, 6,
};

}  // namespace kvt::transport
