#include "vmemo/restriction_engine.h"

#include <gmock/gmock.h>
#include <sys/mman.h>

#include "frame/runtime_error.h"
#include "frame/utf8.h"
#include "tests/support/allocation_counter.h"

namespace lumenkit {

namespace {

enum class Verdict { Fits, Trimmed, Refused, RefusedAndTrimmed };

struct Outcome {
    Verdict verdict;
    Text text;

    friend bool operator==(const Outcome&, const Outcome&) = default;
    friend void PrintTo(const Outcome& outcome, std::ostream* out) {
        *out << static_cast<int>(outcome.verdict) << ' '
             << ::testing::PrintToString(ToUtf8(outcome.text));
    }
};

Verdict VerdictOf(const Restriction& restriction) {
    if (restriction.refused) {
        return restriction.trimmed ? Verdict::RefusedAndTrimmed : Verdict::Refused;
    }
    return restriction.trimmed ? Verdict::Trimmed : Verdict::Fits;
}

Outcome Plain(TextView text, TextLimits limits) {
    const Restriction restriction = Restrict(text, limits, RestrictionMode::Plain);
    return {VerdictOf(restriction), Text(restriction.Of(text))};
}

// If the edit is refused, the text is empty.
Outcome Apply(TextView text, TextLimits limits) {
    const Restriction restriction = Restrict(text, limits, RestrictionMode::Apply);
    return {VerdictOf(restriction), Text(restriction.Of(text))};
}

Outcome Fits(TextView text) {
    return {Verdict::Fits, Text(text)};
}
Outcome Trimmed(TextView text) {
    return {Verdict::Trimmed, Text(text)};
}
Outcome Refused(TextView text = u"") {
    return {Verdict::Refused, Text(text)};
}

constexpr TextLimits Chars(std::int16_t count) {
    return {.maxCharsPerLine = count};
}
constexpr TextLimits Lines(std::int16_t count) {
    return {.maxLines = count};
}

// ---- Texts that fit

TEST(RestrictionEngineTest, TextWithinBothLimitsFits) {
    EXPECT_EQ(Plain(u"abc\r\nde", {3, 2}), Fits(u"abc\r\nde"));
    EXPECT_EQ(Apply(u"abc\r\nde", {3, 2}), Fits(u"abc\r\nde"));
}

TEST(RestrictionEngineTest, EmptyTextFits) {
    EXPECT_EQ(Plain(u"", {1, 1}), Fits(u""));
    EXPECT_EQ(Apply(u"", {1, 1}), Fits(u""));
}

TEST(RestrictionEngineTest, WithoutALineLimitThereMayBeAnyNumberOfLines) {
    EXPECT_EQ(Plain(u"a\r\nb\r\n\r\n\r\n", Chars(1)), Fits(u"a\r\nb\r\n\r\n\r\n"));
}

TEST(RestrictionEngineTest, WithoutACharacterLimitLinesMayHaveAnyLength) {
    const Text line(100000, u'x');
    EXPECT_EQ(Plain(line, Lines(1)), Fits(line));
}

TEST(RestrictionEngineTest, LoneLineFeedsAndCarriageReturnsAreCharactersNotLineBreaks) {
    EXPECT_EQ(Plain(u"a\nb\nc\r", Lines(1)), Fits(u"a\nb\nc\r"));
    EXPECT_EQ(Plain(u"a\nb\nc", Chars(4)), (Outcome{Verdict::Refused, u"a\nb\n"}));
    EXPECT_EQ(Plain(u"a\r\r\nb", Chars(2)), Fits(u"a\r\r\nb"));
}

TEST(RestrictionEngineTest, NoEmptyLineIsCountedBehindATrailingLineBreak) {
    EXPECT_EQ(Plain(u"a\r\nb\r\n", Lines(3)), Fits(u"a\r\nb\r\n"));
}

// ---- Lines that are too long

TEST(RestrictionEngineTest, SurplusOfALineIsRefusedInApplyMode) {
    EXPECT_EQ(Apply(u"abcd", Chars(3)), Refused());
}

TEST(RestrictionEngineTest, SurplusOfALineIsCutInPlainMode) {
    EXPECT_EQ(Plain(u"abcd", Chars(3)), Refused(u"abc"));
}

TEST(RestrictionEngineTest, BlankSurplusIsTrimmedInBothModes) {
    EXPECT_EQ(Apply(u"abc ", Chars(3)), Trimmed(u"abc"));
    EXPECT_EQ(Plain(u"abc     ", Chars(3)), Trimmed(u"abc"));
}

TEST(RestrictionEngineTest, BlanksAroundSomethingRealDoNotHideIt) {
    EXPECT_EQ(Apply(u"abc  d ", Chars(3)), Refused());
}

TEST(RestrictionEngineTest, OnlyTheBlankIsBlank) {
    for (const char16_t unit : {u'\t', u'\n', u'\r', u'\u00A0', u'\u3000', u'\0'}) {
        EXPECT_EQ(Apply(Text(u"abc") + unit, Chars(3)), Refused()) << static_cast<int>(unit);
    }
}

TEST(RestrictionEngineTest, TheRestOfTheTextStaysBehindACut) {
    EXPECT_EQ(Plain(u"abc \r\nde", Chars(3)), Trimmed(u"abc\r\nde"));
}

TEST(RestrictionEngineTest, LimitsCountUtf16Units) {
    EXPECT_EQ(Plain(u"\U0001F600\U0001F600", Chars(4)), Fits(u"\U0001F600\U0001F600"));
    EXPECT_EQ(Plain(u"\U0001F600\U0001F600", Chars(3)),
              Refused(Text(u"\U0001F600") + char16_t{0xD83D}));
}

TEST(RestrictionEngineTest, TheLargestLimitsHold) {
    const Text line(32767, u'x');
    EXPECT_EQ(Plain(line, {32767, 32767}), Fits(line));
    EXPECT_EQ(Apply(line + u"x", {32767, 32767}), Refused());
    Text lines;
    for (int i = 0; i < 32766; ++i) {
        lines += crLf;
    }
    EXPECT_EQ(Plain(lines, {32767, 32767}), Fits(lines));
    EXPECT_EQ(Plain(lines + u"\r\n", {32767, 32767}), Trimmed(lines));
}

// ---- Too many lines

TEST(RestrictionEngineTest, SurplusLinesAreTrimmedInBothModes) {
    EXPECT_EQ(Apply(u"ab\r\ncd\r\nef", Lines(2)), Trimmed(u"ab\r\ncd"));
    EXPECT_EQ(Plain(u"ab\r\ncd\r\nef\r\ngh", Lines(2)), Trimmed(u"ab\r\ncd"));
}

TEST(RestrictionEngineTest, ALineBreakAtTheEndOfTheLastPermittedLineIsCut) {
    EXPECT_EQ(Plain(u"abc\r\n", Lines(1)), Trimmed(u"abc"));
}

TEST(RestrictionEngineTest, EnterInTheLastPermittedLineDropsWhatFollowsTheCaret) {
    EXPECT_EQ(Apply(u"ab\r\nc\r\nd", Lines(2)), Trimmed(u"ab\r\nc"));
}

// ---- The position after a cut

TEST(RestrictionEngineTest, TheLineAfterACutIsMeasuredFromTooFarOn) {
    EXPECT_EQ(Plain(u"abcdefgh\r\nxyz1234567\r\nq", Chars(5)), Refused(u"abcde\r\nxyz12345\r\nq"));
}

TEST(RestrictionEngineTest, LineBreaksNearACutAreOverlooked) {
    // Six units are cut, so the search continues six units past the line break: at the last y.
    EXPECT_EQ(Plain(u"abcdefghi\r\nx\r\nyyyy", Chars(3)), Refused(u"abc\r\nx\r\nyyyy"));
}

TEST(RestrictionEngineTest, OverlookedLinesDoNotCount) {
    EXPECT_EQ(Plain(u"abcdefghi\r\nx\r\nyyyy\r\nz", {3, 3}), Refused(u"abc\r\nx\r\nyyyy\r\nz"));
    EXPECT_EQ(Plain(u"abcdefghi\r\nx\r\nyyyy\r\nz", {3, 2}),
              (Outcome{Verdict::RefusedAndTrimmed, u"abc\r\nx\r\nyyyy"}));
}

TEST(RestrictionEngineTest, ACutInTheLastPermittedLineMayLeaveTheCarriageReturn) {
    EXPECT_EQ(Plain(u"abcd\r\nX", {3, 1}), (Outcome{Verdict::RefusedAndTrimmed, u"abc\r"}));
}

TEST(RestrictionEngineTest, ACutInTheLastPermittedLineMayLeaveTheLineBreak) {
    EXPECT_EQ(Plain(u"abcde\r\nX", {3, 1}), Refused(u"abc\r\n"));
    EXPECT_EQ(Apply(u"abcde\r\nX", {3, 1}), Refused());
}

TEST(RestrictionEngineTest, ACutInTheLastPermittedLineMayLeaveEverything) {
    EXPECT_EQ(Plain(u"abcdefgh\r\nX", {3, 1}), Refused(u"abc\r\nX"));
}

TEST(RestrictionEngineTest, OneRealCharacterLeftOverIsRefused) {
    EXPECT_EQ(Apply(u"abc  \r\nX", {3, 1}), (Outcome{Verdict::RefusedAndTrimmed, u""}));
    EXPECT_EQ(Plain(u"abc  \r\nX", {3, 1}), (Outcome{Verdict::RefusedAndTrimmed, u"abc\r\n"}));
    EXPECT_EQ(Apply(u"abc  \r\n\t", {3, 1}), (Outcome{Verdict::RefusedAndTrimmed, u""}));
}

TEST(RestrictionEngineTest, OneBlankOrHalfALineBreakLeftOverIsTrimmed) {
    EXPECT_EQ(Apply(u"abc  \r\n ", {3, 1}), Trimmed(u"abc\r\n"));
    EXPECT_EQ(Apply(u"abc  \r\n\r", {3, 1}), Trimmed(u"abc\r\n"));
    EXPECT_EQ(Apply(u"abc \r\n", {3, 1}), Trimmed(u"abc\r"));
}

TEST(RestrictionEngineTest, TwoCharactersLeftOverAreTrimmed) {
    EXPECT_EQ(Apply(u"abc  \r\nXY", {3, 1}), Trimmed(u"abc\r\n"));
}

TEST(RestrictionEngineTest, OneUnitOfASurrogatePairIsOneCharacter) {
    EXPECT_EQ(Plain(u"abc  \r\n\U0001F600", {3, 1}), Trimmed(u"abc\r\n"));
    EXPECT_EQ(Plain(u"abc   \r\n\U0001F600", {3, 1}),
              (Outcome{Verdict::RefusedAndTrimmed, Text(u"abc\r\n") + char16_t{0xD83D}}));
}

TEST(RestrictionEngineTest, ARefusalComesTooLateForNoCutBeforeIt) {
    EXPECT_EQ(Apply(u"abc \r\nabcdef", {3, 0}), (Outcome{Verdict::RefusedAndTrimmed, u""}));
}

// ---- Cost

TEST(RestrictionEngineTest, ATextThatFitsIsNotCopied) {
    const Text text = Text(5000, u'x') + u"\r\n" + Text(5000, u'x');
    for (const RestrictionMode mode : {RestrictionMode::Plain, RestrictionMode::Apply}) {
        const std::size_t before = testing::AllocatedBytes();
        const Restriction restriction = Restrict(text, {5000, 2}, mode);
        EXPECT_EQ(testing::AllocatedBytes(), before);
        EXPECT_EQ(restriction.Of(text).data(), text.data());
    }
}

TEST(RestrictionEngineTest, ARefusalCopiesNothing) {
    const Text text = Text(5001, u' ') + u"\r\n" + Text(6000, u'x');
    const std::size_t before = testing::AllocatedBytes();
    const Restriction restriction = Restrict(text, {5000, 2}, RestrictionMode::Apply);
    EXPECT_LT(testing::AllocatedBytes(), before + 100);
    EXPECT_TRUE(restriction.trimmed);
    EXPECT_TRUE(restriction.refused);
    EXPECT_TRUE(restriction.cut.empty());
}

TEST(RestrictionEngineTest, ACutTextIsCopiedOnce) {
    const Text text = Text(5000, u'x') + u" \r\n" + Text(5000, u'x');
    const std::size_t before = testing::AllocatedBytes();
    const Restriction restriction = Restrict(text, {5000, 0}, RestrictionMode::Plain);
    EXPECT_EQ(restriction.cut.size(), text.size() - 1);
    EXPECT_LT(testing::AllocatedBytes(), before + (text.size() + 100) * sizeof(char16_t));
}

TEST(RestrictionEngineTest, AHundredThousandCutsInTenMegabytes) {
    // Each line except the first is measured from one unit too far on. So it loses one unit only if
    // it has a second surplus blank.
    Text text = Text(48, u'x') + u" \r\n";
    Text expected = Text(48, u'x') + u"\r\n";
    for (int line = 1; line < 100000; ++line) {  // ten megabytes in all
        text.append(48, u'x').append(u"  \r\n");
        expected.append(48, u'x').append(u" \r\n");
    }
    const Restriction restriction = Restrict(text, Chars(48), RestrictionMode::Plain);
    EXPECT_TRUE(restriction.cut == expected);
}

TEST(RestrictionEngineTest, APositionBeyond32BitsIsAnOverflow) {
    // Address space that must not be read.
    constexpr std::size_t size = std::size_t{1} << 31;
    void* const memory = mmap(nullptr, size * sizeof(char16_t), PROT_NONE,
                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    try {
        Restrict({static_cast<const char16_t*>(memory), size}, Lines(1), RestrictionMode::Plain);
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
    }
    munmap(memory, size * sizeof(char16_t));
}

}  // namespace

}  // namespace lumenkit
