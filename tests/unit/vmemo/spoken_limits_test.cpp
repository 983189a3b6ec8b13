#include "vmemo/spoken_limits.h"

#include <gtest/gtest.h>

#include "tests/support/placed_memo.h"

namespace lumenkit {

namespace {

TEST(SpokenLimits, NameThoseInForce) {
    EXPECT_EQ(SpokenLimits({}), u"");
    EXPECT_EQ(SpokenLimits({.maxCharsPerLine = 20}), u"up to 20 characters per line");
    EXPECT_EQ(SpokenLimits({.maxLines = 3}), u"up to 3 lines");
    EXPECT_EQ(SpokenLimits({20, 3}), u"up to 20 characters per line, up to 3 lines");
    EXPECT_EQ(SpokenLimits({1, 1}), u"up to 1 character per line, up to 1 line");
}

TEST(SpokenLimits, AreThoseOfTheMemo) {
    testing::PlacedMemo memo;
    EXPECT_EQ(memo->SpokenHint(), u"");
    memo->pLetMaxLines(2);
    EXPECT_EQ(memo->SpokenHint(), u"up to 2 lines");
    memo->pLetMaxCharsPerLine(-5);
    EXPECT_EQ(memo->SpokenHint(), u"up to 2 lines") << "a negative limit is none";
}

}  // namespace

}  // namespace lumenkit
