#include "vlabel/caption_compiler.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/allocation_counter.h"
#include "tests/support/fake_reporter.h"
#include "vlabel/caption_dump.h"

namespace lumenkit {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReportMessage;

std::vector<Text> Entries(const TextList& list) {
    std::vector<Text> entries;
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        entries.emplace_back(list.Item(i));
    }
    return entries;
}

Text Repeated(TextView text, int count) {
    Text repeated;
    for (; count > 0; --count) {
        repeated += text;
    }
    return repeated;
}

class CaptionCompilerTest : public ::testing::Test {
 protected:
    // Returns the dump of the compiled form.
    std::string Compile(TextView caption) {
        compiler_.CompileCaption(caption);
        return DumpCaption(compiler_.Compiled());
    }

    // Returns the parameter that the compiler stores for a single command.
    Text Parameter(TextView command) {
        compiler_.CompileCaption(command);
        return Text(compiler_.Compiled().CommandParams.Item(1));
    }

    std::vector<Text> Lines() const { return Entries(compiler_.Compiled().CaptionLines); }
    std::vector<Text> Names() const { return Entries(compiler_.Compiled().CommandNames); }
    std::vector<Text> Params() const { return Entries(compiler_.Compiled().CommandParams); }
    const std::vector<Text>& Messages() const { return module_.reporter.messages; }

    static Text OverflowIn(TextView procedure) {
        return ReportMessage(u"VLABEL", procedure, ErrorNumber::Overflow);
    }

    testing::ReportingModule module_{u"VLABEL"};
    CaptionCompiler compiler_{module_};
};

// Lines

TEST_F(CaptionCompilerTest, EmptyCaptionIsOneEmptyLineAndNoCommands) {
    EXPECT_EQ(Compile(u""), "line \"\"\n");
}

TEST_F(CaptionCompilerTest, SeparatorOfEitherCaseEndsALine) {
    for (const TextView caption : {u"A|CR|B", u"A|cr|B", u"A|Cr|B", u"A|cR|B"}) {
        EXPECT_EQ(Compile(caption), "line \"A\"\nline \"B\"\n");
    }
}

TEST_F(CaptionCompilerTest, SeparatorAtTheEndLeavesAnEmptyLine) {
    EXPECT_EQ(Compile(u"A|CR|"), "line \"A\"\nline \"\"\n");
}

TEST_F(CaptionCompilerTest, SeparatorsDoNotShareABar) {
    EXPECT_EQ(Compile(u"|CR|CR|"), "line \"\"\nline \"CR|\"\n   = \"\"\n");
}

TEST_F(CaptionCompilerTest, LineBreaksOfTheTextArePlainText) {
    EXPECT_EQ(Compile(u"A\r\nB"), "line \"A\\r\\nB\"\n");
}

