#include "apps/lumenkit/check/fix/mending.h"

#include <gtest/gtest.h>

#include "frame/utf8.h"

namespace lumenkit::check {
namespace {

// An insertion, a replacement and a removal.
const TextEdits edits = {{2, 2, u"xx"}, {4, 5, u"y"}, {8, 9, u""}};

TEST(Mending, EditsAText) {
    EXPECT_EQ(ToUtf8(Edited(u"0123456789", edits)), "01xx23y5679");
    EXPECT_EQ(ToUtf8(Edited(u"0123456789", {})), "0123456789");
    EXPECT_EQ(ToUtf8(Edited(u"", {{0, 0, u"a"}})), "a");
}

TEST(Mending, FollowsPlaces) {
    EXPECT_EQ(OffsetAfter(edits, 0), 0U);
    EXPECT_EQ(OffsetAfter(edits, 2), 2U) << "where the inserted text begins";
    EXPECT_EQ(OffsetAfter(edits, 3), 5U);
    EXPECT_EQ(OffsetAfter(edits, 4), 6U);
    EXPECT_EQ(OffsetAfter(edits, 5), 7U);
    EXPECT_EQ(OffsetAfter(edits, 8), 10U);
    EXPECT_EQ(OffsetAfter(edits, 9), 10U);
}

}  // namespace
}  // namespace lumenkit::check
