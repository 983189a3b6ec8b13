// The mending of each rule about captions: what --fix and --fix=all make of a caption.
#include <string>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/fix/file_fixes.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "tests/support/rows.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::Row;
using lumenkit::testing::RowName;

struct Mended {
    TextView safe;
    TextView all;
};

FixedCaption Fixed(TextView caption, FixScope scope) {
    return FixCaptionFile("x.txt", caption, lumenkitClasses, {.scope = scope});
}

std::string FixedText(TextView caption, FixScope scope) {
    return ToUtf8(Fixed(caption, scope).caption);
}

struct FixCaptions : ::testing::TestWithParam<Row<TextView, Mended>> {};

TEST_P(FixCaptions, AreMended) {
    const auto& [name, caption, mended] = GetParam();
    EXPECT_EQ(FixedText(caption, FixScope::Safe), ToUtf8(mended.safe));
    EXPECT_EQ(FixedText(caption, FixScope::All), ToUtf8(mended.all));
}

constexpr Row<TextView, Mended> commands[] = {
    {"UnknownGetsTheSuggestedName", u"a|Blod:1|b", {u"a|Blod:1|b", u"a|bold:1|b"}},
    {"UnknownWithoutEffectIsStillAGuess", u"|blod:0|b", {u"|blod:0|b", u"|bold:0|b"}},
    {"UnknownWithoutSuggestionStays", u"|xyzzy:1|b", {u"|xyzzy:1|b", u"|xyzzy:1|b"}},
    {"UnknownLeadsToTheNextMending", u"|blod:yes|b", {u"|blod:yes|b", u"|bold:1|b"}},
    {"AQuoteInANameStays", u"|bl|Q|od:1|b", {u"|bl|Q|od:1|b", u"|bl|Q|od:1|b"}},
    {"UnderlineBecomesItalic", u"|u:1|b|U:0|", {u"|i:1|b|I:0|", u"|i:1|b|I:0|"}},
};
INSTANTIATE_TEST_SUITE_P(Commands, FixCaptions, ::testing::ValuesIn(commands), RowName());

constexpr Row<TextView, Mended> unterminated[] = {
    {"AtTheEndDrawsTheSame", u"a|b:1", {u"a|b:1|", u"a|b:1|"}},
    {"BeforeALineDrawsTheSame", u"a|b:1|CR|b", {u"a|b:1||CR|b", u"a|b:1||CR|b"}},
    {"BeforeTextShowsIt", u"|b:1Hello", {u"|b:1Hello", u"|b:1|Hello"}},
    {"BeforeABlankDrawsIt", u"|b:1 ", {u"|b:1 ", u"|b:1| "}},
    {"BeforeAQuoteShowsIt", u"|b:1 |Q|x|Q|", {u"|b:1 |Q|x|Q|", u"|b:1| |Q|x|Q|"}},
    {"ATrueIsAValue", u"|b:TRUEx", {u"|b:TRUEx", u"|b:TRUE|x"}},
    {"ATrueAtTheEndSwitches", u"a|b:true|CR|b", {u"a|b:true|CR|b", u"a|b:true||CR|b"}},
    {"ATrueBeforeNothingSwitchesWhatAProgramAppends", u"a|b:true", {u"a|b:true", u"a|b:true|"}},
    {"TwoDigitsAreNoSwitch", u"|b:10 apples", {u"|b:10 apples", u"|b:10 apples"}},
    {"AWordIsNoSwitch", u"|b:yes, we", {u"|b:yes, we", u"|b:yes, we"}},
    {"ANumberEndsBeforeText", u"|size:12.5pt", {u"|size:12.5pt", u"|size:12.5|pt"}},
    {"ASignBelongsToANumber", u"|before:-20x", {u"|before:-20x", u"|before:-20|x"}},
    {"APointNeedsDigits", u"|size:12. Next", {u"|size:12. Next", u"|size:12|. Next"}},
    {"AColorHasThreeNumbers", u"|fore:255, 0,7,x", {u"|fore:255, 0,7,x", u"|fore:255, 0,7|,x"}},
    {"AnUnknownNameStays", u"|xyzzy:1 b", {u"|xyzzy:1 b", u"|xyzzy:1 b"}},
    {"ASuggestedNameComesFirst", u"|blod:1 b", {u"|blod:1 b", u"|bold:1| b"}},
    {"AnUnderlineToo", u"|u:1b", {u"|i:1b", u"|i:1|b"}},
};
INSTANTIATE_TEST_SUITE_P(Unterminated, FixCaptions, ::testing::ValuesIn(unterminated), RowName());

