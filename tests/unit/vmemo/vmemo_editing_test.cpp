// All ways in which text gets into a memo, and how the limits restrict it.
#include <gmock/gmock.h>

#include "tests/support/placed_memo.h"

namespace lumenkit::testing {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A new memo that holds `text`, with its log empty and the caret at the end.
class VMemoEditingTest : public ::testing::Test {
 protected:
    void Start(std::int16_t maxCharsPerLine, std::int16_t maxLines, TextView text) {
        memo_->pLetMaxCharsPerLine(maxCharsPerLine);
        memo_->pLetMaxLines(maxLines);
        memo_->pLetText(text);
        memo_.PutCaret(1000);
        memo_.TakeLog();
    }
    Text Accepted() { return memo_.Probe().AcceptedText(); }
    std::vector<Text> Boxes() {
        return {memo_.Box(0).Contents(), memo_.Box(1).Contents(), memo_.Box(2).Contents(),
                memo_.Box(3).Contents()};
    }
    void OnEvent(TextView event, const std::function<void()>& act) {
        memo_.Placed().Site().SetEventHandler(
            [event = Text(event), act](TextView name, std::span<Value>) {
                if (name == event) {
                    act();
                }
            });
    }

    PlacedMemo memo_;
};

// ---- Typing

TEST_F(VMemoEditingTest, WithoutLimitsAnyTextIsAcceptedAndNotNoted) {
    Start(0, 0, u"");
    memo_.Type(u"any text\rand more\r\r");
    EXPECT_EQ(memo_.Shown(), u"any text\r\nand more\r\n\r\n");
    EXPECT_EQ(Accepted(), u"");
}

TEST_F(VMemoEditingTest, AnEditWithinTheLimitsStandsAndIsNoted) {
    Start(3, 2, u"ab");
    memo_.Type(u"c");
    EXPECT_EQ(memo_.Shown(), u"abc");
    EXPECT_EQ(memo_.Caret(), 3);
    EXPECT_EQ(Accepted(), u"abc");
    EXPECT_THAT(memo_.TakeLog(),
                ElementsAre("event KeyDown", "event KeyPress", "event Change", "event KeyUp"));
}

TEST_F(VMemoEditingTest, ACharacterTooManyIsRefused) {
    Start(3, 0, u"abc");
    memo_.Type(u"d");
    EXPECT_EQ(memo_.Shown(), u"abc");
    EXPECT_EQ(memo_.Caret(), 3);
    EXPECT_EQ(Accepted(), u"abc");
    EXPECT_THAT(memo_.TakeLog(),
                ElementsAre("event KeyDown", "event KeyPress", "event Change", "event KeyUp"))
        << "silently, and Change comes all the same";
}

TEST_F(VMemoEditingTest, ARefusalPutsTheCaretWhereTheKeyWentDown) {
    Start(3, 0, u"abc");
    memo_.PutCaret(1);
    memo_.Type(u"d");
    EXPECT_EQ(memo_.Shown(), u"abc");
    EXPECT_EQ(memo_.Caret(), 1);
    EXPECT_EQ(memo_.ActiveBox().SelLength(), 0);
}

TEST_F(VMemoEditingTest, ABlankTooManyIsTrimmed) {
    Start(3, 0, u"abc");
    memo_.Type(u" ");
    EXPECT_EQ(memo_.Shown(), u"abc");
    EXPECT_EQ(memo_.Caret(), 3);
    EXPECT_EQ(Accepted(), u"abc");
    EXPECT_THAT(memo_.TakeLog(), Contains("event Change"));
}

TEST_F(VMemoEditingTest, ABlankPushedOutByAnInsertedCharacterIsTrimmed) {
    Start(3, 0, u"ab ");
    memo_.PutCaret(1);
    memo_.Type(u"x");
    EXPECT_EQ(memo_.Shown(), u"axb");
    EXPECT_EQ(memo_.Caret(), 1) << "back where the key went down";
    EXPECT_EQ(Accepted(), u"axb");
}

TEST_F(VMemoEditingTest, AnotherWhiteSpaceTooManyIsRefused) {
    Start(3, 0, u"abc");
    memo_.Paste(u"\t");
    EXPECT_EQ(memo_.Shown(), u"abc");
    memo_.Type(u"\u00A0");
    EXPECT_EQ(memo_.Shown(), u"abc");
}

TEST_F(VMemoEditingTest, EnterAtTheEndOfTheLastPermittedLineIsTrimmed) {
    Start(0, 2, u"ab\r\ncd");
    memo_.Type(u"\r");
    EXPECT_EQ(memo_.Shown(), u"ab\r\ncd");
    EXPECT_EQ(memo_.Caret(), 6) << "7, which is beyond the end";
    EXPECT_EQ(memo_.Probe().KeyDownSelStart(), 7);
}

TEST_F(VMemoEditingTest, EnterInTheLastPermittedLineDropsWhatFollowsTheCaret) {
    Start(0, 2, u"ab\r\ncd");
    memo_.PutCaret(5);
    memo_.Type(u"\r");
    EXPECT_EQ(memo_.Shown(), u"ab\r\nc");
    EXPECT_EQ(Accepted(), u"ab\r\nc");
    EXPECT_EQ(memo_.Caret(), 5);
}

TEST_F(VMemoEditingTest, ATrimmedEnterPutsTheCaretOneFurtherOn) {
    Start(0, 2, u"ab\r\ncd");
    memo_.PutCaret(0);
    memo_.Type(u"\r");
    EXPECT_EQ(memo_.Shown(), u"\r\nab");
    EXPECT_EQ(memo_.Caret(), 1);
}

TEST_F(VMemoEditingTest, AnEnterThatFitsLeavesTheCaretToTheBox) {
    Start(0, 3, u"ab\r\ncd");
    memo_.PutCaret(0);
    memo_.Type(u"\r");
    EXPECT_EQ(memo_.Shown(), u"\r\nab\r\ncd");
    EXPECT_EQ(memo_.Caret(), 2);
}

TEST_F(VMemoEditingTest, TheKeyCodeIsTakenBeforeTheHandlerChangesIt) {
    Start(0, 2, u"ab\r\ncd");
    memo_.PutCaret(0);
    memo_.Placed().Site().SetEventHandler([](TextView name, std::span<Value> arguments) {
        if (name == u"KeyDown") {
            arguments[0] = std::int16_t{65};
        }
    });
    memo_.Type(u"\r");
    EXPECT_EQ(memo_.Caret(), 1) << "still an Enter";
}

TEST_F(VMemoEditingTest, AKeyThatIsUpIsNoEnterAnyMore) {
    Start(0, 2, u"ab\r\ncd");
    memo_.PutCaret(0);
    memo_.Type(u"\r");
    EXPECT_EQ(memo_.Probe().LastKeyCode(), 0);
    EXPECT_EQ(memo_.Probe().KeyDownSelStart(), 1);
    memo_.PutCaret(0);
    memo_.Paste(u"\r\n\r\n");
    EXPECT_EQ(memo_.Shown(), u"\r\n");
    EXPECT_EQ(memo_.Caret(), 1) << "where the last key went down, and no further";
}

TEST_F(VMemoEditingTest, BackspaceThatJoinsTwoLinesIntoALongOneIsRefused) {
    Start(3, 0, u"abc\r\nde");
    memo_.PutCaret(5);
    memo_.Type(u"\b");
    EXPECT_EQ(memo_.Shown(), u"abc\r\nde");
    EXPECT_EQ(memo_.Caret(), 5);
}

TEST_F(VMemoEditingTest, LoneLineFeedsAreCharacters) {
    Start(3, 1, u"");
    memo_.Paste(u"a\nb");
    EXPECT_EQ(memo_.Shown(), u"a\nb");
    memo_.Type(u"c");
    EXPECT_EQ(memo_.Shown(), u"a\nb");
}

TEST_F(VMemoEditingTest, ARefusedEditAfterATrimmedOneGoesBackToTheTrimmedText) {
    Start(3, 0, u"ab");
    memo_.Paste(u"c  ");
    EXPECT_EQ(memo_.Shown(), u"abc");
    memo_.PutCaret(3);
    memo_.Type(u"d");
    EXPECT_EQ(memo_.Shown(), u"abc");
}

TEST_F(VMemoEditingTest, AnEditThatIsRefusedForOneLineKeepsNoTrimOfAnother) {
    Start(3, 0, u"abc\r\nabc");
    memo_.PutCaret(3);
    memo_.Paste(u" \r\nlonger");
    EXPECT_EQ(memo_.Shown(), u"abc\r\nabc");
}

TEST_F(VMemoEditingTest, ALockedMemoTakesNoEdit) {
    Start(3, 0, u"ab");
    memo_->pLetLocked(true);
    memo_.Type(u"c");
    EXPECT_EQ(memo_.Shown(), u"ab");
}

// ---- Pasting

TEST_F(VMemoEditingTest, APasteWithinTheLimitsStands) {
    Start(4, 2, u"ab");
    memo_.PutCaret(1);
    memo_.Paste(u"X\r\nY");
    EXPECT_EQ(memo_.Shown(), u"aX\r\nYb");
    EXPECT_EQ(memo_.Caret(), 5);
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("event Change"));
}

