#include "platform/rounding.h"

#include <cmath>
#include <cstdint>

double RoundTo(double value, int digits) {
    const double sign = value >= 0 ? 1 : -1;
    if (digits < 1)
        return std::ceil(value) * sign;
    const double scale = std::pow(10.0, digits);
    const double scaled = std::trunc(std::fabs(value) * scale + 0.5);
    if (!std::isfinite(scaled))
        return 0;
    const auto low = static_cast<std::int32_t>(static_cast<std::uint32_t>(std::fmod(scaled, 4294967296.0)));
    return sign * low / scale + 0.0; // no negative zero
}
