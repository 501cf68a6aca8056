// IAPWS-IF97 region 5 basic equation in its 1997 form: ideal-gas part and the
// five-term residual part, in the published order. (The later revision of
// region 5 has a six-term residual part; it is not the one used here.)
#pragma once

#include <cstdint>

namespace kvt::region5 {

// Ideal-gas part: gamma0 = ln(pi) + sum of N0 tau^J0.
constexpr double N0[6] = {
    -13.179983674201, 6.8540841634434, -0.024805148933466, 0.36901534980333, -3.1161318213925,
    -0.32961626538917,
};
constexpr int32_t J0[6] = {
    0, 1, -3, -2, -1, 2,
};

// Residual part: gammar = sum of N pi^I tau^J.
constexpr double N[5] = {
    -0.00012563183589592, 0.0021774678714571, -0.004594282089991, -3.9724828359569e-06,
    1.2919228289784e-07,
};
constexpr int32_t I[5] = {
    1, 1, 1, 2, 3,
};
constexpr int32_t J[5] = {
    0, 1, 3, 9, 3,
};

}  // namespace kvt::region5
