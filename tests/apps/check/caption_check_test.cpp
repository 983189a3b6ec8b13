#include "apps/lumenkit/check/caption_check.h"

#include <gmock/gmock.h>

#include "apps/lumenkit/check/caption_outline.h"
#include "tests/apps/check/described.h"
#include "tests/support/repeated.h"

namespace lumenkit::check {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::Repeated;
using ::testing::SizeIs;

std::vector<std::string> RulesInCaption(TextView caption) {
    return Described(CheckCaption(caption));
}

std::string SuggestionFor(TextView caption) {
    const Remarks remarks = CheckCaption(caption);
    return remarks.size() == 1 ? remarks.front().suggestion : "no single remark";
}

TEST(CaptionCheck, FindsNothingInGoodCaptions) {
    for (const TextView good : {
             u"",
             u"plain: text",
             u"|B:1|a|bold:0|b|I:true|c|italic:FALSE|d|ital:1|e|itals:0|",
             u"|Fore:0,128,255|a|color:,,255|b|fore:&HFF,0,0|c|fore:255|d|fore:0.4,255.4,1,300|",
             u"|size:1.01|a|size:9.5pt|b|before:-60|c|before:+ 6 0|d|before:0|",
             u"|Q|quoted|Q||CR||cr||CR|",
         }) {
        EXPECT_THAT(RulesInCaption(good), IsEmpty()) << ::testing::PrintToString(good);
    }
}

TEST(CaptionCheck, FindsUnknownCommands) {
    EXPECT_THAT(RulesInCaption(u"a|Blink:1|b|c:d|"),
                ElementsAre("unknown-command@1", "unknown-command@11"));
    EXPECT_THAT(CheckCaption(u"|Blink:1|").front().message, HasSubstr("\"Blink\""));
}

TEST(CaptionCheck, SuggestsCommands) {
    EXPECT_EQ(SuggestionFor(u"|colour:1,2,3|"), "color");
    EXPECT_EQ(SuggestionFor(u"|BLOD:1|"), "bold");
    EXPECT_EQ(SuggestionFor(u"| b :1|"), "b");
    EXPECT_EQ(SuggestionFor(u"|befroe:60|"), "before");
    EXPECT_EQ(SuggestionFor(u"|x:1|"), "");
    EXPECT_EQ(SuggestionFor(u"|underline:1|"), "");
}

TEST(CaptionCheck, FindsLoneBars) {
    EXPECT_THAT(RulesInCaption(u"a|b|CR|c||d|e|"),
                ElementsAre("lone-bar@1", "lone-bar@8", "lone-bar@11"));
    EXPECT_EQ(SuggestionFor(u"|b|x"), "|b:1|");
    EXPECT_EQ(SuggestionFor(u"|Fore=1,2,3|x"), "|fore:1,2,3|");
    EXPECT_EQ(SuggestionFor(u"|size|x"), "");
    EXPECT_EQ(SuggestionFor(u"| cr |x"), "|CR|");
    EXPECT_EQ(SuggestionFor(u"|text|x"), "");
}

TEST(CaptionCheck, FindsUnterminatedCommandsLineByLine) {
    EXPECT_THAT(RulesInCaption(u"|b:1|CR||b:0"),
                ElementsAre("unterminated-command@0", "unterminated-command@8"));
    EXPECT_THAT(RulesInCaption(u"|b:1 a|Q|"),
                ElementsAre("unconverted-value@0", "unterminated-command@0"));
}

TEST(CaptionCheck, FindsUnderlining) {
    EXPECT_THAT(RulesInCaption(u"|u:1|a|U:0|"),
                ElementsAre("underline-is-italic@0", "underline-is-italic@6"));
}

TEST(CaptionCheck, FindsValuesThatAreNotConverted) {
    EXPECT_THAT(RulesInCaption(u"|b:yes|a|i:2|b|u:|c|b: 1|"),
                ElementsAre("unconverted-value@0", "unconverted-value@8", "underline-is-italic@14",
                            "unconverted-value@14", "unconverted-value@19"));
    EXPECT_EQ(SuggestionFor(u"|b:YES|"), "1");
    EXPECT_EQ(SuggestionFor(u"|b:off|"), "0");
    EXPECT_EQ(SuggestionFor(u"|b:treu|"), "true");
    EXPECT_EQ(SuggestionFor(u"|b: 1|"), "1");
    EXPECT_EQ(SuggestionFor(u"|b:maybe|"), "");
}

TEST(CaptionCheck, SaysThatWordsNeedTheClosingBar) {
    const Remarks remarks = CheckCaption(u"|B:true");
    EXPECT_THAT(Described(remarks), ElementsAre("unconverted-value@0", "unterminated-command@0"));
    EXPECT_EQ(remarks[0].suggestion, "B:true|");
}

TEST(CaptionCheck, FindsWordsForNumbers) {
    EXPECT_THAT(RulesInCaption(u"|fore:red,,x|a|before:+|"),
                ElementsAre("unconverted-value@0", "unconverted-value@0", "unconverted-value@14"));
}

TEST(CaptionCheck, FindsSizesThatDoNothing) {
    EXPECT_THAT(RulesInCaption(u"|size:1|a|size:0.5|b|size:-9|c|size:|d|size:large|e|size:1.5|"),
                ElementsAre("ineffective-size@0", "ineffective-size@9", "ineffective-size@20",
                            "ineffective-size@30", "ineffective-size@38"));
}

TEST(CaptionCheck, FindsColorsOutOfRange) {
    EXPECT_THAT(
        RulesInCaption(u"|fore:256,0,0|a|fore:0,-1,0|b|fore:255.5|c|fore:255.4|d|fore:9e9|"),
        ElementsAre("color-out-of-range@0", "color-out-of-range@15", "color-out-of-range@29",
                    "number-overflow@55"));
    EXPECT_EQ(CheckCaption(u"|fore:256,-1,0|").front().message,
              "red 256 is drawn as 0, green -1 is drawn as 255");
}

TEST(CaptionCheck, FindsNumbersBeyondTheirRange) {
    EXPECT_THAT(RulesInCaption(u"|size:1e999|a|before:1e39|"),
                ElementsAre("number-overflow@0", "number-overflow@13"));
}

// Each number is in range by itself. Only the compiler, which adds them up, finds the overflow.
TEST(CaptionCheck, FindsRelativeSpacingThatGrowsTooLarge) {
    EXPECT_THAT(RulesInCaption(u"|before:+3e38|a|before:+3e38|b|b:1|"),
                ElementsAre("number-overflow@15"));
}

TEST(CaptionCheck, CountsLines) {
    EXPECT_THAT(RulesInCaption(Repeated(u"x|CR|", 300)), IsEmpty());
    EXPECT_THAT(RulesInCaption(Repeated(u"x|CR|", 301)), ElementsAre("too-many-lines@1505"));
    // Text that the compiler ignores is not checked.
    EXPECT_THAT(RulesInCaption(Repeated(u"x|CR|", 301) + u"|blod:1|"),
                ElementsAre("too-many-lines@1505"));
}

TEST(CaptionCheck, CountsUnits) {
    EXPECT_THAT(RulesInCaption(Text(32767, u'x')), IsEmpty());
    EXPECT_THAT(RulesInCaption(Text(32768, u'x')), ElementsAre("text-too-long@0"));
    EXPECT_THAT(RulesInCaption(u"|blod:1|a|CR|" + Text(32768, u'x')),
                ElementsAre("unknown-command@0", "text-too-long@13"));
    EXPECT_THAT(RulesInCaption(Repeated(u"x|CR|", 301) + Text(40000, u'x')),
                ElementsAre("too-many-lines@1505", "text-too-long@1505"));
    // The end of the line acts as the closing bar, which has no position.
    EXPECT_THAT(RulesInCaption(Text(32764, u'x') + u"|b:"), ElementsAre("text-too-long@0"));
}

TEST(CaptionCheck, FindsTheFirstControlCharacterInTheText) {
    EXPECT_THAT(RulesInCaption(u"one\r\ntwo\ttabs"), ElementsAre("control-character@3"));
    EXPECT_EQ(SuggestionFor(u"one\r\ntwo"), "|CR|");
    EXPECT_EQ(SuggestionFor(u"one\ntwo"), "|CR|");
    EXPECT_EQ(SuggestionFor(u"one\ttwo"), "");
    EXPECT_THAT(CheckCaption(u"a\tb").front().message, HasSubstr("tab"));
    EXPECT_THAT(CheckCaption(u"a\u0007b").front().message, HasSubstr("\"\\u0007\""));
    EXPECT_THAT(RulesInCaption(u"a|b:1|b\u2028c"), ElementsAre("control-character@7"));
    EXPECT_THAT(RulesInCaption(u"|Blink:1|\t|Q|\t|x:1|"),
                ElementsAre("unknown-command@0", "control-character@9", "unknown-command@14"));
    EXPECT_THAT(RulesInCaption(u"a|CR|b\n|CR|c"), ElementsAre("control-character@6"));
    EXPECT_THAT(RulesInCaption(u"a|before:1\t|b"), IsEmpty()) << "a command is not drawn";
}

TEST(CaptionCheck, TakesTheWorstCaptionsInItsStride) {
    EXPECT_THAT(RulesInCaption(Text(32766, u'|')), SizeIs(16383));
    // A command in every four units; the last one is not closed.
    EXPECT_THAT(RulesInCaption(Repeated(u"|:", 16383)), SizeIs(8192 + 1));
    EXPECT_THAT(RulesInCaption(u"|" + Text(32000, u'b') + u":1|"), SizeIs(1));
}

TEST(CaptionOutline, GivesCommandsWithTheirPlaces) {
    const CaptionOutline outline = OutlineOf(u"a|B:TRUE|b|CR||x|Q|y:1");
    ASSERT_THAT(outline.commands, SizeIs(2));
    EXPECT_EQ(outline.lines, 2U);
    EXPECT_EQ(outline.commands[0].offset, 1U);
    EXPECT_EQ(outline.commands[0].text, u"B:TRUE");
    EXPECT_EQ(outline.commands[0].parameter, u"1");
    EXPECT_TRUE(outline.commands[0].closed);
    EXPECT_EQ(outline.commands[1].offset, 14U);
    EXPECT_EQ(outline.commands[1].text, u"x\"y:1");
    EXPECT_FALSE(outline.commands[1].closed);
}

TEST(CaptionOutline, TellsWhichCommandIsNotKept) {
    const CaptionOutline outline = OutlineOf(u"|b:1|a|fore:9e9|b|i:0|");
    ASSERT_THAT(outline.commands, SizeIs(3));
    EXPECT_TRUE(outline.commands[0].kept);
    EXPECT_FALSE(outline.commands[1].kept);
    EXPECT_EQ(outline.commands[2].parameter, u"0");
}

}  // namespace
}  // namespace lumenkit::check
