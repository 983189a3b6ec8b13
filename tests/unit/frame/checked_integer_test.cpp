#include "frame/checked_integer.h"

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

// Returns the value of `calculate()`, or nothing if it overflows.
template <typename Calculation>
std::optional<std::int64_t> Outcome(Calculation&& calculate) {
    try {
        return calculate().Value();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
        return std::nullopt;
    }
}

template <typename Storage>
std::optional<std::int64_t> Fitting(std::int64_t value) {
    return value < std::numeric_limits<Storage>::min() ||
                   value > std::numeric_limits<Storage>::max()
               ? std::nullopt
               : std::optional(value);
}

// Returns all values near the limits, near 0 and near the square roots of the limits.
template <typename Storage>
std::vector<Storage> Samples() {
    constexpr std::int64_t low = std::numeric_limits<Storage>::min();
    constexpr std::int64_t high = std::numeric_limits<Storage>::max();
    constexpr std::int64_t root = sizeof(Storage) == 2 ? 181 : 46340;
    std::vector<Storage> samples;
    for (const std::int64_t centre : {low, low / 2, -root, std::int64_t{0}, root, high / 2, high}) {
        for (std::int64_t value = centre - 12; value <= centre + 12; ++value) {
            if (value >= low && value <= high) {
                samples.push_back(static_cast<Storage>(value));
            }
        }
    }
    return samples;
}

template <typename Storage>
class CheckedIntegers : public testing::Test {};
using Storages = testing::Types<std::int16_t, std::int32_t>;
TYPED_TEST_SUITE(CheckedIntegers, Storages);

TYPED_TEST(CheckedIntegers, CalculateLikeWideOnesOrOverflow) {
    using Checked = CheckedInteger<TypeParam>;
    for (const TypeParam left : Samples<TypeParam>()) {
        for (const TypeParam right : Samples<TypeParam>()) {
            const Checked a = left;
            const Checked b = right;
            const std::int64_t x = left;
            const std::int64_t y = right;
            ASSERT_EQ(Outcome([&] { return a + b; }), Fitting<TypeParam>(x + y)) << x << " " << y;
            ASSERT_EQ(Outcome([&] { return a - b; }), Fitting<TypeParam>(x - y)) << x << " " << y;
            ASSERT_EQ(Outcome([&] { return a * b; }), Fitting<TypeParam>(x * y)) << x << " " << y;
            ASSERT_EQ(a < b, x < y);
            ASSERT_EQ(a == b, x == y);
            ASSERT_EQ(a >= b, x >= y);
        }
    }
}

TYPED_TEST(CheckedIntegers, ChangeInPlaceLikeWideOnesOrOverflow) {
    using Checked = CheckedInteger<TypeParam>;
    for (const TypeParam value : Samples<TypeParam>()) {
        const std::int64_t x = value;
        ASSERT_EQ(Outcome([&] { return -Checked(value); }), Fitting<TypeParam>(-x));
        ASSERT_EQ(Outcome([number = Checked(value)]() mutable { return ++number; }),
                  Fitting<TypeParam>(x + 1));
        ASSERT_EQ(Outcome([number = Checked(value)]() mutable { return number += 7; }),
                  Fitting<TypeParam>(x + 7));
        ASSERT_EQ(Outcome([number = Checked(value)]() mutable { return number -= 7; }),
                  Fitting<TypeParam>(x - 7));
    }
}

TYPED_TEST(CheckedIntegers, KeepTheirValueWhenTheyOverflow) {
    CheckedInteger<TypeParam> number = std::numeric_limits<TypeParam>::max();
    EXPECT_THAT([&] { ++number; }, Raises(6));
    EXPECT_THAT([&] { number += 1; }, Raises(6));
    EXPECT_EQ(number.Value(), std::numeric_limits<TypeParam>::max());
}

TEST(CheckedInteger, TakesOnlyWhatFits) {
    EXPECT_EQ(Int16(32767).Value(), 32767);
    EXPECT_EQ(Int16(-32768).Value(), -32768);
    EXPECT_THAT([] { Int16(32768); }, Raises(6));
    EXPECT_THAT([] { Int16(-32769); }, Raises(6));
    EXPECT_THAT([] { Int16(std::size_t{65536}); }, Raises(6));
    EXPECT_EQ(Int32(std::int64_t{2147483647}).Value(), 2147483647);
    EXPECT_THAT([] { Int32(std::int64_t{2147483648}); }, Raises(6));
    EXPECT_THAT([] { Int32(std::int64_t{-2147483649}); }, Raises(6));
    EXPECT_THAT([] { Int32(4294967295U); }, Raises(6));
    EXPECT_THAT([] { static_cast<void>(Int32(std::numeric_limits<std::uint64_t>::max())); },
                Raises(6));
    EXPECT_EQ(Int16().Value(), 0);
}

TEST(CheckedInteger, MixesWithPlainNumbers) {
    EXPECT_EQ((Int16(3) + 4).Value(), 7);
    EXPECT_EQ((10 - Int16(3)).Value(), 7);
    EXPECT_TRUE(Int16(3) < 4);
    EXPECT_TRUE(Int16(3) == 3);
    static_assert((Int16(300) * 100 + Int16(7)).Value() == 30007);
}

template <typename Storage>
concept Checkable = requires {
    typename CheckedInteger<Storage>;
};
static_assert(Checkable<std::int16_t> && Checkable<std::int32_t>);
static_assert(!Checkable<std::int64_t>, "its products would not fit the wide type");

