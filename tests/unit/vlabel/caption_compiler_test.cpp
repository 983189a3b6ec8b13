#include "vlabel/caption_compiler.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/support/allocation_counter.h"
#include "tests/support/fake_reporter.h"
#include "tests/support/repeated.h"
#include "tests/support/rows.h"
#include "vlabel/caption_dump.h"

namespace lumenkit {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::Repeated;
using testing::ReportMessage;

std::vector<Text> Entries(const TextList& list) {
    std::vector<Text> entries;
    for (std::int32_t i = 1; i <= list.Count(); ++i) {
        entries.emplace_back(list.Item(i));
    }
    return entries;
}

class CaptionCompilerTest : public ::testing::Test {
 protected:
    // Returns the dump of the compiled form.
    std::string Compile(TextView caption) {
        compiler_.CompileCaption(caption);
        return DumpCaption(compiler_.Compiled());
    }

    // Returns a dump with a semicolon in place of each line break.
    static std::string OneLine(std::string dump) {
        dump.pop_back();
        std::ranges::replace(dump, '\n', ';');
        return dump;
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

// Captions and what they compile to

struct CompiledCaptionTest
    : CaptionCompilerTest,
      ::testing::WithParamInterface<testing::Row<TextView, std::string_view>> {};

TEST_P(CompiledCaptionTest, IsDumped) {
    EXPECT_EQ(OneLine(Compile(GetParam().input)), GetParam().expected);
}

constexpr testing::Row<TextView, std::string_view> lineCaptions[] = {
    {"EmptyCaptionIsOneEmptyLineAndNoCommands", u"", R"(line "")"},
    {"SeparatorEndsALine", u"A|CR|B", R"(line "A";line "B")"},
    {"SeparatorInLowerCaseEndsALine", u"A|cr|B", R"(line "A";line "B")"},
    {"SeparatorWithASmallREndsALine", u"A|Cr|B", R"(line "A";line "B")"},
    {"SeparatorWithASmallCEndsALine", u"A|cR|B", R"(line "A";line "B")"},
    {"SeparatorAtTheEndLeavesAnEmptyLine", u"A|CR|", R"(line "A";line "")"},
    {"SeparatorsDoNotShareABar", u"|CR|CR|", R"(line "";line "CR|";   = "")"},
    {"LineBreaksOfTheTextArePlainText", u"A\r\nB", R"(line "A\r\nB")"},
};

constexpr testing::Row<TextView, std::string_view> quoteCaptions[] = {
    {"QuotesAreReplacedAndAreNoCommands", u"Say |Q|hi|q|", R"(line "Say \"hi\"")"},
    {"QuotesDoNotShareABar", u"|Q|Q|", R"(line "\"Q|";   = "")"},
    {"QuoteInsideACommandIsReplacedFirst", u"|font:|Q|Arial|Q||x",
     R"(line "|x";  font = "\"arial\"|")"},
    {"BarBeforeAQuoteOpensACommandThatHoldsTheQuote", u"||Q|a|b", R"(line "|b";  "a| = "")"},
    {"SeparatorTakesItsFirstBarFromAQuote", u"a|Q|CR|b", R"(line "a|";  Q = "";line "b")"},
    {"QuoteBehindASeparatorHasNoOpeningBar", u"a|CR|Q|b", R"(line "a";line "Q|";  b = "")"},
};

constexpr testing::Row<TextView, std::string_view> commandCaptions[] = {
    {"CommandLeavesItsOpeningBar", u"x|B:1|y|b:0|z", R"(line "x|y|z";  b = "1";  b = "0")"},
    {"UnterminatedCommandTakesTheRestOfTheLine", u"a|size:12|CR|b",
     R"(line "a|";  size = " 12";line "b")"},
    {"LoneBarSwallowsTheTextToTheEnd", u"a|b", R"(line "a|";  b = "")"},
    {"LoneBarSwallowsTheTextToTheNextBar", u"a|b c|d", R"(line "a|d";  b c| = "")"},
    {"BarAtTheEndIsAnEmptyCommand", u"a|", R"(line "a|";   = "")"},
    {"TwoBarsAreACommandOfOneBar", u"||", R"(line "|";  | = "")"},
    {"ThreeBarsAreACommandOfOneBarAndAnEmptyOne", u"|||", R"(line "||";  | = "";   = "")"},
    {"CommandWithoutAColonIsKeptAsWritten", u"|Bold|x", R"(line "|x";  Bold| = "")"},
    {"UnknownCommandIsKeptInLowerCase", u"|Font:Arial ÄΩЖ|x", R"(line "|x";  font = "arial äωж|")"},
    {"NameEndsAtTheFirstColon", u"|Url:HTTP://X|", R"(line "|";  url = "http://x|")"},
    {"NameMayBeEmpty", u"|:X|", R"(line "|";   = "x|")"},
    {"CommandsPairWithBarsAcrossLines", u"|b:1|a|CR||i:1|b|CR|c|b:0|",
     R"(line "|a";  b = "1";line "|b";  i = "1";line "c|";  b = "0")"},
};

// The dotted capital I is the only unit beyond ASCII whose lower case is a letter of a command
// word.
constexpr testing::Row<TextView, std::string_view> wordCaptions[] = {
    {"UnderlineIsStoredAsItalic", u"|u:1|text", R"(line "|text";  i = "1")"},
    {"WordWithABlankBeforeItIsNone", u"| b:1|", R"(line "|";   b = "1|")"},
    {"WordCutShortIsNone", u"|bol:1|", R"(line "|";  bol = "1|")"},
    {"UnderlineInFullIsNone", u"|underline:1|", R"(line "|";  underline = "1|")"},
    {"DottedCapitalIIsTheWordI", u"|İ:1|", R"(line "|";  i = "1")"},
    {"WordInDottedCapitalsMustFitToo", u"|İTALİCS:1|", R"(line "|";  italics = "1|")"},
    {"ColourIsStoredAsItsNumber", u"|Fore:0,128,0|Green", R"(line "|Green";  color = "32768")"},
    {"UnterminatedColourIsStoredAsItsNumber", u"|Color:1,2,3", R"(line "|";  color = "197121")"},
};

INSTANTIATE_TEST_SUITE_P(Lines, CompiledCaptionTest, ::testing::ValuesIn(lineCaptions),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(Quotes, CompiledCaptionTest, ::testing::ValuesIn(quoteCaptions),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(Commands, CompiledCaptionTest, ::testing::ValuesIn(commandCaptions),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(Words, CompiledCaptionTest, ::testing::ValuesIn(wordCaptions),
                         testing::RowName());

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

TEST_F(CaptionCompilerTest, NextCompileStartsAnew) {
    Compile(u"|before:5|a|CR|b");
    EXPECT_EQ(OneLine(Compile(u"|before:+2|c")), R"(line "|c";  before = " 2")");
}

// Command words

TEST_F(CaptionCompilerTest, WordsOfSwitches) {
    const std::pair<TextView, TextView> switches[] = {{u"b", u"b"},    {u"bold", u"b"},
                                                      {u"i", u"i"},    {u"italic", u"i"},
                                                      {u"ital", u"i"}, {u"itals", u"i"}};
    for (const auto& [written, stored] : switches) {
        compiler_.CompileCaption(u"|" + Text(written) + u":1|");
        EXPECT_THAT(Names(), ElementsAre(Text(stored))) << ToUtf8(written);
        EXPECT_THAT(Params(), ElementsAre(u"1")) << ToUtf8(written);
    }
}

TEST_F(CaptionCompilerTest, WordsInAnyCase) {
    for (const TextView name : {u"BEFORE", u"bEfOrE", u"before"}) {
        compiler_.CompileCaption(u"|" + Text(name) + u":1|");
        EXPECT_THAT(Names(), ElementsAre(u"before")) << ToUtf8(name);
    }
}

TEST_F(CaptionCompilerTest, NamesThatOnlyResembleWords) {
    for (const TextView name : {TextView(u"\0b", 2), TextView(u"b\0", 2), TextView(u"\u0169"),
                                TextView(u"befores"), TextView(u"\u0100b"), TextView(u"{b")}) {
        compiler_.CompileCaption(u"|" + Text(name) + u":1|");
        EXPECT_THAT(Names(), ElementsAre(LCase(name))) << ToUtf8(name);
        EXPECT_THAT(Params(), ElementsAre(u"1|")) << ToUtf8(name);
    }
}

// Commands and the parameters that are stored for them

struct StoredParameterTest : CaptionCompilerTest,
                             ::testing::WithParamInterface<testing::Row<TextView, TextView>> {};

TEST_P(StoredParameterTest, IsStored) {
    EXPECT_EQ(Parameter(GetParam().input), GetParam().expected);
}

constexpr testing::Row<TextView, TextView> switchParameters[] = {
    {"ZeroIsOff", u"|B:0|", u"0"},
    {"FalseIsOff", u"|B:False|", u"0"},
    {"OneIsOn", u"|B:1|", u"1"},
    {"TrueIsOn", u"|B:TRUE|", u"1"},
    {"AnotherValueIsKept", u"|B:On|", u"on|"},
    {"AValueWithABlankIsKept", u"|B: 1|", u" 1|"},
    {"NoValueIsKept", u"|B:|", u"|"},
    {"UnterminatedOneIsKeptAsWritten", u"|B:1", u"1"},
    {"UnterminatedTrueIsKeptAsWritten", u"|B:true", u"true"},
    {"UnterminatedNoValueIsKeptAsWritten", u"|B:", u""},
};

constexpr testing::Row<TextView, TextView> colourParameters[] = {
    {"WithoutCommasTheNumberIsBlue", u"|fore:255|", u"16711680"},
    {"WithOneCommaTheNumbersAreRedAndBlue", u"|fore:1,255|", u"16711681"},
    {"NothingIsBlack", u"|fore:|", u"0"},
    {"AWordIsBlack", u"|fore:red|", u"0"},
    {"EmptyRedAndGreenAreZero", u"|fore:,,255|", u"16711680"},
    {"EmptyRedAndBlueAreZero", u"|fore:,255,|", u"65280"},
    {"EmptyGreenAndBlueAreZero", u"|fore:255,,|", u"255"},
    {"WithMoreCommasItEndsWithTheThirdNumber", u"|fore:1,2,3,4,5|", u"197121"},
    {"MinusOneIsMasked", u"|fore:-1,0,0|", u"255"},
    {"A9BitNumberIsMasked", u"|fore:257,0,0|", u"1"},
    {"AHalfIsRoundedToZero", u"|fore:0.5,0,0|", u"0"},
    {"OneAndAHalfIsRoundedUp", u"|fore:1.5,0,0|", u"2"},
    {"TwoAndAHalfIsRoundedDown", u"|fore:2.5,0,0|", u"2"},
    {"HexadecimalAndOctalNumbersAreRead", u"|fore:&HFF,&O10,&h1|", u"67839"},  // 255, 8, 1
};

constexpr testing::Row<TextView, TextView> sizeParameters[] = {
    {"IsStoredAsItsNumber", u"|Size:12|", u" 12"},
    {"MayHaveAFraction", u"|size:8.25|", u" 8.25"},
    {"IsReadOverBlanksToTheUnit", u"|size: 1 2 pt|", u" 12"},
    {"MayBeNegative", u"|size:-3|", u"-3"},
    {"IsZeroForAWord", u"|size:large|", u" 0"},
    {"MayBeginWithAPoint", u"|size:.5|", u" .5"},
    {"OfBeforeIsStoredInSinglePrecision", u"|before:0.1|", u" .1"},
    {"OfBeforeIsRoundedToSinglePrecision", u"|before:1.23456789|", u" 1.2345679"},
};

INSTANTIATE_TEST_SUITE_P(Switches, StoredParameterTest, ::testing::ValuesIn(switchParameters),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(Colours, StoredParameterTest, ::testing::ValuesIn(colourParameters),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(Sizes, StoredParameterTest, ::testing::ValuesIn(sizeParameters),
                         testing::RowName());

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

// Failures

TEST_F(CaptionCompilerTest, ColourBeyond32BitsIsReportedAndLeavesNoEntry) {
    EXPECT_EQ(OneLine(Compile(u"|b:1|a|fore:2147483648|b|i:1|c")),
              R"(line "|a|b|c";  b = "1";  i = "1";  (missing))");
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