constexpr Row<TextView, Mended> loneBars[] = {
    {"AroundAWordShowIt", u"Hello |world|", {u"Hello |world|", u"Hello world"}},
    {"BeforeTextShowsIt", u"Hello |world", {u"Hello |world", u"Hello world"}},
    {"AtTheEndOfALineDrawsNothing", u"Hello||CR|b|", {u"Hello|CR|b", u"Hello|CR|b"}},
    {"SideBySideAtTheBeginningDrawNothing", u"||Hello", {u"Hello", u"Hello"}},
    {"SideBySideBetweenWordsSeparateRuns", u"a||b", {u"a||b", u"ab"}},
    {"SideBySideInARow", u"||||||a", {u"a", u"a"}},
    {"WithACommandBetweenThemGetIt", u"|b|x|b=0|", {u"|b|x|b=0|", u"|b:1|x|b:0|"}},
    {"AroundAMarkWithABlankGetIt", u"a|CR |b", {u"a|CR |b", u"a|CR|b"}},
    {"InAWordAreRatherACommand",
     u"a |n|b|CR|a|n| b|CR|a|n",
     {u"a |n|b|CR|a|n| b|CR|a|n", u"a |n|b|CR|a|n| b|CR|a|n"}},
    {"BesideAWordThatEndsInASign", u"(|n|)", {u"(|n|)", u"(n)"}},
    {"AroundQuotesShowThem", u"a |x |Q|y|Q| |b", {u"a |x |Q|y|Q| |b", u"a x |Q|y|Q| b"}},
};
INSTANTIATE_TEST_SUITE_P(LoneBars, FixCaptions, ::testing::ValuesIn(loneBars), RowName());

constexpr Row<TextView, Mended> values[] = {
    {"YesIsOn", u"|b:yes|x", {u"|b:yes|x", u"|b:1|x"}},
    {"NoIsOff", u"|b:no|x", {u"|b:0|x", u"|b:0|x"}},
    {"FalseMayBeMisspelt", u"|i:fasle|x", {u"|i:false|x", u"|i:false|x"}},
    {"OtherWordsStay", u"|b:xyzzy|x", {u"|b:xyzzy|x", u"|b:xyzzy|x"}},
    {"WordsForNumbersStay",
     u"|fore:red|x|before:much|y",
     {u"|fore:red|x|before:much|y", u"|fore:red|x|before:much|y"}},
    {"IneffectiveSizesGo", u"|size:1|Hello", {u"Hello", u"Hello"}},
    {"IneffectiveSizesSeparateRuns", u"a|size:0|b", {u"a|size:0|b", u"ab"}},
    {"IneffectiveSizesBesideOtherCommandsGo", u"a|size:.5||b:1|b", {u"a|b:1|b", u"a|b:1|b"}},
    {"EmptySizesGo", u"|size:|a", {u"a", u"a"}},
    {"WordsForSizesStay", u"|size:big|a", {u"|size:big|a", u"|size:big|a"}},
    {"ColorsGetTheNearestValue", u"|fore:300,-1,7|x", {u"|fore:300,-1,7|x", u"|fore:255,0,7|x"}},
    {"ColorsInRangeStay", u"|fore:255,0,0|x", {u"|fore:255,0,0|x", u"|fore:255,0,0|x"}},
    {"ASingleComponentIsBlue", u"|color: 256 |x", {u"|color: 256 |x", u"|color:255|x"}},
    {"TextAfterTheThirdComponentStays",
     u"|fore:0,0,999,x|y",
     {u"|fore:0,0,999,x|y", u"|fore:0,0,255,x|y"}},
    {"OverflowsGo", u"|size:1e999|Hello", {u"Hello", u"Hello"}},
    {"OverflowingColorsGo", u"|fore:9e9,0,0|Hello", {u"Hello", u"Hello"}},
    // The label draws the command after the overflow in its place.
    {"OverflowsBeforeOtherCommandsChangeThese",
     u"|size:1e999||b:1|x|b:0|y",
     {u"|size:1e999||b:1|x|b:0|y", u"|b:1|x|b:0|y"}},
};
INSTANTIATE_TEST_SUITE_P(Values, FixCaptions, ::testing::ValuesIn(values), RowName());

