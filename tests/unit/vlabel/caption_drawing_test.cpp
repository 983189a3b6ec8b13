// The label's drawing, rule by rule. Expected values follow from the memory runtime's metrics: at
// 10 points a unit is 100 twips wide (bold 110) and a line 240 high.
#include <cmath>
#include <initializer_list>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/placed_label.h"

namespace lumenkit::testing {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class CaptionDrawing : public ::testing::Test {
 protected:
    CaptionDrawing() { label_.Placed().StartNew(); }

    /// Returns the items that `scene` draws on the cleared surface, one line each. A colour is left
    /// out if it is the label's own.
    std::vector<std::string> Drawn(const LabelScene& scene) {
        picture_ = Draw(label_, scene);
        std::string lines = ToLines(picture_);
        lines.resize(lines.find("Pen "));
        std::vector<std::string> drawn;
        for (std::size_t start = 0; start < lines.size();) {
            const std::size_t end = lines.find('\n', start);
            std::string line = lines.substr(start, end - start);
            const std::string ownColor = " " + ToLine(scene.foreColor);
            if (line.ends_with(ownColor)) {
                line.resize(line.size() - ownColor.size());
            }
            drawn.push_back(line);
            start = end + 1;
        }
        EXPECT_EQ(drawn.at(0), "Cls");
        drawn.erase(drawn.begin());
        return drawn;
    }

