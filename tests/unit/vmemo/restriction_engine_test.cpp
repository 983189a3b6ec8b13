#include "vmemo/restriction_engine.h"

#include <gmock/gmock.h>
#include <sys/mman.h>

#include "frame/runtime_error.h"
#include "frame/utf8.h"
#include "tests/support/allocation_counter.h"
#include "tests/support/rows.h"

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

Outcome RefusedAndTrimmed(TextView text = u"") {
    return {Verdict::RefusedAndTrimmed, Text(text)};
}

constexpr TextLimits Chars(std::int16_t count) {
    return {.maxCharsPerLine = count};
}
constexpr TextLimits Lines(std::int16_t count) {
    return {.maxLines = count};
}

// ---- Texts, limits and what is left

constexpr auto plain = RestrictionMode::Plain;
constexpr auto apply = RestrictionMode::Apply;

struct RestrictedText {
    const char* name;
    RestrictionMode mode;
    TextView text;
    TextLimits limits;
    Outcome outcome;

    friend void PrintTo(const RestrictedText& row, std::ostream* out) { *out << row.name; }
};

struct RestrictedTextTest : ::testing::TestWithParam<RestrictedText> {};

TEST_P(RestrictedTextTest, HasItsOutcome) {
    const auto& [name, mode, text, limits, outcome] = GetParam();
    EXPECT_EQ(mode == plain ? Plain(text, limits) : Apply(text, limits), outcome);
}

const RestrictedText fittingTexts[] = {
    {"TextWithinBothLimits", plain, u"abc\r\nde", {3, 2}, Fits(u"abc\r\nde")},
    {"TextWithinBothLimitsInApplyMode", apply, u"abc\r\nde", {3, 2}, Fits(u"abc\r\nde")},
    {"EmptyText", plain, u"", {1, 1}, Fits(u"")},
    {"EmptyTextInApplyMode", apply, u"", {1, 1}, Fits(u"")},
    {"WithoutALineLimitThereMayBeAnyNumberOfLines", plain, u"a\r\nb\r\n\r\n\r\n", Chars(1),
     Fits(u"a\r\nb\r\n\r\n\r\n")},
    {"LoneLineFeedsAndCarriageReturnsAreNotLineBreaks", plain, u"a\nb\nc\r", Lines(1),
     Fits(u"a\nb\nc\r")},
    {"LoneCarriageReturnIsACharacter", plain, u"a\r\r\nb", Chars(2), Fits(u"a\r\r\nb")},
    {"NoEmptyLineIsCountedBehindATrailingLineBreak", plain, u"a\r\nb\r\n", Lines(3),
     Fits(u"a\r\nb\r\n")},
    {"SurrogatePairsAreTwoUnits", plain, u"\U0001F600\U0001F600", Chars(4),
     Fits(u"\U0001F600\U0001F600")},
};

const RestrictedText longLines[] = {
    {"SurplusIsRefusedInApplyMode", apply, u"abcd", Chars(3), Refused()},
    {"SurplusIsCutInPlainMode", plain, u"abcd", Chars(3), Refused(u"abc")},
    {"BlankSurplusIsTrimmedInApplyMode", apply, u"abc ", Chars(3), Trimmed(u"abc")},
    {"BlankSurplusIsTrimmedInPlainMode", plain, u"abc     ", Chars(3), Trimmed(u"abc")},
    {"BlanksAroundSomethingRealDoNotHideIt", apply, u"abc  d ", Chars(3), Refused()},
    {"TheRestOfTheTextStaysBehindACut", plain, u"abc \r\nde", Chars(3), Trimmed(u"abc\r\nde")},
    {"LoneLineFeedsAreCharacters", plain, u"a\nb\nc", Chars(4), Refused(u"a\nb\n")},
    {"HalfASurrogatePairMayBeLeft", plain, u"\U0001F600\U0001F600", Chars(3),
     Refused(Text(u"\U0001F600") + char16_t{0xD83D})},
};

const RestrictedText manyLines[] = {
    {"SurplusLinesAreTrimmedInApplyMode", apply, u"ab\r\ncd\r\nef", Lines(2), Trimmed(u"ab\r\ncd")},
    {"SurplusLinesAreTrimmedInPlainMode", plain, u"ab\r\ncd\r\nef\r\ngh", Lines(2),
     Trimmed(u"ab\r\ncd")},
    {"ALineBreakAtTheEndOfTheLastPermittedLineIsCut", plain, u"abc\r\n", Lines(1), Trimmed(u"abc")},
    {"EnterInTheLastPermittedLineDropsWhatFollowsTheCaret", apply, u"ab\r\nc\r\nd", Lines(2),
     Trimmed(u"ab\r\nc")},
};

