#include "frame/checked_integer.h"

#include <cmath>

namespace lumenkit {

namespace {

// Returns false for NaN.
template <typename Storage>
bool Fits(double number) {
    return number >= std::numeric_limits<Storage>::min() &&
           number <= std::numeric_limits<Storage>::max();
}

template <typename Storage>
Storage Round(double number) {
    if (Fits<Storage>(number) && number == static_cast<Storage>(number)) {
        return static_cast<Storage>(number);  // already whole: the common case
    }
    const double whole = RoundHalfToEven(number);
    if (!Fits<Storage>(whole)) {
        Raise(ErrorNumber::Overflow);
    }
    return static_cast<Storage>(whole);
}

}  // namespace

double RoundHalfToEven(double number) {
    // nearbyint would depend on the rounding mode, which a host may have changed.
    const double down = std::floor(number);
    const double rest = number - down;
    if (rest < 0.5 || (rest == 0.5 && std::fmod(down, 2.0) == 0.0)) {
        return down;
    }
    return rest >= 0.5 ? down + 1.0 : number;
}

std::int16_t RoundToInt16(double number) {
    return Round<std::int16_t>(number);
}

std::int32_t RoundToInt32(double number) {
    return Round<std::int32_t>(number);
}

float ToSingle(double number) {
    const auto single = static_cast<float>(number);
    if (!std::isfinite(single)) {
        Raise(ErrorNumber::Overflow);
    }
    return single;
}

}  // namespace lumenkit
