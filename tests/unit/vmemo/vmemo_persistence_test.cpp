// How a memo is started, loaded and saved.
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "runtime/memory/property_bag.h"
#include "tests/support/placed_memo.h"

namespace lumenkit::testing {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string Describe(const Value& value) {
    if (const auto* object = std::get_if<ObjectRef>(&value)) {
        return ToUtf8(ToText((*object)->Get(u"Name")) + u" " + ToText((*object)->Get(u"Size")));
    }
    return ToUtf8(ToText(value));
}

// Records the calls and stores nothing.
class NotingBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView name, const Value& defaultValue) override {
        calls.push_back(ToUtf8(name) + ", " + Describe(defaultValue));
        return defaultValue;
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        calls.push_back(ToUtf8(name) + " = " + Describe(value) + ", " + Describe(defaultValue));
    }

    std::vector<std::string> calls;
};

std::vector<Text> Boxes(PlacedMemo& memo) {
    return {memo.Box(0).Contents(), memo.Box(1).Contents(), memo.Box(2).Contents(),
            memo.Box(3).Contents()};
}

TEST(VMemoPersistenceTest, ANewMemoShowsItsDesignedTextWithoutLimits) {
    PlacedMemo memo;
    EXPECT_EQ(memo->pGetText(), u"VMemo\r\n");
    EXPECT_THAT(Boxes(memo), Each(Text(u"VMemo\r\n")));
    EXPECT_THAT(memo.VisibleBoxes(), ElementsAre(0));
    EXPECT_EQ(memo->pGetScrollBars(), host::ScrollBars::None);
    EXPECT_EQ(memo->pGetMaxCharsPerLine(), 0);
    EXPECT_EQ(memo->pGetMaxLines(), 0);
    EXPECT_EQ(memo.Probe().AcceptedText(), u"");
    EXPECT_THAT(memo.TakeLog(), IsEmpty());
}

TEST(VMemoPersistenceTest, TheBoxesAreDesignedAlikeButForTheirScrollBars) {
    PlacedMemo memo;
    for (std::int16_t index = 0; index < 4; ++index) {
        memory::TextBox& box = memo.Box(index);
        EXPECT_TRUE(box.IsMultiLine());
        EXPECT_EQ(static_cast<int>(box.Bars()), index);
        EXPECT_EQ(box.CurrentFont()->Name(), u"Courier");
        EXPECT_EQ(box.CurrentFont()->Size(), 9.75F);
        EXPECT_EQ(box.CurrentFont()->Weight(), 400);
        EXPECT_TRUE(box.IsEnabled());
    }
}

TEST(VMemoPersistenceTest, ANewMemoIsPutBackToItsDefaults) {
    PlacedMemo memo;
    memo->pLetMaxCharsPerLine(3);
    memo->pLetMaxLines(4);
    memo->pLetText(u"kept");
    memo->UserControl_InitProperties();
    EXPECT_EQ(memo->pGetMaxCharsPerLine(), 0);
    EXPECT_EQ(memo->pGetMaxLines(), 0);
    EXPECT_EQ(memo->pGetText(), u"kep");
}

TEST(VMemoPersistenceTest, AllBoxesCoverTheControlAtEveryResize) {
    PlacedMemo memo({.width = 4000, .height = 2000});
    memo.Placed().Resize(4500, 2200);
    for (std::int16_t index = 0; index < 4; ++index) {
        const host::Placement& where = memo.Box(index).Where();
        EXPECT_EQ(where.left, 0);
        EXPECT_EQ(where.top, 0);
        EXPECT_EQ(where.width, 4500);
        EXPECT_EQ(where.height, 2200);
    }
}

TEST(VMemoPersistenceTest, PropertiesAreReadInOrderWithTheirDefaults) {
    NotingBag bag;
    const PlacedMemo memo(bag);
    EXPECT_THAT(bag.calls,
                ElementsAre("ForeColor, -2147483640", "Enabled, True", "Font, MS Sans Serif 10",
                            "Locked, False", "MaxLength, 0", "MousePointer, 0", "Text, ",
                            "MaxCharsPerLine, 0", "MaxLines, 0", "ScrollBars, 0"));
}