TEST_F(VMemoEditingTest, APasteThatDoesNotFitIsRefusedAsAWhole) {
    Start(4, 0, u"ab");
    memo_.PutCaret(1);
    memo_.Paste(u"X\r\nlonger");
    EXPECT_EQ(memo_.Shown(), u"ab");
}

TEST_F(VMemoEditingTest, APastePutsTheCaretWhereTheLastKeyWentDown) {
    Start(4, 0, u"");
    memo_.Type(u"ab");  // b was pressed at position 1
    memo_.PutCaret(2);
    memo_.Paste(u"longer");
    EXPECT_EQ(memo_.Shown(), u"ab");
    EXPECT_EQ(memo_.Caret(), 1);
}

TEST_F(VMemoEditingTest, APastePastTheLastPermittedLineIsKeptUpToItsEnd) {
    Start(0, 2, u"ab\r\ncd");
    memo_.PutCaret(5);
    memo_.Paste(u"X\r\nY\r\nZ");
    EXPECT_EQ(memo_.Shown(), u"ab\r\ncX");
}

TEST_F(VMemoEditingTest, APasteOverASelectionCountsWhatIsLeft) {
    Start(4, 0, u"abcd");
    memo_.Select(1, 2);
    memo_.Paste(u"XY");
    EXPECT_EQ(memo_.Shown(), u"aXYd");
    memo_.Select(1, 2);
    memo_.Paste(u"XYZ");
    EXPECT_EQ(memo_.Shown(), u"aXYd");
}

