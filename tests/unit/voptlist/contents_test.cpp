#include "voptlist/contents.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/runtime_error.h"
#include "frame/utf8.h"
#include "tests/support/rows.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit {

namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

constexpr std::size_t longest = 32766;

/// Returns "value / caption" for each item, and "overflow" where the walk raises 6.
std::vector<std::string> Items(TextView contents, std::size_t begin = 0) {
    std::vector<std::string> items;
    ContentsWalk walk(contents, begin);
    try {
        while (const auto item = walk.Next()) {
            items.push_back(ToUtf8(item->value) + " / " + ToUtf8(item->caption));
        }
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
        items.emplace_back("overflow");
    }
    return items;
}

struct ContentsItems : ::testing::TestWithParam<testing::Row<TextView, std::vector<std::string>>> {
};

TEST_P(ContentsItems, AreWalked) {
    EXPECT_EQ(Items(GetParam().input), GetParam().expected);
}

const testing::Row<TextView, std::vector<std::string>> walkedContents[] = {
    {"EmptyTextIsOneEmptyItem", u"", {" / "}},
    {"SemicolonSplitsValueFromCaption", u"0;Item 0", {"0 / Item 0"}},
    {"BarSplitsItems", u"1;One|2;Two", {"1 / One", "2 / Two"}},
    {"ItemWithoutSemicolonIsItsOwnValueAndCaption", u"Red", {"Red / Red"}},
    {"ItemsWithoutSemicolonAreTheirOwnValuesAndCaptions", u"a|b", {"a / a", "b / b"}},
    {"TrailingBarAddsNoItem", u"0;A|", {"0 / A"}},
    {"TrailingBarAddsNoItemToSeveral", u"1;One|2;Two|", {"1 / One", "2 / Two"}},
    {"BarAloneIsOneEmptyItem", u"|", {" / "}},
    {"TwoBarsAreTwoEmptyItems", u"||", {" / ", " / "}},
    {"LeadingBarGivesAnEmptyItem", u"|0;A", {" / ", "0 / A"}},
    {"AdjacentBarsGiveAnEmptyItem", u"0;A||1;B", {"0 / A", " / ", "1 / B"}},
    {"FurtherSemicolonsBelongToTheCaption", u"1;a;b", {"1 / a;b"}},
    {"SecondSemicolonIsTheCaption", u"1;;", {"1 / ;"}},
    {"ValueMayBeEmpty", u";caption", {" / caption"}},
    {"CaptionMayBeEmpty", u"value;", {"value / "}},
    {"BothMayBeEmpty", u";", {" / "}},
    {"BlanksAreNotTrimmed", u" 1 ; One", {" 1  /  One"}},
    {"BackslashesEscapeNothing", u"\\|a\\;b", {"\\ / \\", "a\\ / b"}},
    {"LineBreaksAndTabsAreNotTrimmed", u"\r\n;\t", {"\r\n / \t"}},
};

INSTANTIATE_TEST_SUITE_P(, ContentsItems, ::testing::ValuesIn(walkedContents), testing::RowName());

TEST(Contents, EmbeddedZeroUnitsAndUnpairedSurrogatesAreOrdinary) {
    const Text contents = {u'a', u'\0', u';', u'\xD83D', u'|', u'\xDE00'};
    ContentsWalk walk(contents);
    const auto first = walk.Next();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->value, TextView(u"a\0", 2));
    EXPECT_EQ(first->caption, TextView(u"\xD83D", 1));
    const auto second = walk.Next();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->value, TextView(u"\xDE00", 1));
    EXPECT_FALSE(walk.Next());
}

TEST(Contents, ItemsAreViewsIntoTheText) {
    const Text contents = u"value;caption";
    ContentsWalk walk(contents);
    const auto item = walk.Next();
    ASSERT_TRUE(item);
    EXPECT_EQ(item->value.data(), contents.data());
    EXPECT_EQ(item->caption.data(), contents.data() + 6);
}

TEST(Contents, StaysAtTheEnd) {
    ContentsWalk walk(u"a");
    EXPECT_TRUE(walk.Next());
    EXPECT_FALSE(walk.Next());
    EXPECT_FALSE(walk.Next());
}

TEST(Contents, LongestTextWorks) {
    EXPECT_THAT(Items(Text(longest, u'x')),
                ElementsAre(std::string(longest, 'x') + " / " + std::string(longest, 'x')));
    // An item before the last bar, and one after it that ends at the last position.
    EXPECT_THAT(Items(Text(longest - 2, u'x') + u"|y"), SizeIs(2));
    // A bar at the last position.
    EXPECT_THAT(Items(Text(longest - 1, u'x') + u"|"), SizeIs(1));
    // The largest possible number of items.
    EXPECT_THAT(Items(Text(longest, u'|')), SizeIs(longest));
}

