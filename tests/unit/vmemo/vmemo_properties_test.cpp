#include <array>

#include <gmock/gmock.h>

#include "tests/support/placed_memo.h"
#include "tests/unit/vmemo/flat_surface.h"

namespace lumenkit::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VMemoPropertiesTest : public ::testing::Test {
 protected:
    // Returns a value of each box.
    template <typename Read>
    auto OfBoxes(Read&& read) {
        return std::array{read(memo_.Box(0)), read(memo_.Box(1)), read(memo_.Box(2)),
                          read(memo_.Box(3))};
    }

    PlacedMemo memo_;
};

TEST_F(VMemoPropertiesTest, LetsWriteAllBoxesAndTellTheContainerOnce) {
    memo_->pLetForeColor(Rgb(1, 2, 3));
    memo_->pLetEnabled(false);
    memo_->pLetLocked(true);
    memo_->pLetMaxLength(12);
    memo_->pLetMousePointer(host::MousePointer::Hourglass);
    EXPECT_THAT(OfBoxes([](auto& box) { return box.ForeColor(); }), ::testing::Each(Rgb(1, 2, 3)));
    EXPECT_THAT(OfBoxes([](auto& box) { return box.Enabled(); }), ::testing::Each(false));
    EXPECT_THAT(OfBoxes([](auto& box) { return box.Locked(); }), ::testing::Each(true));
    EXPECT_THAT(OfBoxes([](auto& box) { return box.MaxLength(); }), ::testing::Each(12));
    EXPECT_THAT(OfBoxes([](auto& box) { return box.Pointer(); }),
                ::testing::Each(host::MousePointer::Hourglass));
    EXPECT_THAT(memo_.TakeLog(),
                ElementsAre("changed ForeColor", "changed Enabled", "changed Locked",
                            "changed MaxLength", "changed MousePointer"));
}

TEST_F(VMemoPropertiesTest, GetsReadTheActiveBox) {
    memo_->pLetScrollBars(host::ScrollBars::Vertical);
    memory::TextBox& box = memo_.Box(2);
    box.SetForeColor(Rgb(9, 9, 9));
    box.SetEnabled(false);
    box.SetLocked(true);
    box.SetMaxLength(34);
    box.SetPointer(host::MousePointer::Arrow);
    box.SetCurrentFont(memo_.Form().NewFont(u"Arial", 14));
    EXPECT_EQ(memo_->pGetForeColor(), Rgb(9, 9, 9));
    EXPECT_FALSE(memo_->pGetEnabled());
    EXPECT_TRUE(memo_->pGetLocked());
    EXPECT_EQ(memo_->pGetMaxLength(), 34);
    EXPECT_EQ(memo_->pGetMousePointer(), host::MousePointer::Arrow);
    EXPECT_EQ(memo_->pGetFont(), box.CurrentFont());
    EXPECT_EQ(memo_->pGetFontName(), u"Arial");
    EXPECT_EQ(memo_->pGetFontSize(), 14);
}

TEST_F(VMemoPropertiesTest, AllBoxesShareTheFontThatIsSet) {
    const host::FontRef font = memo_.Form().NewFont(u"Arial", 12);
    memo_->pSetFont(font);
    EXPECT_THAT(OfBoxes([](auto& box) { return box.CurrentFont(); }), ::testing::Each(font));
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("changed Font"));
    memo_->pLetFontName(u"Times");
    EXPECT_EQ(font->Name(), u"Times");
}

TEST_F(VMemoPropertiesTest, FontNameAndFontSizeChangeEachBoxesOwnFont) {
    memo_->pLetFontName(u"Arial");
    memo_->pLetFontSize(20);
    EXPECT_THAT(OfBoxes([](auto& box) { return box.CurrentFont()->Name(); }),
                ::testing::Each(Text(u"Arial")));
    EXPECT_THAT(OfBoxes([](auto& box) { return box.CurrentFont()->Size(); }),
                ::testing::Each(20.0F));
    EXPECT_NE(memo_.Box(0).CurrentFont(), memo_.Box(1).CurrentFont());
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("changed FontName", "changed FontSize"));
}