// ---- Assignment

TEST_F(VMemoEditingTest, AnAssignedTextIsCutAndGoesToAllBoxesWithoutAChangeEvent) {
    Start(5, 0, u"");
    memo_->pLetText(u"abcdefgh\r\nxyz1234567\r\nq");
    EXPECT_THAT(Boxes(), ::testing::Each(Text(u"abcde\r\nxyz12345\r\nq")));
    EXPECT_EQ(Accepted(), u"abcde\r\nxyz12345\r\nq");
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("changed Text"));
}

TEST_F(VMemoEditingTest, AnAssignmentWithoutLimitsIsNotNotedAsAccepted) {
    Start(0, 0, u"");
    memo_->pLetText(u"abc");
    EXPECT_EQ(memo_.Shown(), u"abc");
    EXPECT_EQ(Accepted(), u"");
}

TEST_F(VMemoEditingTest, TheEmptyTextIsAcceptedToo) {
    Start(3, 0, u"abc");
    memo_->pLetText(u"");
    EXPECT_EQ(Accepted(), u"");
    memo_.Paste(u"longer");
    EXPECT_EQ(memo_.Shown(), u"");
}

TEST_F(VMemoEditingTest, ATextThatMayNotChangeStaysButCountsAsAccepted) {
    Start(3, 0, u"abc");
    memo_.Placed().Site().AllowChange(u"Text", false);
    memo_->pLetText(u"xyz1");
    EXPECT_THAT(Boxes(), ::testing::Each(Text(u"abc")));
    EXPECT_EQ(Accepted(), u"xyz");
    EXPECT_THAT(memo_.TakeLog(), IsEmpty());
    memo_.Type(u"d");
    EXPECT_EQ(memo_.Shown(), u"xyz") << "what a refusal goes back to";
}