TEST(Contents, OneUnitMoreOverflowsAtTheEndOfTheLastItem) {
    EXPECT_THAT(Items(Text(longest + 1, u'x')), ElementsAre("overflow"));
    EXPECT_THAT(Items(u"1;One|2;Two|" + Text(longest - 11, u'x')),
                ElementsAre("1 / One", "2 / Two", "overflow"));
}

TEST(Contents, BarAtTheLast16BitPositionOverflowsBehindItsItem) {
    const std::vector<std::string> items = Items(u"a|" + Text(longest - 2, u'x') + u"|");
    ASSERT_THAT(items, SizeIs(3));
    EXPECT_EQ(items[0], "a / a");
    EXPECT_EQ(items[2], "overflow");
}

TEST(Contents, NoMoreBarsThanPositionsAreReached) {
    const std::vector<std::string> items = Items(Text(longest + 1, u'|'));
    EXPECT_THAT(items, SizeIs(longest + 2));
    EXPECT_EQ(items.back(), "overflow");
}

TEST(Contents, BarBeyondThe16BitPositionsOverflows) {
    EXPECT_THAT(Items(u"a|" + Text(longest, u'x') + u"|b"), ElementsAre("a / a", "overflow"));
    EXPECT_THAT(Items(Text(100'000, u'x') + u"|b"), ElementsAre("overflow"));
}

// Returns the items of `contents`. Walks only over the part that a change from `former` affects.
std::vector<std::string> ItemsAfterChange(TextView former, TextView contents) {
    const ContentsChange change = FindChange(former, contents);
    std::vector<std::string> items = Items(former);
    std::vector<std::string> changed = Items(contents.substr(0, change.end), change.begin);
    if (!change.sameCount) {
        items.resize(static_cast<std::size_t>(change.firstItem));
        items.insert(items.end(), changed.begin(), changed.end());
    } else {
        std::ranges::move(changed, items.begin() + change.firstItem);
    }
    return items;
}

// Uses few different units, so that any two contents have much in common.
Text AnyContents(std::mt19937& random, std::size_t longestText) {
    constexpr TextView units = u"||;ab";
    Text contents(random() % (longestText + 1), u'x');
    std::ranges::generate(contents, [&] { return units[random() % units.size()]; });
    return contents;
}

TEST(ContentsChange, LeavesOutOnlyItemsThatAreAsTheyWere) {
    const std::uint32_t seed = testing::TestSeed();
    std::mt19937 random(seed);
    for (int pair = 0; pair < testing::Rounds(20'000); ++pair) {
        const Text former = AnyContents(random, 6);
        const Text contents = AnyContents(random, 6);
        ASSERT_EQ(ItemsAfterChange(former, contents), Items(contents))
            << ToUtf8(former) << " to " << ToUtf8(contents);
    }
}

TEST(ContentsChange, LeavesOutOnlyItemsThatAreAsTheyWereInLongContents) {
    const std::uint32_t seed = testing::TestSeed();
    std::mt19937 random(seed);
    for (int pair = 0; pair < testing::Rounds(2'000); ++pair) {
        const Text former = AnyContents(random, 600);
        Text contents = former;
        const std::size_t at = random() % (contents.size() + 1);
        contents.replace(at, random() % 6, AnyContents(random, 6));
        ASSERT_EQ(ItemsAfterChange(former, contents), Items(contents))
            << ToUtf8(former) << " to " << ToUtf8(contents);
    }
}

TEST(ContentsChange, IsOneItemWhereOneIsAnotherOne) {
    const ContentsChange change = FindChange(u"a;A|b;B|c;C|d;D", u"a;A|b;B|x;C|d;D");
    EXPECT_EQ(change.firstItem, 2);
    EXPECT_EQ(change.begin, 8U);
    EXPECT_EQ(change.end, 12U);
    EXPECT_TRUE(change.sameCount);
}

TEST(ContentsChange, OfContentsTooLongIsAllBehindIt) {
    const Text former = u"a|" + Text(longest - 2, u'x');
    const ContentsChange change = FindChange(former, u"bc|" + Text(longest - 2, u'x'));
    EXPECT_EQ(change.end, longest + 1);
    EXPECT_FALSE(change.sameCount);
}

}  // namespace

}  // namespace lumenkit