// The position after a cut
const RestrictedText cutLines[] = {
    {"TheLineAfterIsMeasuredFromTooFarOn", plain, u"abcdefgh\r\nxyz1234567\r\nq", Chars(5),
     Refused(u"abcde\r\nxyz12345\r\nq")},
    // Six units are cut, so the search continues six units past the line break: at the last y.
    {"LineBreaksNearACutAreOverlooked", plain, u"abcdefghi\r\nx\r\nyyyy", Chars(3),
     Refused(u"abc\r\nx\r\nyyyy")},
    {"OverlookedLinesDoNotCount",
     plain,
     u"abcdefghi\r\nx\r\nyyyy\r\nz",
     {3, 3},
     Refused(u"abc\r\nx\r\nyyyy\r\nz")},
    {"LinesThatAreNotOverlookedCount",
     plain,
     u"abcdefghi\r\nx\r\nyyyy\r\nz",
     {3, 2},
     RefusedAndTrimmed(u"abc\r\nx\r\nyyyy")},
    {"ACutInTheLastPermittedLineMayLeaveTheCarriageReturn",
     plain,
     u"abcd\r\nX",
     {3, 1},
     RefusedAndTrimmed(u"abc\r")},
    {"ACutInTheLastPermittedLineMayLeaveTheLineBreak",
     plain,
     u"abcde\r\nX",
     {3, 1},
     Refused(u"abc\r\n")},
    {"ACutThatLeavesTheLineBreakIsRefusedInApplyMode", apply, u"abcde\r\nX", {3, 1}, Refused()},
    {"ACutInTheLastPermittedLineMayLeaveEverything",
     plain,
     u"abcdefgh\r\nX",
     {3, 1},
     Refused(u"abc\r\nX")},
    {"OneRealCharacterLeftOverIsRefused", apply, u"abc  \r\nX", {3, 1}, RefusedAndTrimmed()},
    {"OneRealCharacterLeftOverIsRefusedInPlainMode",
     plain,
     u"abc  \r\nX",
     {3, 1},
     RefusedAndTrimmed(u"abc\r\n")},
    {"OneTabLeftOverIsRefused", apply, u"abc  \r\n\t", {3, 1}, RefusedAndTrimmed()},
    {"OneBlankLeftOverIsTrimmed", apply, u"abc  \r\n ", {3, 1}, Trimmed(u"abc\r\n")},
    {"OneCarriageReturnLeftOverIsTrimmed", apply, u"abc  \r\n\r", {3, 1}, Trimmed(u"abc\r\n")},
    {"HalfALineBreakLeftOverIsTrimmed", apply, u"abc \r\n", {3, 1}, Trimmed(u"abc\r")},
    {"TwoCharactersLeftOverAreTrimmed", apply, u"abc  \r\nXY", {3, 1}, Trimmed(u"abc\r\n")},
    {"ASurrogatePairLeftOverIsTwoCharacters",
     plain,
     u"abc  \r\n\U0001F600",
     {3, 1},
     Trimmed(u"abc\r\n")},
    {"OneUnitOfASurrogatePairIsOneCharacter",
     plain,
     u"abc   \r\n\U0001F600",
     {3, 1},
     RefusedAndTrimmed(Text(u"abc\r\n") + char16_t{0xD83D})},
    {"ARefusalComesTooLateForNoCutBeforeIt", apply, u"abc \r\nabcdef", {3, 0}, RefusedAndTrimmed()},
};

INSTANTIATE_TEST_SUITE_P(Fitting, RestrictedTextTest, ::testing::ValuesIn(fittingTexts),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(LongLines, RestrictedTextTest, ::testing::ValuesIn(longLines),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(ManyLines, RestrictedTextTest, ::testing::ValuesIn(manyLines),
                         testing::RowName());
INSTANTIATE_TEST_SUITE_P(CutLines, RestrictedTextTest, ::testing::ValuesIn(cutLines),
                         testing::RowName());

TEST(RestrictionEngineTest, WithoutACharacterLimitLinesMayHaveAnyLength) {
    const Text line(100000, u'x');
    EXPECT_EQ(Plain(line, Lines(1)), Fits(line));
}

TEST(RestrictionEngineTest, OnlyTheBlankIsBlank) {
    for (const char16_t unit : {u'\t', u'\n', u'\r', u'\u00A0', u'\u3000', u'\0'}) {
        EXPECT_EQ(Apply(Text(u"abc") + unit, Chars(3)), Refused()) << static_cast<int>(unit);
    }
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