TEST(VMemoPersistenceTest, PropertiesAreWrittenInOrderWithTheirDefaults) {
    PlacedMemo memo;
    memo->pLetForeColor(Rgb(255, 0, 0));
    memo->pLetEnabled(false);
    memo->pLetFontName(u"Arial");
    memo->pLetFontSize(12);
    memo->pLetLocked(true);
    memo->pLetMaxLength(200);
    memo->pLetMousePointer(host::MousePointer::IBeam);
    memo->pLetMaxCharsPerLine(7);
    memo->pLetMaxLines(8);
    memo->pLetText(u"text");
    memo->pLetScrollBars(host::ScrollBars::Vertical);
    NotingBag bag;
    memo.Placed().Save(bag);
    EXPECT_THAT(bag.calls,
                ElementsAre("ForeColor = 255, -2147483640", "Enabled = False, True",
                            "Font = Arial 12, MS Sans Serif 10", "FontName = Arial, ",
                            "FontSize = 12, 0", "Locked = True, False", "MaxLength = 200, 0",
                            "MousePointer = 3, 0", "Text = text, ", "MaxCharsPerLine = 7, 0",
                            "MaxLines = 8, 0", "ScrollBars = 2, 0"));
}

TEST(VMemoPersistenceTest, DefaultsAreNotStored) {
    memory::PropertyBag empty;
    PlacedMemo memo(empty);
    const memory::PropertyBag saved = memo.Placed().Save();
    std::vector<Text> names;
    for (const auto& [name, value] : saved.Entries()) {
        names.push_back(name);
    }
    EXPECT_THAT(names, ElementsAre(u"FontName", u"FontSize")) << "whose defaults no font has";
}

TEST(VMemoPersistenceTest, TheValuesAreThoseOfTheActiveBox) {
    PlacedMemo memo;
    memo->pLetText(u"");
    memo->pLetScrollBars(host::ScrollBars::Both);
    memo.Type(u"active");
    EXPECT_EQ(ToText(*memo.Placed().Save().Find(u"Text")), u"active");
}

TEST(VMemoPersistenceTest, ALoadedMemoShowsTheBoxOfItsScrollBars) {
    memory::PropertyBag bag;
    bag.Store(u"ForeColor", std::int32_t{255});
    bag.Store(u"Enabled", false);
    bag.Store(u"Locked", true);
    bag.Store(u"MaxLength", std::int32_t{50});
    bag.Store(u"MousePointer", std::int32_t{2});
    bag.Store(u"Text", Text(u"saved\r\ntext"));
    bag.Store(u"MaxCharsPerLine", std::int16_t{10});
    bag.Store(u"MaxLines", std::int16_t{20});
    bag.Store(u"ScrollBars", std::int32_t{2});
    PlacedMemo memo(bag);
    EXPECT_THAT(memo.VisibleBoxes(), ElementsAre(2));
    EXPECT_THAT(Boxes(memo), Each(Text(u"saved\r\ntext")));
    EXPECT_EQ(memo->pGetForeColor(), Rgb(255, 0, 0));
    EXPECT_FALSE(memo->pGetEnabled());
    EXPECT_TRUE(memo->pGetLocked());
    EXPECT_EQ(memo->pGetMaxLength(), 50);
    EXPECT_EQ(memo->pGetMousePointer(), host::MousePointer::Crosshair);
    EXPECT_EQ(memo->pGetMaxCharsPerLine(), 10);
    EXPECT_EQ(memo->pGetMaxLines(), 20);
    EXPECT_EQ(memo->pGetScrollBars(), host::ScrollBars::Vertical);
    EXPECT_THAT(memo.TakeLog(), IsEmpty()) << "loading is no edit";
}