TEST_F(CaptionCompilerTest, CaptionOf302LinesCompilesToTheFirst301Only) {
    compiler_.CompileCaption(Repeated(u"x|CR|", 300) + u"301|CR|302 |b:1|");
    ASSERT_EQ(Lines().size(), 301U);
    EXPECT_EQ(Lines()[300], u"301");
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(CaptionCompilerTest, CaptionOf301LinesCompilesToAllOfThem) {
    compiler_.CompileCaption(Repeated(u"x|CR|", 300) + u"last");
    ASSERT_EQ(Lines().size(), 301U);
    EXPECT_EQ(Lines()[300], u"last");
}

// Quotes

TEST_F(CaptionCompilerTest, QuotesAreReplacedAndAreNoCommands) {
    EXPECT_EQ(Compile(u"Say |Q|hi|q|"), "line \"Say \\\"hi\\\"\"\n");
}

TEST_F(CaptionCompilerTest, QuotesDoNotShareABar) {
    EXPECT_EQ(Compile(u"|Q|Q|"), "line \"\\\"Q|\"\n   = \"\"\n");
}

TEST_F(CaptionCompilerTest, QuoteInsideACommandIsReplacedFirst) {
    EXPECT_EQ(Compile(u"|font:|Q|Arial|Q||x"), "line \"|x\"\n  font = \"\\\"arial\\\"|\"\n");
}

TEST_F(CaptionCompilerTest, BarBeforeAQuoteOpensACommandThatHoldsTheQuote) {
    EXPECT_EQ(Compile(u"||Q|a|b"), "line \"|b\"\n  \"a| = \"\"\n");
}

TEST_F(CaptionCompilerTest, SeparatorTakesItsFirstBarFromAQuote) {
    EXPECT_EQ(Compile(u"a|Q|CR|b"), "line \"a|\"\n  Q = \"\"\nline \"b\"\n");
}

TEST_F(CaptionCompilerTest, QuoteBehindASeparatorHasNoOpeningBar) {
    EXPECT_EQ(Compile(u"a|CR|Q|b"), "line \"a\"\nline \"Q|\"\n  b = \"\"\n");
}

// Commands

TEST_F(CaptionCompilerTest, CommandLeavesItsOpeningBar) {
    EXPECT_EQ(Compile(u"x|B:1|y|b:0|z"), "line \"x|y|z\"\n  b = \"1\"\n  b = \"0\"\n");
}

TEST_F(CaptionCompilerTest, UnterminatedCommandTakesTheRestOfTheLine) {
    EXPECT_EQ(Compile(u"a|size:12|CR|b"), "line \"a|\"\n  size = \" 12\"\nline \"b\"\n");
}

TEST_F(CaptionCompilerTest, LoneBarSwallowsTheTextToTheEnd) {
    EXPECT_EQ(Compile(u"a|b"), "line \"a|\"\n  b = \"\"\n");
}

TEST_F(CaptionCompilerTest, LoneBarSwallowsTheTextToTheNextBar) {
    EXPECT_EQ(Compile(u"a|b c|d"), "line \"a|d\"\n  b c| = \"\"\n");
}

TEST_F(CaptionCompilerTest, BarAtTheEndIsAnEmptyCommand) {
    EXPECT_EQ(Compile(u"a|"), "line \"a|\"\n   = \"\"\n");
}

TEST_F(CaptionCompilerTest, TwoBarsAreACommandOfOneBar) {
    EXPECT_EQ(Compile(u"||"), "line \"|\"\n  | = \"\"\n");
    EXPECT_EQ(Compile(u"|||"), "line \"||\"\n  | = \"\"\n   = \"\"\n");
}

TEST_F(CaptionCompilerTest, CommandWithoutAColonIsKeptAsWritten) {
    EXPECT_EQ(Compile(u"|Bold|x"), "line \"|x\"\n  Bold| = \"\"\n");
}

TEST_F(CaptionCompilerTest, UnknownCommandIsKeptInLowerCase) {
    EXPECT_EQ(Compile(u"|Font:Arial ÄΩЖ|x"), "line \"|x\"\n  font = \"arial äωж|\"\n");
}

TEST_F(CaptionCompilerTest, NameEndsAtTheFirstColon) {
    EXPECT_EQ(Compile(u"|Url:HTTP://X|"), "line \"|\"\n  url = \"http://x|\"\n");
    EXPECT_EQ(Compile(u"|:X|"), "line \"|\"\n   = \"x|\"\n");
}

TEST_F(CaptionCompilerTest, CommandsPairWithBarsAcrossLines) {
    EXPECT_EQ(Compile(u"|b:1|a|CR||i:1|b|CR|c|b:0|"),
              "line \"|a\"\n  b = \"1\"\nline \"|b\"\n  i = \"1\"\nline \"c|\"\n  b = \"0\"\n");
}

TEST_F(CaptionCompilerTest, NextCompileStartsAnew) {
    Compile(u"|before:5|a|CR|b");
    EXPECT_EQ(Compile(u"|before:+2|c"), "line \"|c\"\n  before = \" 2\"\n");
}

// Command words

TEST_F(CaptionCompilerTest, WordsOfSwitches) {
    const std::pair<TextView, TextView> words[] = {{u"b", u"b"},    {u"bold", u"b"},
                                                   {u"i", u"i"},    {u"italic", u"i"},
                                                   {u"ital", u"i"}, {u"itals", u"i"}};
    for (const auto& [written, stored] : words) {
        compiler_.CompileCaption(u"|" + Text(written) + u":1|");
        EXPECT_THAT(Names(), ElementsAre(Text(stored))) << ToUtf8(written);
        EXPECT_THAT(Params(), ElementsAre(u"1")) << ToUtf8(written);
    }
}

TEST_F(CaptionCompilerTest, UnderlineIsStoredAsItalic) {
    EXPECT_EQ(Compile(u"|u:1|text"), "line \"|text\"\n  i = \"1\"\n");
}

TEST_F(CaptionCompilerTest, WordsMustFitExactly) {
    EXPECT_EQ(Compile(u"| b:1|"), "line \"|\"\n   b = \"1|\"\n");
    EXPECT_EQ(Compile(u"|bol:1|"), "line \"|\"\n  bol = \"1|\"\n");
    EXPECT_EQ(Compile(u"|underline:1|"), "line \"|\"\n  underline = \"1|\"\n");
}

// The dotted capital I is the only unit beyond ASCII whose lower case is a letter of a command
// word.
TEST_F(CaptionCompilerTest, WordsInAnyCase) {
    for (const TextView name : {u"BEFORE", u"bEfOrE", u"before"}) {
        compiler_.CompileCaption(u"|" + Text(name) + u":1|");
        EXPECT_THAT(Names(), ElementsAre(u"before")) << ToUtf8(name);
    }
    EXPECT_EQ(Compile(u"|İ:1|"), "line \"|\"\n  i = \"1\"\n");
    EXPECT_EQ(Compile(u"|İTALİCS:1|"), "line \"|\"\n  italics = \"1|\"\n");
}

TEST_F(CaptionCompilerTest, NamesThatOnlyResembleWords) {
    for (const TextView name : {TextView(u"\0b", 2), TextView(u"b\0", 2), TextView(u"\u0169"),
                                TextView(u"befores"), TextView(u"\u0100b"), TextView(u"{b")}) {
        compiler_.CompileCaption(u"|" + Text(name) + u":1|");
        EXPECT_THAT(Names(), ElementsAre(LCase(name))) << ToUtf8(name);
        EXPECT_THAT(Params(), ElementsAre(u"1|")) << ToUtf8(name);
    }
}

TEST_F(CaptionCompilerTest, ValuesOfSwitches) {
    EXPECT_EQ(Parameter(u"|B:0|"), u"0");
    EXPECT_EQ(Parameter(u"|B:False|"), u"0");
    EXPECT_EQ(Parameter(u"|B:1|"), u"1");
    EXPECT_EQ(Parameter(u"|B:TRUE|"), u"1");
    EXPECT_EQ(Parameter(u"|B:On|"), u"on|");
    EXPECT_EQ(Parameter(u"|B: 1|"), u" 1|");
    EXPECT_EQ(Parameter(u"|B:|"), u"|");
}

TEST_F(CaptionCompilerTest, UnterminatedSwitchKeepsItsValueAsWritten) {
    EXPECT_EQ(Parameter(u"|B:1"), u"1");
    EXPECT_EQ(Parameter(u"|B:true"), u"true");
    EXPECT_EQ(Parameter(u"|B:"), u"");
}

TEST_F(CaptionCompilerTest, ColourIsStoredAsItsNumber) {
    EXPECT_EQ(Compile(u"|Fore:0,128,0|Green"), "line \"|Green\"\n  color = \"32768\"\n");
    EXPECT_EQ(Compile(u"|Color:1,2,3"), "line \"|\"\n  color = \"197121\"\n");
}

TEST_F(CaptionCompilerTest, ColourWithoutAllItsCommas) {
    EXPECT_EQ(Parameter(u"|fore:255|"), u"16711680");
    EXPECT_EQ(Parameter(u"|fore:1,255|"), u"16711681");  // red and blue
    EXPECT_EQ(Parameter(u"|fore:|"), u"0");
    EXPECT_EQ(Parameter(u"|fore:red|"), u"0");
}

TEST_F(CaptionCompilerTest, ColourWithEmptyComponents) {
    EXPECT_EQ(Parameter(u"|fore:,,255|"), u"16711680");
    EXPECT_EQ(Parameter(u"|fore:,255,|"), u"65280");
    EXPECT_EQ(Parameter(u"|fore:255,,|"), u"255");
}

TEST_F(CaptionCompilerTest, ColourWithMoreCommasEndsWithTheThirdNumber) {
    EXPECT_EQ(Parameter(u"|fore:1,2,3,4,5|"), u"197121");
}

TEST_F(CaptionCompilerTest, ColourComponentsAreMaskedAndRounded) {
    EXPECT_EQ(Parameter(u"|fore:-1,0,0|"), u"255");
    EXPECT_EQ(Parameter(u"|fore:257,0,0|"), u"1");
    EXPECT_EQ(Parameter(u"|fore:0.5,0,0|"), u"0");
    EXPECT_EQ(Parameter(u"|fore:1.5,0,0|"), u"2");
    EXPECT_EQ(Parameter(u"|fore:2.5,0,0|"), u"2");
    EXPECT_EQ(Parameter(u"|fore:&HFF,&O10,&h1|"), u"67839");  // 255, 8, 1
}

TEST_F(CaptionCompilerTest, SizeIsStoredAsItsNumber) {
    EXPECT_EQ(Parameter(u"|Size:12|"), u" 12");
    EXPECT_EQ(Parameter(u"|size:8.25|"), u" 8.25");
    EXPECT_EQ(Parameter(u"|size: 1 2 pt|"), u" 12");
    EXPECT_EQ(Parameter(u"|size:-3|"), u"-3");
    EXPECT_EQ(Parameter(u"|size:large|"), u" 0");
    EXPECT_EQ(Parameter(u"|size:.5|"), u" .5");
}

TEST_F(CaptionCompilerTest, BeforeWithASignChangesTheValueSoFar) {
    compiler_.CompileCaption(u"|before:100|x|CR||before:+50|y");
    EXPECT_THAT(Lines(), ElementsAre(u"|x", u"|y"));
    EXPECT_THAT(Names(), ElementsAre(u"before", u"before"));
    EXPECT_THAT(Params(), ElementsAre(u" 100", u" 150"));
}

TEST_F(CaptionCompilerTest, BeforeStartsFromZeroAndMayGoBelow) {
    compiler_.CompileCaption(u"|before:+5||before:-7.5||before:2||before:-2|");
    EXPECT_THAT(Params(), ElementsAre(u" 5", u"-2.5", u" 2", u" 0"));
}

TEST_F(CaptionCompilerTest, BeforeIsRelativeOnlyWhereTheSignComesFirst) {
    compiler_.CompileCaption(u"|before:10||before: +5|");
    EXPECT_THAT(Params(), ElementsAre(u" 10", u" 5"));
}

// 16777217, the successor of 16777216, has no representation in single precision.
TEST_F(CaptionCompilerTest, BeforeAddsUpInSinglePrecision) {
    compiler_.CompileCaption(u"|before:16777216||before:+1||before:+1||before:-16777215|");
    EXPECT_THAT(Params(),
                ElementsAre(u" 1.6777216E+07", u" 1.6777216E+07", u" 1.6777216E+07", u" 1"));
}

TEST_F(CaptionCompilerTest, BeforeIsStoredInSinglePrecision) {
    EXPECT_EQ(Parameter(u"|before:0.1|"), u" .1");
    EXPECT_EQ(Parameter(u"|before:1.23456789|"), u" 1.2345679");
}

// Failures

TEST_F(CaptionCompilerTest, ColourBeyond32BitsIsReportedAndLeavesNoEntry) {
    EXPECT_EQ(Compile(u"|b:1|a|fore:2147483648|b|i:1|c"),
              "line \"|a|b|c\"\n  b = \"1\"\n  i = \"1\"\n  (missing)\n");
    EXPECT_THAT(Messages(), ElementsAre(OverflowIn(u"CompileCommand")));
    EXPECT_EQ(module_.reporter.beeps, 1);
}

TEST_F(CaptionCompilerTest, ColourIsRoundedBeforeItsRangeIsChecked) {
    EXPECT_EQ(Parameter(u"|fore:2147483647.4,0,0|"), u"255");
    compiler_.CompileCaption(u"|fore:2147483647.5,0,0|");
    EXPECT_THAT(Params(), IsEmpty());
}

TEST_F(CaptionCompilerTest, BeforeBeyondSinglePrecisionKeepsTheValueSoFar) {
    compiler_.CompileCaption(u"|before:3E38||before:+3E38||before:1E39||before:+0|");
    EXPECT_THAT(Params(), ElementsAre(u" 3E+38", u" 3E+38"));
    EXPECT_THAT(Messages(),
                ElementsAre(OverflowIn(u"CompileCommand"), OverflowIn(u"CompileCommand")));
}

TEST_F(CaptionCompilerTest, NumberBeyondItsRangeIsReported) {
    compiler_.CompileCaption(u"|size:1E400||size:&HFFFFFFFFF||before:1E400||size:10|");
    EXPECT_THAT(Params(), ElementsAre(u" 10"));
    EXPECT_EQ(Messages().size(), 3U);
}

TEST_F(CaptionCompilerTest, CaptionOf32767UnitsCompiles) {
    const Text caption(32767, u'x');
    compiler_.CompileCaption(caption);
    EXPECT_THAT(Lines(), ElementsAre(caption));
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(CaptionCompilerTest, LastLineBeyond32767IsReportedAndEndsTheCompile) {
    compiler_.CompileCaption(u"|b:1|first|CR|" + Text(32768 - 14, u'x'));
    EXPECT_THAT(Lines(), ElementsAre(u"|first"));
    EXPECT_THAT(Params(), ElementsAre(u"1"));
    EXPECT_THAT(Messages(), ElementsAre(OverflowIn(u"CompileCaption")));
}

TEST_F(CaptionCompilerTest, LineBeyond32767LeavesNoCommandsEither) {
    compiler_.CompileCaption(u"|b:1|first" + Text(32768, u'x'));
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(Messages(), ElementsAre(OverflowIn(u"CompileCaption")));
}

TEST_F(CaptionCompilerTest, SeparatorBeyond32767IsReported) {
    compiler_.CompileCaption(Text(32767, u'x') + u"|CR|");
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_THAT(Messages(), ElementsAre(OverflowIn(u"CompileCaption")));
}

TEST_F(CaptionCompilerTest, LineThatWouldStartBeyond32767IsReported) {
    const Text reachable(32762, u'x');  // the next line starts at position 32767
    compiler_.CompileCaption(reachable + u"|CR|");
    EXPECT_THAT(Lines(), ElementsAre(reachable, u""));
    EXPECT_THAT(Messages(), IsEmpty());

    const Text beyond(32763, u'x');
    compiler_.CompileCaption(beyond + u"|CR|");
    EXPECT_THAT(Lines(), ElementsAre(beyond));
    EXPECT_THAT(Messages(), ElementsAre(OverflowIn(u"CompileCaption")));
}

TEST_F(CaptionCompilerTest, UnterminatedCommandNeedsAPositionBehindIt) {
    compiler_.CompileCaption(u"|" + Text(32765, u'x'));
    EXPECT_THAT(Names(), ElementsAre(Text(32765, u'x')));
    EXPECT_THAT(Messages(), IsEmpty());

    compiler_.CompileCaption(u"|" + Text(32766, u'x'));
    EXPECT_THAT(Lines(), IsEmpty());
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(Messages(), ElementsAre(OverflowIn(u"CompileCaption")));
}

// A command that was removed earlier in the line no longer counts.
TEST_F(CaptionCompilerTest, UnterminatedCommandCountsFromTheShortenedLine) {
    compiler_.CompileCaption(u"|b:1||" + Text(32761, u'x'));
    EXPECT_EQ(Names().size(), 2U);
    EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(CaptionCompilerTest, LinesWithinReachOfALongerCaptionCompile) {
    compiler_.CompileCaption(Repeated(u"x|CR|", 301) + Text(40000, u'x'));
    EXPECT_EQ(Lines().size(), 301U);
    EXPECT_THAT(Messages(), IsEmpty());
}

// Memory

TEST_F(CaptionCompilerTest, UsedAgainItAllocatesNothing) {
    const Text caption = Repeated(
        u"A |b:1|bold|b:0| word|CR||fore:0,128,0||size:12.5|Say |Q|hi|Q||before:+20|x|unknown:Ä|",
        99);
    compiler_.CompileCaption(caption);
    const std::int64_t before = testing::AllocationCount();
    ASSERT_GT(before, 0U);
    compiler_.CompileCaption(caption);
    EXPECT_EQ(testing::AllocationCount(), before);
    EXPECT_EQ(Lines().size(), 100U);
}

}  // namespace

}  // namespace lumenkit
