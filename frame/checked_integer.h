// 16- and 32-bit signed integers whose arithmetic raises 6 (overflow) instead of wrapping.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <limits>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit {

/// The nearest whole number, halves to the even one. Infinities and NaN pass unchanged.
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

    // clang-tidy 14 takes the default for a null pointer.
    friend constexpr auto operator<=>(CheckedInteger,
                                      CheckedInteger) = default;  // NOLINT(modernize-use-nullptr)

 private:
    // Sums, differences and products of two 32-bit numbers fit.
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

/// The nearest integer, halves to the even one. Raise 6 when it does not fit (NaN never does).
std::int16_t RoundToInt16(double number);
std::int32_t RoundToInt32(double number);

/// As single precision, nearest. Raises 6 when the magnitude is beyond single precision's range.
float ToSingle(double number);

}  // namespace lumenkit