TEST(VMemoPersistenceTest, AllBoxesOfALoadedMemoShareTheFont) {
    memory::PropertyBag bag;
    PlacedMemo memo(bag);
    for (std::int16_t index = 1; index < 4; ++index) {
        EXPECT_EQ(memo.Box(index).CurrentFont(), memo.Box(0).CurrentFont());
    }
    EXPECT_EQ(memo->pGetFontName(), u"MS Sans Serif");
    EXPECT_EQ(memo->pGetFontSize(), 10);
}

TEST(VMemoPersistenceTest, FontNameAndFontSizeAreSavedButNotRead) {
    memory::PropertyBag bag;
    bag.Store(u"FontName", Text(u"Arial"));
    bag.Store(u"FontSize", 20.0F);
    PlacedMemo memo(bag);
    EXPECT_EQ(memo->pGetFontName(), u"MS Sans Serif");
    EXPECT_EQ(memo->pGetFontSize(), 10);
}

TEST(VMemoPersistenceTest, TheFontItselfComesBack) {
    PlacedMemo memo;
    memo->pLetFontName(u"Arial");
    memo->pLetFontSize(20);
    memory::PropertyBag bag = memo.Placed().Save();
    PlacedMemo loaded(bag);
    EXPECT_EQ(loaded->pGetFontName(), u"Arial");
    EXPECT_EQ(loaded->pGetFontSize(), 20);
}

TEST(VMemoPersistenceTest, ALoadedTextIsNeitherHeldToTheLimitsNorAccepted) {
    memory::PropertyBag bag;
    bag.Store(u"Text", Text(u"abcdef\r\nghi"));
    bag.Store(u"MaxCharsPerLine", std::int16_t{3});
    bag.Store(u"MaxLines", std::int16_t{1});
    PlacedMemo memo(bag);
    EXPECT_EQ(memo.Shown(), u"abcdef\r\nghi");
    EXPECT_EQ(memo.Probe().AcceptedText(), u"");
    EXPECT_FALSE(memo.Probe().Updating());
}

TEST(VMemoPersistenceTest, TheFirstRefusedEditOfALoadedMemoEmptiesIt) {
    memory::PropertyBag bag;
    bag.Store(u"Text", Text(u"abc"));
    bag.Store(u"MaxCharsPerLine", std::int16_t{3});
    PlacedMemo memo(bag);
    memo.PutCaret(3);
    memo.Type(u"d");
    EXPECT_EQ(memo.Shown(), u"");
    EXPECT_EQ(memo.Caret(), 0);
}

TEST(VMemoPersistenceTest, ANegativeLimitIsLoadedAsItWasSaved) {
    memory::PropertyBag bag;
    bag.Store(u"MaxCharsPerLine", std::int16_t{-5});
    PlacedMemo memo(bag);
    EXPECT_EQ(memo->pGetMaxCharsPerLine(), -5);
}

TEST(VMemoPersistenceTest, ScrollBarsWithoutABoxAreReportedAndLeaveNoActiveBox) {
    memory::PropertyBag bag;
    bag.Store(u"Text", Text(u"abc"));
    bag.Store(u"ScrollBars", std::int32_t{70000});
    PlacedMemo memo(bag);
    EXPECT_THAT(memo.TakeLog(), ElementsAre("error 340 in UserControl_ReadProperties"));
    EXPECT_THAT(memo.VisibleBoxes(), ElementsAre(0));
    EXPECT_EQ(memo->pGetText(), u"");
    EXPECT_THAT(memo.TakeLog(), ElementsAre("error 340 in pGetText"));
    EXPECT_FALSE(memo.Probe().Updating());
}

TEST(VMemoPersistenceTest, AValueOfTheWrongTypeIsReportedAndEndsTheLoading) {
    memory::PropertyBag bag;
    bag.Store(u"Locked", Text(u"perhaps"));
    bag.Store(u"Text", Text(u"abc"));
    PlacedMemo memo(bag);
    EXPECT_THAT(memo.TakeLog(), ElementsAre("error 13 in UserControl_ReadProperties"));
    EXPECT_EQ(memo->pGetText(), u"VMemo\r\n");
    EXPECT_FALSE(memo.Probe().Updating());
}

}  // namespace

}  // namespace lumenkit::testing
