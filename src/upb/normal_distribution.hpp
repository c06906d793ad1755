// The normal distribution function.
#pragma once

#include <cmath>

namespace kolvar {

// Share of a normal distribution below the value that stands z standard deviations from its mean; `above`: the value
// lies above the mean. Abramowitz and Stegun (1964), formula 26.2.16, good to about 1E-5.
inline double normal_share_below(double z, bool above) {
    const double u = 1 / (1 + 0.33267 * std::fabs(z));
    const double density = std::exp(-z * z / 2) / std::sqrt(6.283186);
    const double tail = density * (0.4361836 * u - 0.1201676 * (u * u) + 0.937298 * (u * u * u));
    return above ? 1 - tail : tail;
}

}  // namespace kolvar