    PlacedLabel label_;
    LabelPicture picture_;  // of the last Drawn
};

LabelScene Plain(TextView caption) {
    return {.caption = Text(caption), .bulletPrefix = {}, .font = {}};
}

LabelScene Wrapped(TextView caption, float width) {
    LabelScene scene = Plain(caption);
    scene.wordWrap = true;
    scene.width = width;
    return scene;
}

LabelScene Bulleted(TextView caption) {
    LabelScene scene = Plain(caption);
    scene.bulletPrefix = u"* ";
    scene.bulletIndent = 300;
    return scene;
}

const std::vector<std::string> markAtTheTop = {"Box (30, 120)-(90, 150)",
                                               "Box (45, 105)-(75, 165)"};

std::vector<std::string> MarkThen(const std::string& print) {
    return {markAtTheTop[0], markAtTheTop[1], print};
}

// ---- Edge cases

TEST_F(CaptionDrawing, EmptyCaptionDrawsNothingVisibleAndIsOneLineHigh) {
    EXPECT_THAT(Drawn(Plain(u"")), ElementsAre("Print (0, 0) \"\" 10"));
    EXPECT_EQ(picture_.idealHeight, 240);
    EXPECT_EQ(picture_.maxLineX, 0);
}

TEST_F(CaptionDrawing, SizesUpToOneAreIgnoredAndLargerOnesSet) {
    EXPECT_THAT(Drawn(Plain(u"|size:1|a")), ElementsAre("Print (0, 0) \"a\" 10"));
    EXPECT_THAT(Drawn(Plain(u"|size:0.5|a")), ElementsAre("Print (0, 0) \"a\" 10"));
    EXPECT_THAT(Drawn(Plain(u"|size:1.5|a")), ElementsAre("Print (0, 0) \"a\" 1.5"));
}

TEST_F(CaptionDrawing, BoldEndsWhereItIsSwitchedOffAndTheFontIsAsBefore) {
    for (const bool bold : {false, true}) {
        LabelScene scene = Plain(u"|B:1|bold|B:0| plain");
        scene.font.bold = bold;
        EXPECT_THAT(Drawn(scene),
                    ElementsAre("Print (0, 0) \"bold\" 10 bold", "Print (440, 0) \" plain\" 10"));
        EXPECT_EQ(picture_.font, scene.font);
    }
}

TEST_F(CaptionDrawing, LongLineWithoutWrapStaysOnOneLine) {
    LabelScene scene = Plain(u"aaaa bbbb cccc dddd");
    scene.width = 500;
    EXPECT_THAT(Drawn(scene), ElementsAre("Print (0, 0) \"aaaa bbbb cccc dddd\" 10"));
}

TEST_F(CaptionDrawing, WordWiderThanTheControlIsPrintedWholeAtTheLineStart) {
    EXPECT_THAT(Drawn(Wrapped(u"aaaaaaaaaaaa", 1000)),
                ElementsAre("Print (0, 0) \"aaaaaaaaaaaa\" 10"));
}

TEST_F(CaptionDrawing, WordWiderThanTheControlMovesDownFromBehindOtherText) {
    EXPECT_THAT(
        Drawn(Wrapped(u"aaa|I:1|bbbbbbbbbbbb", 1000)),
        ElementsAre("Print (0, 0) \"aaa\" 10", "Print (0, 240) \"bbbbbbbbbbbb\" 10 italic"));
}

TEST_F(CaptionDrawing, BulletPrefixDrawsABulletLeftOfTheText) {
    EXPECT_EQ(Drawn(Bulleted(u"* item")), MarkThen("Print (300, 0) \"item\" 10"));
    EXPECT_THAT(Drawn(Bulleted(u"x * item")), ElementsAre("Print (300, 0) \"x * item\" 10"));
}

TEST_F(CaptionDrawing, BeforeSpacingLowersTheNextLineButNotWrappedOnes) {
    EXPECT_THAT(Drawn(Plain(u"A|CR|B")),
                ElementsAre("Print (0, 0) \"A\" 10", "Print (0, 240) \"B\" 10"));
    EXPECT_THAT(Drawn(Plain(u"|before:120|A|CR|B")),
                ElementsAre("Print (0, 0) \"A\" 10", "Print (0, 360) \"B\" 10"));
    EXPECT_THAT(Drawn(Wrapped(u"|before:120|AAAA AAAA|CR|B", 500)),
                ElementsAre("Print (0, 0) \"AAAA \" 10", "Print (0, 240) \"AAAA\" 10",
                            "Print (0, 600) \"B\" 10"));
}

// ---- Word wrap

TEST_F(CaptionDrawing, WrapLimitSurvivesABreak) {
    EXPECT_THAT(
        Drawn(Wrapped(u"aaaa bbbb cccc dddddddd", 1000)),
        ElementsAre("Print (0, 0) \"aaaa bbbb \" 10", "Print (0, 240) \"cccc dddddddd\" 10"));
}

Text Words(int count) {
    Text words;
    for (; count > 0; --count) {
        words += u"a ";
    }
    return words;
}

// Each step on the first line finds a blank further to the left, until "a" fits. A thousand steps
// may fail, and one more may print.
TEST_F(CaptionDrawing, WrapGivesUpAfterAThousandStepsWithoutPrinting) {
    const std::vector<std::string> drawn = Drawn(Wrapped(Words(1001) + u"b", 150));
    EXPECT_THAT(drawn, Contains("Print (0, 0) \"a \" 10"));
    EXPECT_EQ(picture_.penY, 480);  // a line for the break and one at the end, without text
    EXPECT_EQ(drawn.size(), 1U);

    EXPECT_THAT(Drawn(Wrapped(Words(1002) + u"b", 150)), IsEmpty());
    EXPECT_EQ(picture_.penY, 240);
}

TEST_F(CaptionDrawing, WrapGuardIsOfEachRun) {
    EXPECT_THAT(Drawn(Wrapped(Words(1100) + u"|I:1|z|CR|y", 150)),
                ElementsAre("Print (0, 0) \"z\" 10 italic", "Print (0, 240) \"y\" 10 italic"));
}

TEST_F(CaptionDrawing, WrapPrintsTrailingBlanksAndMeasuresWithoutThem) {
    EXPECT_THAT(Drawn(Wrapped(u"aaaa     ", 400)), ElementsAre("Print (0, 0) \"aaaa     \" 10"));
    EXPECT_EQ(picture_.maxLineX, 900);
    EXPECT_THAT(Drawn(Wrapped(u"aaaa   bb", 400)),
                ElementsAre("Print (0, 0) \"aaaa   \" 10", "Print (0, 240) \"bb\" 10"));
}

TEST_F(CaptionDrawing, WrapFitsUpToTheVeryEdge) {
    EXPECT_THAT(Drawn(Wrapped(u"aaaa bbbb", 900)), ElementsAre("Print (0, 0) \"aaaa bbbb\" 10"));
    EXPECT_THAT(Drawn(Wrapped(u"aaaa bbbb", 899.9375F)),
                ElementsAre("Print (0, 0) \"aaaa \" 10", "Print (0, 240) \"bbbb\" 10"));
}

// 400 and 20.004 are 420.004, which single precision rounds down.
TEST_F(CaptionDrawing, WrapComparesSumsInSinglePrecision) {
    constexpr float edge = 420.004F;
    ASSERT_GT(400.0 + 20.004, double{edge});
    EXPECT_THAT(Drawn(Wrapped(u"aaaa|size:1.0002|bb", edge)),
                ElementsAre("Print (0, 0) \"aaaa\" 10", "Print (400, 0) \"bb\" 1.0002"));
    EXPECT_THAT(Drawn(Wrapped(u"aaaa|size:1.0002|bb", std::nextafter(edge, 0.0F))),
                ElementsAre("Print (0, 0) \"aaaa\" 10", "Print (0, 240) \"bb\" 1.0002"));
}

TEST_F(CaptionDrawing, WrapNeedsABlankBehindTheFirstUnit) {
    EXPECT_THAT(Drawn(Wrapped(u" aaaa", 400)), ElementsAre("Print (0, 0) \" aaaa\" 10"));
    EXPECT_THAT(Drawn(Wrapped(u"  aaaa", 400)),
                ElementsAre("Print (0, 0) \"  \" 10", "Print (0, 240) \"aaaa\" 10"));
}

TEST_F(CaptionDrawing, EmptyRunPastTheEdgeStartsANewLine) {
    EXPECT_THAT(Drawn(Wrapped(u"aaaaaa|I:1|", 500)), ElementsAre("Print (0, 0) \"aaaaaa\" 10"));
    EXPECT_EQ(picture_.penY, 480);
    EXPECT_THAT(Drawn(Wrapped(u"aaaaa|I:1|", 500)),
                ElementsAre("Print (0, 0) \"aaaaa\" 10", "Print (500, 0) \"\" 10 italic"));
    EXPECT_EQ(picture_.penY, 240);
}

// ---- Lines

TEST_F(CaptionDrawing, RunsOfALineAreAlignedAtTheirTop) {
    EXPECT_THAT(
        Drawn(Plain(u"a|size:20|b|size:5|c")),
        ElementsAre("Print (0, 0) \"a\" 10", "Print (100, 0) \"b\" 20", "Print (300, 0) \"c\" 5"));
    EXPECT_EQ(picture_.penY, 480);
}

TEST_F(CaptionDrawing, SizeOnlyEverLengthensTheLine) {
    EXPECT_THAT(
        Drawn(Plain(u"a|size:5|b|CR|c")),
        ElementsAre("Print (0, 0) \"a\" 10", "Print (100, 0) \"b\" 5", "Print (0, 240) \"c\" 5"));
    EXPECT_EQ(picture_.penY, 360);
}

TEST_F(CaptionDrawing, LineIsMeasuredInTheFontWithWhichItStarts) {
    EXPECT_THAT(
        Drawn(Plain(u"|size:20|a|CR||size:10|b|CR|c")),
        ElementsAre("Print (0, 0) \"a\" 20", "Print (0, 480) \"b\" 10", "Print (0, 960) \"c\" 10"));
    EXPECT_EQ(picture_.penY, 1200);
}

TEST_F(CaptionDrawing, BeforeSpacingIsForgottenWithTheNextDrawing) {
    Drawn(Plain(u"a|before:500|"));
    EXPECT_EQ(picture_.penY, 740);
    Drawn(Plain(u"a"));
    EXPECT_EQ(picture_.penY, 240);
}

TEST_F(CaptionDrawing, BeforeSpacingStartsAtZeroEachTime) {
    Drawn(Plain(u"a|CR||before:500|b"));
    EXPECT_EQ(picture_.penY, 980);
    label_.Placed().Paint();  // draws the same compiled caption again
    EXPECT_EQ(label_.Picture().penY, 980);
}

TEST_F(CaptionDrawing, ExtentIsTheLargestXAtALineEnd) {
    LabelScene scene = Wrapped(u"aaaa bb|CR|cc", 500);
    scene.bulletIndent = 30;
    Drawn(scene);
    EXPECT_EQ(picture_.maxLineX, 530);  // "aaaa " with its blank
}

TEST_F(CaptionDrawing, ExtentStartsAtZero) {
    LabelScene scene = Plain(u"a");
    scene.bulletIndent = -1000;
    Drawn(scene);
    EXPECT_EQ(picture_.maxLineX, 0);
    Drawn(Plain(u"aaaa"));
    EXPECT_EQ(picture_.maxLineX, 400);
    Drawn(Plain(u"a"));
    EXPECT_EQ(picture_.maxLineX, 100);
}

TEST_F(CaptionDrawing, IdealHeightIsRoundedHalfToEven) {
    Drawn(Plain(u"|before:0.5|a"));
    EXPECT_EQ(picture_.idealHeight, 240);
    Drawn(Plain(u"|before:1.5|a"));
    EXPECT_EQ(picture_.idealHeight, 242);
}

TEST_F(CaptionDrawing, IdealHeightBeyond16BitsIsReported) {
    Drawn(Plain(u"|before:32527|a"));
    EXPECT_EQ(picture_.idealHeight, 32767);
    EXPECT_THAT(picture_.reports, IsEmpty());
    Drawn(Plain(u"|before:32527.5|a"));
    EXPECT_THAT(picture_.reports, ElementsAre("error 6 in DisplayCaption"));
    EXPECT_EQ(picture_.idealHeight, 32767);  // unchanged
}

// ---- Commands

TEST_F(CaptionDrawing, UnderlineCommandSwitchesItalics) {
    LabelScene scene = Plain(u"|u:1|a|u:0|b");
    scene.font.underline = true;
    EXPECT_THAT(Drawn(scene), ElementsAre("Print (0, 0) \"a\" 10 italic underline",
                                          "Print (100, 0) \"b\" 10 underline"));
}

// A command cut by the end of a line keeps its name and has no parameter.
TEST_F(CaptionDrawing, HalfAnUnderlineCommandEndsTheUnderline) {
    LabelScene scene = Plain(u"a|u|CR|b");
    scene.font.underline = true;
    EXPECT_THAT(Drawn(scene), ElementsAre("Print (0, 0) \"a\" 10 underline",
                                          "Print (100, 0) \"\" 10", "Print (0, 240) \"b\" 10"));
}

TEST_F(CaptionDrawing, ColorHoldsUntilTheEndAndIsPutBack) {
    LabelScene scene = Plain(u"a|Fore:0,128,0|b|CR|c");
    scene.foreColor = Rgb(1, 2, 3);
    EXPECT_THAT(Drawn(scene),
                ElementsAre("Print (0, 0) \"a\" 10", "Print (100, 0) \"b\" 10 0x00008000",
                            "Print (0, 240) \"c\" 10 0x00008000"));
    EXPECT_EQ(picture_.foreColor, scene.foreColor);
}

TEST_F(CaptionDrawing, UnknownCommandsChangeNothing) {
    EXPECT_THAT(
        Drawn(Plain(u"a|font:x|b|b|c")),
        ElementsAre("Print (0, 0) \"a\" 10", "Print (100, 0) \"b\" 10", "Print (200, 0) \"c\" 10"));
}

TEST_F(CaptionDrawing, SizeThatTheFontRefusesIsReportedAndTheRestDrawn) {
    EXPECT_THAT(Drawn(Plain(u"a|size:2161|b")),
                ElementsAre("Print (0, 0) \"a\" 10", "Print (100, 0) \"b\" 10"));
    EXPECT_THAT(picture_.reports, ElementsAre("error 380 in ExecuteNextCommand"));
}

TEST_F(CaptionDrawing, CommandsWithNumbersTooLargeAreReportedAndTheRestDrawn) {
    EXPECT_THAT(
        Drawn(Plain(u"a|size:1E39|b|before:1E39|c")),
        ElementsAre("Print (0, 0) \"a\" 10", "Print (100, 0) \"b\" 10", "Print (200, 0) \"c\" 10"));
    // The compiler reports that the spacing is too large, and stores no entry for the second bar.
    EXPECT_THAT(picture_.reports,
                ElementsAre("error 6 in CompileCommand", "error 6 in ExecuteNextCommand",
                            "error 9 in ExecuteNextCommand"));
}

TEST_F(CaptionDrawing, LineThatGoesTooFarDownIsReported) {
    EXPECT_THAT(Drawn(Plain(u"|before:3E38|a|CR|b|CR|c")),
                ElementsAre("Print (0, 0) \"a\" 10", "Print (0, 3e+38) \"b\" 10",
                            "Print (0, 3e+38) \"c\" 10"));
    EXPECT_THAT(picture_.reports, ElementsAre("error 6 in StartNewLine", "error 6 in StartNewLine",
                                              "error 6 in DisplayCaption"));
}

// ---- Bullets

TEST_F(CaptionDrawing, BulletIsForARunThatStartsAtTheLineStart) {
    EXPECT_EQ(Drawn(Bulleted(u"|I:1|* item")), MarkThen("Print (300, 0) \"item\" 10 italic"));
    EXPECT_THAT(Drawn(Bulleted(u"a|I:1|* item")),
                ElementsAre("Print (300, 0) \"a\" 10", "Print (400, 0) \"* item\" 10 italic"));
}

TEST_F(CaptionDrawing, BulletPrefixIsTakenLetterForLetter) {
    LabelScene scene = Bulleted(u"X item");
    scene.bulletPrefix = u"x ";
    EXPECT_THAT(Drawn(scene), ElementsAre("Print (300, 0) \"X item\" 10"));
}

TEST_F(CaptionDrawing, EmptyPrefixAndShorterTextAreNoBullets) {
    LabelScene scene = Bulleted(u"*");
    EXPECT_THAT(Drawn(scene), ElementsAre("Print (300, 0) \"*\" 10"));
    scene.bulletPrefix = u"";
    EXPECT_THAT(Drawn(scene), ElementsAre("Print (300, 0) \"*\" 10"));
}

TEST_F(CaptionDrawing, BulletHasTheColorInEffect) {
    EXPECT_THAT(Drawn(Bulleted(u"|fore:0,0,255|* a")),
                Contains("Box (30, 120)-(90, 150) 0x00FF0000"));
}

TEST_F(CaptionDrawing, MarkSitsAtTheSameXWhateverTheIndent) {
    for (const std::int16_t indent : std::initializer_list<std::int16_t>{-500, 0, 300, 5000}) {
        LabelScene scene = Bulleted(u"* a");
        scene.bulletIndent = indent;
        EXPECT_THAT(Drawn(scene), Contains(markAtTheTop[0]));
    }
}

TEST_F(CaptionDrawing, WrappedLinesHaveNoMarkOfTheirOwn) {
    LabelScene scene = Bulleted(u"* aaaaaa * bbbb");
    scene.wordWrap = true;
    scene.width = 900;
    EXPECT_THAT(Drawn(scene),
                ElementsAre(markAtTheTop[0], markAtTheTop[1], "Print (300, 0) \"aaaaaa \" 10",
                            "Print (300, 240) \"* bbbb\" 10"));
}

TEST_F(CaptionDrawing, LineOf240TwipsHasTheMarkOfTwoRectangles) {
    EXPECT_EQ(Drawn(Bulleted(u"* ")), MarkThen("Print (300, 0) \"\" 10"));
}

TEST_F(CaptionDrawing, LineAbove15240TwipsHasNoMark) {
    EXPECT_THAT(Drawn(Bulleted(u"|size:635|* a")), Contains(StartsWith("Box")));
    EXPECT_THAT(Drawn(Bulleted(u"|size:636|* a")), Not(Contains(StartsWith("Box"))));
}

// ---- Invisible lines

TEST_F(CaptionDrawing, LinesBelowTheVisiblePartOnlyMoveThePen) {
    LabelScene scene = Plain(u"a|CR|bbbb|size:20|c|CR|d");
    const std::vector<std::string> all = Drawn(scene);
    const LabelPicture whole = picture_;
    scene.visibleBottom = 240;  // the second line starts there
    EXPECT_THAT(Drawn(scene), ElementsAre(all[0]));
    EXPECT_EQ(picture_.penX, whole.penX);
    EXPECT_EQ(picture_.penY, whole.penY);
    EXPECT_EQ(picture_.maxLineX, 600);
    EXPECT_EQ(picture_.idealHeight, whole.idealHeight);
    scene.visibleBottom = 241;
    EXPECT_THAT(Drawn(scene), ElementsAre(all[0], all[1], all[2]));
}

}  // namespace

}  // namespace lumenkit::testing