TEST_F(VMemoPropertiesTest, WhatABoxRefusesIsReportedAndNotTold) {
    memo_->pLetFontSize(-1);
    memo_->pLetMaxLength(-1);
    memo_->pLetMousePointer(static_cast<host::MousePointer>(50));
    memo_->pSetFont(nullptr);
    EXPECT_THAT(memo_.TakeLog(),
                ElementsAre("error 380 in pLetFontSize", "error 380 in pLetMaxLength",
                            "error 380 in pLetMousePointer", "error 91 in pSetFont"));
}

TEST_F(VMemoPropertiesTest, LimitsAreStoredUnchecked) {
    memo_->pLetMaxCharsPerLine(-5);
    memo_->pLetMaxLines(32767);
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), -5);
    EXPECT_EQ(memo_->pGetMaxLines(), 32767);
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("changed MaxCharsPerLine", "changed MaxLines"));
}

TEST_F(VMemoPropertiesTest, CausesValidationIsAlwaysTrue) {
    memo_->pLetCausesValidation(false);
    EXPECT_TRUE(memo_->pGetCausesValidation());
    EXPECT_THAT(memo_.TakeLog(), IsEmpty());
}

TEST_F(VMemoPropertiesTest, RefreshRepaintsTheActiveBoxOnly) {
    memo_->pLetScrollBars(host::ScrollBars::Horizontal);
    memo_->Refresh();
    EXPECT_THAT(OfBoxes([](auto& box) { return box.RefreshCount(); }), ElementsAre(0, 1, 0, 0));
}

TEST_F(VMemoPropertiesTest, TestMessageEndsInTheErrorReport) {
    memo_->TestMessage();
    ASSERT_EQ(memo_.Form().GetLog().Messages().size(), 1U);
    EXPECT_EQ(memo_.Form().GetLog().Messages()[0]->text,
              u"Exe = lumenkit\r\nForm = VMEMO\r\nProc = TestMessage\r\nError Line =0\r\n"
              u"Error Code =11\r\nMessage: Division by zero");
    EXPECT_EQ(memo_.Form().GetLog().Messages()[0]->title, u"LUMENKIT ERROR");
    EXPECT_EQ(memo_.Form().GetLog().BeepCount(), 1U);
}

// ---- ScrollBars

TEST_F(VMemoPropertiesTest, TheScrollBarsItHasAreOnlyToldAgain) {
    memo_->pLetScrollBars(host::ScrollBars::None);
    EXPECT_THAT(memo_.VisibleBoxes(), ElementsAre(0));
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("changed ScrollBars"));
}

TEST_F(VMemoPropertiesTest, ScrollBarsShowTheBoxOfTheirNumber) {
    for (const int number : {3, 1, 2, 0}) {
        memo_->pLetScrollBars(static_cast<host::ScrollBars>(number));
        EXPECT_THAT(memo_.VisibleBoxes(), ElementsAre(number));
        EXPECT_EQ(static_cast<int>(memo_->pGetScrollBars()), number);
    }
}

TEST_F(VMemoPropertiesTest, ScrollBarsWithoutABoxAreRefused) {
    for (const std::int32_t number : {4, -1, 70000}) {
        memo_->pLetScrollBars(static_cast<host::ScrollBars>(number));
        EXPECT_THAT(memo_.TakeLog(), ElementsAre("error 340 in pLetScrollBars"));
        EXPECT_EQ(memo_->pGetScrollBars(), host::ScrollBars::None);
        EXPECT_THAT(memo_.VisibleBoxes(), ElementsAre(0));
    }
}

TEST_F(VMemoPropertiesTest, TheOtherBoxesAreAlreadyDressedAlike) {
    memo_->pLetForeColor(Rgb(1, 2, 3));
    memo_->pLetMaxLength(5);
    memo_->pLetScrollBars(host::ScrollBars::Both);
    EXPECT_EQ(memo_->pGetForeColor(), Rgb(1, 2, 3));
    EXPECT_EQ(memo_->pGetMaxLength(), 5);
}

// ---- PageWidth: in twips, "A" is ten times the font size wide

TEST_F(VMemoPropertiesTest, PageWidthIsSoManyLetters) {
    memo_->pSetFont(memo_.Form().NewFont(u"Courier", 12));
    memo_.TakeLog();
    memo_->pLetPageWidth(1440);
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), 12);
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("changed MaxCharsPerLine"));
}

