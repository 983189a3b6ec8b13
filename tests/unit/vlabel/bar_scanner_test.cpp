#include "vlabel/bar_scanner.h"

#include <vector>

#include <gmock/gmock.h>

namespace lumenkit {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::size_t> BarsOf(TextView text) {
    std::vector<std::size_t> found;
    BarScanner bars(text);
    for (std::size_t at = bars.Next(0); at < text.size(); at = bars.Next(at + 1)) {
        found.push_back(at);
    }
    return found;
}

// Tests the sizes around one and two blocks, with every place of the bar and every start.
TEST(BarScanner, FindsABarAtEveryPlaceFromEveryStart) {
    for (std::size_t size = 0; size <= 135; ++size) {
        for (std::size_t place = 0; place < size; ++place) {
            Text text(size, u'x');
            text[place] = u'|';
            for (std::size_t from = 0; from <= size; ++from) {
                ASSERT_EQ(BarScanner(text).Next(from), from <= place ? place : size)
                    << size << " units, a bar at " << place << ", from " << from;
            }
        }
    }
}

TEST(BarScanner, FindsAllBars) {
    EXPECT_THAT(BarsOf(u""), IsEmpty());
    EXPECT_THAT(BarsOf(u"ab|||cd|"), ElementsAre(2, 3, 4, 7));
    EXPECT_EQ(BarsOf(Text(1000, u'|')).size(), 1000U);
}

TEST(BarScanner, LooksIntoLaterBlocks) {
    const Text blocks = Text(63, u'x') + u"||" + Text(200, u'x') + u"|";
    EXPECT_THAT(BarsOf(blocks), ElementsAre(63, 64, 265));
}

TEST(BarScanner, MaySkipAhead) {
    const Text text = u"|" + Text(100, u'|') + Text(100, u'x') + u"|";
    BarScanner bars(text);
    EXPECT_EQ(bars.Next(0), 0U);
    EXPECT_EQ(bars.Next(90), 90U);
    EXPECT_EQ(bars.Next(90), 90U);
    EXPECT_EQ(bars.Next(150), 201U);
    EXPECT_EQ(bars.Next(text.size()), text.size());
}

// Tests all other units. Some differ from a bar in one bit, or by one.
TEST(BarScanner, TakesNoOtherUnitForABar) {
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        if (unit != u'|') {
            const Text text(17, static_cast<char16_t>(unit));
            ASSERT_EQ(BarScanner(text).Next(0), 17U) << unit;
        }
    }
}

}  // namespace

}  // namespace lumenkit