TEST_F(VMemoEditingTest, ATextThatMayNotChangeIsNotAcceptedWithoutLimits) {
    Start(0, 0, u"abc");
    memo_.Placed().Site().AllowChange(u"Text", false);
    memo_->pLetText(u"xyz");
    EXPECT_EQ(memo_.Shown(), u"abc");
    EXPECT_EQ(Accepted(), u"");
}

TEST_F(VMemoEditingTest, AnAssignmentFromTheChangeHandlerIsHeldToTheLimitsToo) {
    Start(3, 0, u"ab");
    OnEvent(u"Change", [&] { memo_->pLetText(u"12345"); });
    memo_.Type(u"c");
    EXPECT_THAT(Boxes(), ::testing::Each(Text(u"123")));
    EXPECT_EQ(Accepted(), u"123");
    EXPECT_FALSE(memo_.Probe().Updating());
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("event KeyDown", "event KeyPress", "event Change",
                                             "changed Text", "event KeyUp"));
}

TEST_F(VMemoEditingTest, AnAssignmentFromTheChangeHandlerAfterARefusalStands) {
    Start(3, 0, u"abc");
    OnEvent(u"Change", [&] { memo_->pLetText(u"new"); });
    memo_.Type(u"d");
    EXPECT_THAT(Boxes(), ::testing::Each(Text(u"new")));
    memo_.Placed().Site().SetEventHandler({});
    memo_.Type(u"d");
    EXPECT_EQ(memo_.Shown(), u"new");
}

TEST_F(VMemoEditingTest, AnAssignmentFromTheKeyDownHandlerComesBeforeTheKey) {
    Start(3, 0, u"ab");
    OnEvent(u"KeyDown", [&] { memo_->pLetText(u"xyz"); });
    memo_.Type(u"c");
    EXPECT_EQ(memo_.Shown(), u"xyz") << "c does not fit any more";
    EXPECT_EQ(memo_.Caret(), 2) << "where the key went down in the old text";
}

TEST_F(VMemoEditingTest, ALimitSetByTheChangeHandlerHoldsFromTheNextEditOn) {
    Start(0, 0, u"abc");
    OnEvent(u"Change", [&] { memo_->pLetMaxCharsPerLine(2); });
    memo_.Type(u"d");
    EXPECT_EQ(memo_.Shown(), u"abcd");
    memo_.Type(u"e");
    EXPECT_EQ(memo_.Shown(), u"");
}

// ---- Cases without a change

TEST_F(VMemoEditingTest, NewLimitsDoNotTouchTheText) {
    Start(0, 0, u"abcdef\r\ngh\r\nij");
    memo_->pLetMaxCharsPerLine(2);
    memo_->pLetMaxLines(1);
    memo_->pLetPageWidth(100);
    EXPECT_EQ(memo_.Shown(), u"abcdef\r\ngh\r\nij");
    EXPECT_EQ(Accepted(), u"");
    EXPECT_THAT(memo_.TakeLog(), ::testing::Not(Contains("event Change")));
}

TEST_F(VMemoEditingTest, ARefusalGoesBackToWhatWasAcceptedWhileALimitWasInForce) {
    Start(3, 0, u"");
    memo_.Type(u"ab");
    memo_->pLetMaxCharsPerLine(0);
    memo_.Type(u" and more");
    EXPECT_EQ(Accepted(), u"ab");
    memo_->pLetMaxCharsPerLine(3);
    memo_.Type(u"!");
    EXPECT_EQ(memo_.Shown(), u"ab");
}

