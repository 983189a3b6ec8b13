#include "apps/lumenkit/check/fix/drawn_control.h"

#include <string>

#include <gtest/gtest.h>

#include "project/lumenkit_classes.h"
#include "tests/support/rows.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::Row;
using lumenkit::testing::RowName;

DrawnControl DrawnWith(const std::string& type, const std::string& lines) {
    const auto form = forms::Document::Parse(
        "x.frm",
        "VERSION 5.00\nBegin VB.Form F\nBegin lumenkit." + type + " C\n" + lines + "End\nEnd\n",
        {});
    forms::Block& block = *form.Root().Controls().front();
    return Draw(form, block, *lumenkitClasses.Find(block.ClassName()), {u"caption", u"ListIndex"});
}

// Two settings of a control.
struct Settings {
    const char* type;
    const char* one;
    const char* other;
};

struct PictureTest : ::testing::TestWithParam<Row<Settings, bool>> {};

TEST_P(PictureTest, TellsControlsApart) {
    const auto& [name, settings, areSame] = GetParam();
    EXPECT_EQ(DrawnWith(settings.type, settings.one).picture ==
                  DrawnWith(settings.type, settings.other).picture,
              areSame);
}

constexpr Row<Settings, bool> pictures[] = {
    {"OfTheSameText", {"VLabel", "Caption = \"|u:1|a\"\n", "Caption = \"|i:1|a\"\n"}, true},
    {"OfControlCharacters", {"VLabel", "Caption = \"a\tb\"\n", "Caption = \"a b\"\n"}, true},
    {"OfOtherTexts", {"VLabel", "Caption = \"a\"\n", "Caption = \"b\"\n"}, false},
    {"OfOtherColors", {"VLabel", "Caption = \"|fore:1,0,0|a\"\n", "Caption = \"a\"\n"}, false},
    {"OfTwoRuns", {"VLabel", "Caption = \"ab\"\n", "Caption = \"a|b:0|b\"\n"}, false},
    {"OfAnotherIdealHeight", {"VLabel", "Caption = \"a\"\n", "Caption = \"a|CR|\"\n"}, false},
    {"OfOtherProperties", {"VLabel", "", "MousePointer = 2\n"}, false},
    {"OfTheSelectedOption", {"VOptList", "ListIndex = 0\n", "ListIndex = -1\n"}, false},
    {"OfNoOption", {"VOptList", "ListIndex = 7\n", "ListIndex = -1\n"}, true},
};
INSTANTIATE_TEST_SUITE_P(Pictures, PictureTest, ::testing::ValuesIn(pictures), RowName());

TEST(DrawnControl, CountsMessagesInBothModes) {
    EXPECT_EQ(DrawnWith("VLabel", "").messages, 0U);
    EXPECT_EQ(DrawnWith("VLabel", "BorderStyle = 7\n").messages, 2U);
    EXPECT_TRUE(IsNoWorse({u"a", 2}, {u"b", 2}, false));
    EXPECT_FALSE(IsNoWorse({u"a", 2}, {u"b", 2}, true));
    EXPECT_FALSE(IsNoWorse({u"a", 1}, {u"a", 2}, true));
}

}  // namespace
}  // namespace lumenkit::check
