// IAPWS-IF97 supplementary equation for the metastable-vapour region: the
// residual part (Table 16) in the table order, and the ideal-gas part, which
// is region 2's (Table 10, exponents region2::J0) with the first two
// coefficients refitted to this equation.
#pragma once

#include <cstdint>

namespace kvt::metastable {

constexpr double N0[9] = {
    -0.96937268393049E+01, 0.10087275970006E+02, -0.56087911283020E-02, 0.71452738081455E-01,
    -0.40710498223928E+00, 0.14240819171444E+01, -0.43839511319450E+01, -0.28408632460772E+00,
    0.21268463753307E-01,
};
constexpr double N[13] = {
    -0.73362260186506E-02, -0.88223831943146E-01, -0.72334555213245E-01, -0.40813178534455E-02,
    0.20097803380207E-02,  -0.53045921898642E-01, -0.76190409086970E-02, -0.63498037657313E-02,
    -0.86043093028588E-01, 0.75321581522770E-02,  -0.79238375446139E-02, -0.22888160778447E-03,
    -0.26456501482810E-02,
};
constexpr int32_t I[13] = {1, 1, 1, 1, 2, 2, 2, 3, 3, 4, 4, 5, 5};
constexpr int32_t J[13] = {0, 2, 5, 11, 1, 7, 16, 4, 16, 7, 10, 9, 10};

}  // namespace kvt::metastable
