#include "vlabel/text_list.h"

#include <gtest/gtest.h>

#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

std::int32_t ErrorOfItem(const TextList& list, std::int32_t index) {
    try {
        list.Item(index);
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

TEST(TextList, IsEmptyAtFirst) {
    EXPECT_EQ(TextList().Count(), 0);
}

TEST(TextList, KeepsTheOrderAndCountsFromOne) {
    TextList list;
    list.Add(u"one");
    list.Add(u"");
    list.Add(u"three");
    ASSERT_EQ(list.Count(), 3);
    EXPECT_EQ(list.Item(1), u"one");
    EXPECT_EQ(list.Item(2), u"");
    EXPECT_EQ(list.Item(3), u"three");
}

TEST(TextList, HasNothingOutsideItsCount) {
    TextList list;
    EXPECT_EQ(ErrorOfItem(list, 1), 9);
    list.Add(u"one");
    EXPECT_EQ(ErrorOfItem(list, 0), 9);
    EXPECT_EQ(ErrorOfItem(list, 1), 0);
    EXPECT_EQ(ErrorOfItem(list, 2), 9);
    EXPECT_EQ(ErrorOfItem(list, -1), 9);
}

TEST(TextList, TakesWhatWasAppendedToAnEntry) {
    TextList list;
    list.Add(u"one");
    Text& entry = list.Begin();
    entry += u"tw";
    entry += u"o";
    EXPECT_EQ(list.Count(), 1);
    list.End();
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(1), u"one");
    EXPECT_EQ(list.Item(2), u"two");
}

TEST(TextList, ForgetsAnEntryThatIsNotEnded) {
    TextList list;
    list.Add(u"one");
    list.Begin() += u"lost";
    EXPECT_EQ(list.Count(), 1);
    list.Add(u"two");
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(2), u"two");
}

TEST(TextList, StartsAnewWhenCleared) {
    TextList list;
    list.Add(u"old");
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    list.Add(u"new");
    ASSERT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Item(1), u"new");
}

}  // namespace

}  // namespace lumenkit