constexpr Row<TextView, Mended> controlCharacters[] = {
    {"LineEndsBecomeSeparators", u"a\nb\r\nc\rd", {u"a\nb\r\nc\rd", u"a|CR|b|CR|c|CR|d"}},
    {"APairIsOneLineEndWhereverItStands", u"\r\n\n\r", {u"\r\n\n\r", u"|CR||CR||CR|"}},
    {"OthersBecomeBlanks",
     u"a\tb\x7F"
     u"c",
     {u"a b c", u"a b c"}},
    {"LettersOfAnotherCodePageStay",
     u"a\tb\x9D"
     u"c",
     {u"a b\x9D"
      u"c",
      u"a b\x9D"
      u"c"}},
    {"BothInAnyOrder", u"a\tb\nc\td", {u"a b\nc d", u"a b|CR|c d"}},
    {"BehindALineEndOthersWaitForIt", u"a\nb\tc", {u"a\nb\tc", u"a|CR|b c"}},
    {"InCommandsTheyStay", u"|size:\t12|x", {u"|size:\t12|x", u"|size:\t12|x"}},
    // In a narrow label, words are wrapped at a blank.
    {"BetweenLongWordsTheyMayBeAPlaceToWrap",
     u"aaaaaaaaaa\tbbbbbbbbbbbb",
     {u"aaaaaaaaaa\tbbbbbbbbbbbb", u"aaaaaaaaaa bbbbbbbbbbbb"}},
};
INSTANTIATE_TEST_SUITE_P(ControlCharacters, FixCaptions, ::testing::ValuesIn(controlCharacters),
                         RowName());

constexpr Row<TextView, Mended> mixed[] = {
    {"GoodPartsOfABadCaption",
     u"|xyzzy:1||u:1|x|b:10 y",
     {u"|xyzzy:1||i:1|x|b:10 y", u"|xyzzy:1||i:1|x|b:10 y"}},
    // Each line after the first one is too high, and the label says so.
    {"MoreMessagesAreWorse",
     u"|before:3e38|a|CR|b\nc",
     {u"|before:3e38|a|CR|b\nc", u"|before:3e38|a|CR|b\nc"}},
    {"NothingToMend", u"|B:1|Hello|CR|world", {u"|B:1|Hello|CR|world", u"|B:1|Hello|CR|world"}},
    {"Empty", u"", {u"", u""}},
    {"AMarkAtTheBeginning", u"\xfeff|u:1|x", {u"\xfeff|i:1|x", u"\xfeff|i:1|x"}},
};
INSTANTIATE_TEST_SUITE_P(Mixed, FixCaptions, ::testing::ValuesIn(mixed), RowName());

TEST(FixedCaptions, NameTheFindings) {
    const FixedCaption fixed = Fixed(u"|blod:1|x|u:1|\ny", FixScope::All);
    ASSERT_EQ(fixed.fixed.size(), 3U);
    EXPECT_EQ(fixed.fixed[0].rule, "unknown-command");
    EXPECT_EQ(fixed.fixed[0].offset, 0U);
    EXPECT_EQ(fixed.fixed[1].rule, "underline-is-italic");
    EXPECT_EQ(fixed.fixed[1].offset, 9U);
    EXPECT_EQ(fixed.fixed[2].rule, "control-character");
    EXPECT_EQ(fixed.fixed[2].file, "x.txt");
}

TEST(FixedCaptions, OnlySelectedFindingsAreMended) {
    const FindingFilter first = [](Findings findings) {
        std::erase_if(findings, [](const Finding& finding) { return finding.offset != 0U; });
        return findings;
    };
    EXPECT_EQ(
        FixCaptionFile("x.txt", u"|u:1|a|u:0|b|u:1|", lumenkitClasses, {FixScope::Safe, first})
            .caption,
        u"|i:1|a|u:0|b|u:1|");
}

TEST(FixedCaptions, ManyFindingsAreMendedAtOnce) {
    constexpr std::size_t count = 3000;
    Text caption;
    Text mended;
    for (std::size_t i = 0; i < count; ++i) {
        caption += u"|u:1|a";
        mended += u"|i:1|a";
    }
    const FixedCaption fixed = Fixed(caption, FixScope::Safe);
    EXPECT_EQ(fixed.caption, mended);
    EXPECT_EQ(fixed.fixed.size(), count);
}

// Longer captions would be cut where they are drawn: 32,767 units, 301 lines.
TEST(FixedCaptions, DoNotBecomeTooLong) {
    Text caption;
    for (int i = 0; i < 302; ++i) {
        caption += u"a\n";
    }
    EXPECT_EQ(Fixed(caption, FixScope::All).caption, caption);
    Text full(32766, u'a');
    full += u'\n';
    EXPECT_EQ(Fixed(full, FixScope::All).caption, full);
}

}  // namespace
}  // namespace lumenkit::check