TEST_F(VMemoEditingTest, ANegativeLimitReadsBackUntilTheEngineRuns) {
    Start(0, 0, u"a");
    memo_->pLetMaxCharsPerLine(-5);
    memo_->pLetMaxLines(-1);
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), -5);
    EXPECT_EQ(memo_->pGetMaxLines(), -1);
    memo_.TakeLog();
    memo_.Type(u"b");
    EXPECT_EQ(memo_->pGetMaxCharsPerLine(), 0);
    EXPECT_EQ(memo_->pGetMaxLines(), 0);
    EXPECT_EQ(memo_.Shown(), u"ab");
    EXPECT_EQ(Accepted(), u"");
    EXPECT_THAT(memo_.TakeLog(), ::testing::Not(Contains("changed MaxCharsPerLine")));
}

TEST_F(VMemoEditingTest, HiddenBoxesDoNotFollowTheEdit) {
    Start(0, 0, u"ab");
    memo_.Type(u"c");
    EXPECT_THAT(Boxes(), ElementsAre(u"abc", u"ab", u"ab", u"ab"));
}

// ---- Another ScrollBars setting

TEST_F(VMemoEditingTest, AnotherScrollBarsSettingTakesTheTextAlong) {
    Start(0, 0, u"ab");
    memo_.Type(u"c");
    memo_.TakeLog();
    memo_->pLetScrollBars(host::ScrollBars::Vertical);
    EXPECT_THAT(memo_.VisibleBoxes(), ElementsAre(2));
    EXPECT_EQ(memo_.Shown(), u"abc");
    EXPECT_THAT(Boxes(), ElementsAre(u"abc", u"ab", u"abc", u"ab"));
    EXPECT_THAT(memo_.TakeLog(), ElementsAre("changed ScrollBars"))
        << "the text is the control's own doing";
}

TEST_F(VMemoEditingTest, TheCaretAndTheSelectionGoOverToTheNewBox) {
    Start(0, 0, u"abxcd");
    memo_.Select(2, 1);
    memo_->pLetScrollBars(host::ScrollBars::Vertical);
    memo_.Type(u"e");
    EXPECT_EQ(memo_.Shown(), u"abecd");
    memo_->pLetScrollBars(host::ScrollBars::None);
    EXPECT_EQ(memo_.Caret(), 3);
}

TEST_F(VMemoEditingTest, ATextThatDoesNotFitIsRefusedByTheNewBox) {
    Start(0, 0, u"abc");
    memo_.Type(u"def");
    memo_->pLetMaxCharsPerLine(4);
    memo_->pLetScrollBars(host::ScrollBars::Both);
    EXPECT_EQ(memo_.Shown(), u"") << "nothing has been accepted yet";
    EXPECT_EQ(memo_.Box(0).Contents(), u"abcdef");
}

TEST_F(VMemoEditingTest, ATextWithTooManyLinesIsTrimmedByTheNewBoxAtTheOldCaret) {
    Start(0, 0, u"ab\r\ncd");
    memo_.PutCaret(1);
    memo_.Type(u"X");
    memo_->pLetMaxLines(1);
    memo_->pLetScrollBars(host::ScrollBars::Horizontal);
    EXPECT_EQ(memo_.Shown(), u"aXb");
    EXPECT_EQ(memo_.Caret(), 1) << "where the last key went down";
    EXPECT_EQ(Accepted(), u"aXb");
}

TEST_F(VMemoEditingTest, ASwitchAmongEqualTextsRunsNoRestriction) {
    Start(0, 0, u"abcdef");
    memo_->pLetMaxCharsPerLine(4);
    memo_->pLetScrollBars(host::ScrollBars::Both);
    EXPECT_EQ(memo_.Shown(), u"abcdef");
}

}  // namespace

}  // namespace lumenkit::testing
