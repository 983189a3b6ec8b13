// 16- and 32-bit signed integers whose arithmetic raises 6 (overflow) instead of wrapping.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit {

/// Returns the nearest whole number; a half is rounded to the even neighbour. Returns infinities
/// and NaN unchanged.
double RoundHalfToEven(double number);

template <std::signed_integral Storage>
requires(sizeof(Storage) <= 4) class CheckedInteger {
 public:
    constexpr CheckedInteger() = default;
    /// Raises 6 when `value` does not fit.
    template <std::integral From>
    constexpr CheckedInteger(From value) : value_(Fit(value)) {}  // NOLINT(*-explicit-*)

    constexpr Storage Value() const { return value_; }

    friend constexpr CheckedInteger operator+(CheckedInteger left, CheckedInteger right) {
        return CheckedInteger(Wide(left.value_) + Wide(right.value_));
    }
    friend constexpr CheckedInteger operator-(CheckedInteger left, CheckedInteger right) {
        return CheckedInteger(Wide(left.value_) - Wide(right.value_));
    }
    friend constexpr CheckedInteger operator*(CheckedInteger left, CheckedInteger right) {
        return CheckedInteger(Wide(left.value_) * Wide(right.value_));
    }
    constexpr CheckedInteger operator-() const { return CheckedInteger(-Wide(value_)); }
    constexpr CheckedInteger& operator+=(CheckedInteger right) { return *this = *this + right; }
    constexpr CheckedInteger& operator-=(CheckedInteger right) { return *this = *this - right; }
    constexpr CheckedInteger& operator++() { return *this += CheckedInteger(1); }

    // clang-tidy 14 mistakes the default for a null pointer.
    friend constexpr auto operator<=>(CheckedInteger,
                                      CheckedInteger) = default;  // NOLINT(modernize-use-nullptr)

 private:
    // Wide enough for the sum, difference or product of two 32-bit numbers.
    static constexpr std::int64_t Wide(Storage value) { return value; }

    template <std::integral From>
    static constexpr Storage Fit(From value) {
        if (!std::in_range<Storage>(value)) {
            Raise(ErrorNumber::Overflow);
        }
        return static_cast<Storage>(value);
    }

    Storage value_ = 0;
};

using Int16 = CheckedInteger<std::int16_t>;
using Int32 = CheckedInteger<std::int32_t>;

/// Return the nearest integer; a half is rounded to the even neighbour. Raise 6 when the result
/// does not fit or when `number` is NaN.
std::int16_t RoundToInt16(double number);
std::int32_t RoundToInt32(double number);

/// Returns the nearest single-precision number. Raises 6 when the magnitude is beyond the range of
/// single precision.
float ToSingle(double number);

}  // namespace lumenkit
