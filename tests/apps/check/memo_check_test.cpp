#include "apps/lumenkit/check/memo_check.h"

#include <gmock/gmock.h>

#include "tests/apps/check/described.h"

namespace lumenkit::check {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<std::string> RulesInText(TextView text, std::int16_t maxCharsPerLine,
                                     std::int16_t maxLines) {
    return Described(CheckMemoText(text, {maxCharsPerLine, maxLines}));
}

TEST(MemoCheck, FindsNothingWithinTheLimits) {
    EXPECT_THAT(RulesInText(u"", 1, 1), IsEmpty());
    EXPECT_THAT(RulesInText(u"abc\r\ndef\r\n", 3, 3), IsEmpty());
    EXPECT_THAT(RulesInText(u"abc\r\ndef", 3, 2), IsEmpty());
    EXPECT_THAT(RulesInText(u"abcdef\r\n\r\n\r\n", 0, 0), IsEmpty());
}

TEST(MemoCheck, FindsTheFirstLineThatIsTooLong) {
    EXPECT_THAT(RulesInText(u"abc\r\nabcd\r\nabcdef", 3, 0), ElementsAre("text-over-limits@8"));
    EXPECT_THAT(CheckMemoText(u"abc\r\nabcd\r\nabcdef", {3, 0}).front().message,
                HasSubstr("line 2 has 4 characters, but MaxCharsPerLine is 3"));
    // Only CR LF ends a line.
    EXPECT_THAT(RulesInText(u"a\nb\rc", 4, 0), ElementsAre("text-over-limits@4"));
}

TEST(MemoCheck, FindsTheFirstLineTooMany) {
    EXPECT_THAT(RulesInText(u"a\r\nb\r\nc", 0, 2), ElementsAre("text-over-limits@4"));
    // A line break after the last line already exceeds the limit.
    EXPECT_THAT(RulesInText(u"abc\r\n", 0, 1), ElementsAre("text-over-limits@3"));
}

TEST(MemoCheck, FindsBoth) {
    EXPECT_THAT(RulesInText(u"abcd\r\nx", 3, 1),
                ElementsAre("text-over-limits@3", "text-over-limits@4"));
}

TEST(MemoCheck, SaysThatLoadingDoesNotCutAndWhatEditsDo) {
    EXPECT_THAT(CheckMemoText(u"abcd", {3, 0}).front().message,
                HasSubstr("; loading does not cut the text, and the first edit after which it "
                          "still exceeds a limit empties the box"));
    EXPECT_THAT(CheckMemoText(u"abc ", {3, 0}).front().message,
                HasSubstr("; loading does not cut the text, but the first edit does"));
    EXPECT_THAT(CheckMemoText(u"a\r\nb", {0, 1}).front().message,
                HasSubstr("; loading does not cut the text, but the first edit does"));
}

}  // namespace
}  // namespace lumenkit::check