TEST_F(VMemoPropertiesTest, HalfALetterRoundsToTheEvenNumber) {
    memo_->pSetFont(memo_.Form().NewFont(u"Courier", 12));
    memo_->pLetPageWidth(1500);  // 12.5
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), 12);
    memo_->pLetPageWidth(1620);  // 13.5
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), 14);
}

TEST_F(VMemoPropertiesTest, PageWidthIsMeasuredInTheActiveBoxesFont) {
    memo_->pLetScrollBars(host::ScrollBars::Vertical);
    memo_.Box(2).SetCurrentFont(memo_.Form().NewFont(u"Courier", 24));
    memo_->pLetPageWidth(1440);
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), 6);
    EXPECT_EQ(memo_.Placed().Drawing().CurrentFont(), memo_.Box(2).CurrentFont())
        << "which the control takes for its own";
}

TEST_F(VMemoPropertiesTest, APageTooWideForTheLimitIsReportedAndChangesNothing) {
    memo_->pLetMaxCharsPerLine(5);
    memo_.TakeLog();
    memo_->pLetPageWidth(1e9F);
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), 5);
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("error 6 in pLetPageWidth"));
}

TEST_F(VMemoPropertiesTest, ANegativePageWidthIsANegativeLimit) {
    memo_->pSetFont(memo_.Form().NewFont(u"Courier", 12));
    memo_->pLetPageWidth(-240);
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), -2);
}

TEST_F(VMemoPropertiesTest, ALetterWithoutWidthIsADivisionByZero) {
    const ControlHost& real = memo_.Placed().Host();
    FlatSurface surface(real.surface);
    memory::Constituents constituents(memo_.Form(), nullptr, true, memory::EmbedControl);
    const ControlHost host{.surface = surface,
                           .container = real.container,
                           .ambient = real.ambient,
                           .extender = real.extender,
                           .screen = real.screen,
                           .application = real.application,
                           .interaction = real.interaction,
                           .constituents = constituents};
    VMemo memo(host);
    memo.pLetMaxCharsPerLine(5);
    memo_.TakeLog();
    memo.pLetPageWidth(1440);
    EXPECT_EQ(memo.pGetMaxCharsPerLine(), 5);
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("error 11 in pLetPageWidth"));
}

// ---- MaxLength and the window handle

TEST_F(VMemoPropertiesTest, MaxLengthOfATaggedMemoIsTheActiveBoxesWindowHandle) {
    memo_->pLetMaxLength(12);
    memo_.Placed().SetTag(u"Return hWnd via ML");
    EXPECT_EQ(memo_->pGetMaxLength(), memo_.Box(0).WindowHandle());
    memo_->pLetScrollBars(host::ScrollBars::Both);
    EXPECT_EQ(memo_->pGetMaxLength(), memo_.Box(3).WindowHandle());
}

TEST_F(VMemoPropertiesTest, AnyOtherTagMeansNothing) {
    memo_->pLetMaxLength(12);
    for (const TextView tag : {u"", u"return hwnd via ml", u"Return hWnd via ML ", u"Return"}) {
        memo_.Placed().SetTag(tag);
        EXPECT_EQ(memo_->pGetMaxLength(), 12);
    }
}

TEST_F(VMemoPropertiesTest, AContainerWithoutTagsMakesMaxLengthAnError) {
    memo_->pLetMaxLength(12);
    memo_.TakeLog();
    memo_.Placed().GetExtender().SupportTag(false);
    EXPECT_EQ(memo_->pGetMaxLength(), 0);
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("error 438 in pGetMaxLength"));
}

TEST_F(VMemoPropertiesTest, MaxLengthHoldsTypingAndAssignment) {
    memo_->pLetText(u"");
    memo_->pLetMaxLength(4);
    memo_.Type(u"abcdef");
    EXPECT_EQ(memo_.Shown(), u"abcd");
    memo_->pLetText(u"123456");
    EXPECT_EQ(memo_->pGetText(), u"1234");
}

}  // namespace

}  // namespace lumenkit::testing
