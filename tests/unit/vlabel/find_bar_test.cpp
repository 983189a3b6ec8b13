#include "vlabel/find_bar.h"

#include <gtest/gtest.h>

namespace lumenkit {

namespace {

TEST(FindBar, FindsABarAtEveryPlaceFromEveryStart) {
    for (std::size_t size = 0; size <= 13; ++size) {
        for (std::size_t place = 0; place < size; ++place) {
            Text text(size, u'x');
            text[place] = u'|';
            for (std::size_t from = 0; from <= size; ++from) {
                EXPECT_EQ(FindBar(text, from), from <= place ? place : size)
                    << size << " units from " << from;
            }
        }
    }
}

TEST(FindBar, FindsTheFirstOfSeveral) {
    EXPECT_EQ(FindBar(u"ab|||||||", 0), 2u);
    EXPECT_EQ(FindBar(u"ab|||||||", 3), 3u);
}

// Units that differ from a bar in one bit, or that lie just above and below it in their lane.
TEST(FindBar, TakesNoOtherUnitForABar) {
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        if (unit != u'|') {
            const Text text(8, static_cast<char16_t>(unit));
            ASSERT_EQ(FindBar(text, 0), 8u) << unit;
        }
    }
}

}  // namespace

}  // namespace lumenkit