TEST(RoundHalfToEven, RoundsHalvesToTheEvenNeighbour) {
    const std::pair<double, double> cases[] = {
        {0.0, 0.0},
        {0.5, 0.0},
        {1.5, 2.0},
        {2.5, 2.0},
        {3.5, 4.0},
        {-0.5, 0.0},
        {-1.5, -2.0},
        {-2.5, -2.0},
        {-3.5, -4.0},
        {0.49999999999999994, 0.0},
        {-0.49999999999999994, 0.0},
        {0.5000000000000001, 1.0},
        {-0.5000000000000001, -1.0},
        {2.4999999999999996, 2.0},
        {2.5000000000000004, 3.0},
        {-2.4999999999999996, -2.0},
        {-2.5000000000000004, -3.0},
        {7.0, 7.0},
        {-7.0, -7.0},
        {0.2, 0.0},
        {-0.2, 0.0},
        {-0.8, -1.0},
        {4503599627370495.5, 4503599627370496.0},
        {4503599627370494.5, 4503599627370494.0},
        {9007199254740993.0, 9007199254740993.0},
        {1e300, 1e300},
        {-1e300, -1e300},
        {5e-324, 0.0},
        {-5e-324, 0.0},
    };
    for (const auto& [number, rounded] : cases) {
        EXPECT_EQ(RoundHalfToEven(number), rounded) << number;
    }
}

TEST(RoundHalfToEven, PassesInfinitiesAndNaN) {
    EXPECT_EQ(RoundHalfToEven(infinity), infinity);
    EXPECT_EQ(RoundHalfToEven(-infinity), -infinity);
    EXPECT_TRUE(std::isnan(RoundHalfToEven(notANumber)));
}

TEST(RoundHalfToEven, AgreesWithTheProcessor) {
    std::mt19937_64 random(20010917);
    std::uniform_real_distribution<double> near(-70000.0, 70000.0);
    std::uniform_int_distribution<int> halves(-200000, 200000);
    for (int i = 0; i < 200'000; ++i) {
        const double number = near(random);
        ASSERT_EQ(RoundHalfToEven(number), std::nearbyint(number)) << number;
        const double half = halves(random) / 2.0;
        ASSERT_EQ(RoundHalfToEven(half), std::nearbyint(half)) << half;
    }
}

TEST(RoundHalfToEven, DoesNotHangOnTheRoundingMode) {
    const int mode = std::fegetround();
    for (const int changed : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        ASSERT_EQ(std::fesetround(changed), 0);
        const double results[] = {RoundHalfToEven(2.5), RoundHalfToEven(3.5), RoundHalfToEven(-2.5),
                                  RoundHalfToEven(2.25), RoundHalfToEven(-2.75)};
        std::fesetround(mode);
        EXPECT_THAT(results, testing::ElementsAre(2.0, 4.0, -2.0, 2.0, -3.0));
    }
}

TEST(RoundToInt16, RoundsWithinItsLimits) {
    EXPECT_EQ(RoundToInt16(2.5), 2);
    EXPECT_EQ(RoundToInt16(-0.5), 0);
    EXPECT_EQ(RoundToInt16(32767.49), 32767);
    EXPECT_EQ(RoundToInt16(-32768.5), -32768);
}

TEST(RoundToInt16, OverflowsBeyondThem) {
    for (const double number :
         {32767.5, 32768.0, -32768.51, -32769.0, 1e300, -1e300, infinity, -infinity, notANumber}) {
        EXPECT_THAT([&] { RoundToInt16(number); }, Raises(6)) << number;
    }
}

TEST(RoundToInt32, RoundsWithinItsLimits) {
    EXPECT_EQ(RoundToInt32(3.5), 4);
    EXPECT_EQ(RoundToInt32(2147483647.49), 2147483647);
    EXPECT_EQ(RoundToInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST(RoundToInt32, OverflowsBeyondThem) {
    for (const double number : {2147483647.5, 2147483648.0, -2147483648.51, -2147483649.0, 1e300,
                                -1e300, infinity, -infinity, notANumber}) {
        EXPECT_THAT([&] { RoundToInt32(number); }, Raises(6)) << number;
    }
}

TEST(ToSingle, RoundsToTheNearest) {
    EXPECT_EQ(ToSingle(0.1), 0.1F);
    EXPECT_EQ(ToSingle(-8.25), -8.25F);
    EXPECT_EQ(ToSingle(16777217.0), 16777216.0F);
    EXPECT_EQ(ToSingle(16777219.0), 16777220.0F);
    EXPECT_EQ(ToSingle(1e-50), 0.0F);
    EXPECT_EQ(ToSingle(1.4e-45), std::numeric_limits<float>::denorm_min());
}

TEST(ToSingle, OverflowsWhereNoSingleIsNear) {
    constexpr float most = std::numeric_limits<float>::max();
    const double halfway = std::ldexp(1.0, 128) - std::ldexp(1.0, 103);
    EXPECT_EQ(ToSingle(static_cast<double>(most)), most);
    EXPECT_EQ(ToSingle(std::nextafter(halfway, 0.0)), most);
    EXPECT_EQ(ToSingle(-std::nextafter(halfway, 0.0)), -most);
    for (const double number : {halfway, -halfway, 1e39, -1e39, 1e300, infinity, notANumber}) {
        EXPECT_THAT([&] { ToSingle(number); }, Raises(6)) << number;
    }
}

}  // namespace
}  // namespace lumenkit
