#include "frame/text.h"

#include <string>

#include <gmock/gmock.h>

#include "frame/text_positions.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit {
namespace {

TEST(Len, CountsUtf16Units) {
    EXPECT_EQ(Len(u""), 0);
    EXPECT_EQ(Len(u"abc"), 3);
    EXPECT_EQ(Len(u"\U0001F600"), 2);
}

TEST(Len, OverflowsBeyond32Bits) {
    // Len reads only the length, so the view may extend past the unit.
    const char16_t unit = u'x';
    EXPECT_EQ(Len(TextView(&unit, 2147483647)), 2147483647);
    if constexpr (sizeof(std::size_t) > 4) {
        EXPECT_THAT([&] { Len(TextView(&unit, 2147483648)); }, Raises(6));
    }
}

TEST(InStr, FindsTheFirstAtOrAfterStart) {
    EXPECT_EQ(InStr(1, u"abcabc", u"bc"), 2);
    EXPECT_EQ(InStr(2, u"abcabc", u"bc"), 2);
    EXPECT_EQ(InStr(3, u"abcabc", u"bc"), 5);
    EXPECT_EQ(InStr(6, u"abcabc", u"bc"), 0);
    EXPECT_EQ(InStr(6, u"abcabc", u"c"), 6);
    EXPECT_EQ(InStr(2, u"aaa", u"aa"), 2);
    EXPECT_EQ(InStr(1, u"abc", u"x"), 0);
    EXPECT_EQ(InStr(1, u"abc", u"abcd"), 0);
}

TEST(InStr, FindsNothingBeyondTheEnd) {
    EXPECT_EQ(InStr(4, u"abc", u"c"), 0);
    EXPECT_EQ(InStr(2147483647, u"abc", u"c"), 0);
    EXPECT_EQ(InStr(1, u"", u"c"), 0);
}

TEST(InStr, FindsAnEmptyTextAtStartUnlessThatIsBeyondTheEnd) {
    EXPECT_EQ(InStr(1, u"abc", u""), 1);
    EXPECT_EQ(InStr(3, u"abc", u""), 3);
    EXPECT_EQ(InStr(4, u"abc", u""), 0);
    EXPECT_EQ(InStr(1, u"", u""), 0);
    EXPECT_EQ(InStr(2, u"abc", u"", Compare::IgnoreCase), 2);
}

TEST(InStr, RefusesAStartBelowOne) {
    EXPECT_THAT([] { InStr(0, u"abc", u"a"); }, Raises(5));
    EXPECT_THAT([] { InStr(-1, u"abc", u"a"); }, Raises(5));
    EXPECT_THAT([] { InStr(0, u"", u""); }, Raises(5));
}

TEST(InStr, TellsCaseApartUnlessToldNotTo) {
    EXPECT_EQ(InStr(1, u"A|cR|B", u"|CR|"), 0);
    EXPECT_EQ(InStr(1, u"A|cR|B", u"|CR|", Compare::IgnoreCase), 2);
    EXPECT_EQ(InStr(3, u"A|cR|B", u"|CR|", Compare::IgnoreCase), 0);
    EXPECT_EQ(InStr(1, u"A|CR|B|cr|", u"|cr|"), 7);
    EXPECT_EQ(InStr(1, u"große ÄRGER", u"ärger", Compare::IgnoreCase), 7);
    EXPECT_EQ(InStr(1, u"ПРИВЕТ мир", u"МИР", Compare::IgnoreCase), 8);
    EXPECT_EQ(InStr(1, u"ab", u"AC", Compare::IgnoreCase), 0);
}

TEST(InStrRev, FindsTheLastThatEndsAtStartOrEarlier) {
    EXPECT_EQ(InStrRev(u"a b c", u" ", 5), 4);
    EXPECT_EQ(InStrRev(u"a b c", u" ", 4), 4);
    EXPECT_EQ(InStrRev(u"a b c", u" ", 3), 2);
    EXPECT_EQ(InStrRev(u"a b c", u" ", 1), 0);
    EXPECT_EQ(InStrRev(u"abcabc", u"bc", 6), 5);
    EXPECT_EQ(InStrRev(u"abcabc", u"bc", 5), 2);
    EXPECT_EQ(InStrRev(u"abcabc", u"abcabc", 6), 1);
    EXPECT_EQ(InStrRev(u"abcabc", u"abcabc", 5), 0);
}

TEST(InStrRev, FindsNothingFromZeroOrFromBeyondTheEnd) {
    EXPECT_EQ(InStrRev(u"a b c", u" ", 0), 0);
    EXPECT_EQ(InStrRev(u"a b c", u" ", 6), 0);
    EXPECT_EQ(InStrRev(u"", u" ", 1), 0);
    EXPECT_EQ(InStrRev(u"", u" ", 0), 0);
}

TEST(InStrRev, FindsAnEmptyTextAtStart) {
    EXPECT_EQ(InStrRev(u"abc", u"", 3), 3);
    EXPECT_EQ(InStrRev(u"abc", u"", 1), 1);
    EXPECT_EQ(InStrRev(u"abc", u"", 0), 0);
    EXPECT_EQ(InStrRev(u"abc", u"", 4), 0);
}

TEST(InStrRev, RefusesANegativeStart) {
    EXPECT_THAT([] { InStrRev(u"abc", u"a", -1); }, Raises(5));
}

TEST(Left, GivesWhatThereIs) {
    EXPECT_EQ(Left(u"abc", 0), u"");
    EXPECT_EQ(Left(u"abc", 2), u"ab");
    EXPECT_EQ(Left(u"abc", 3), u"abc");
    EXPECT_EQ(Left(u"abc", 2147483647), u"abc");
    EXPECT_EQ(Left(u"", 1), u"");
    EXPECT_THAT([] { Left(u"abc", -1); }, Raises(5));
}

TEST(Right, GivesWhatThereIs) {
    EXPECT_EQ(Right(u"abc", 0), u"");
    EXPECT_EQ(Right(u"abc", 2), u"bc");
    EXPECT_EQ(Right(u"abc", 3), u"abc");
    EXPECT_EQ(Right(u"abc", 2147483647), u"abc");
    EXPECT_EQ(Right(u"", 1), u"");
    EXPECT_THAT([] { Right(u"abc", -1); }, Raises(5));
}

TEST(Mid, GivesTheRestFromStart) {
    EXPECT_EQ(Mid(u"abc", 1), u"abc");
    EXPECT_EQ(Mid(u"abc", 3), u"c");
    EXPECT_EQ(Mid(u"abc", 4), u"");
    EXPECT_EQ(Mid(u"abc", 2147483647), u"");
    EXPECT_EQ(Mid(u"", 1), u"");
}

TEST(Mid, GivesAtMostCountUnits) {
    EXPECT_EQ(Mid(u"abcd", 2, 2), u"bc");
    EXPECT_EQ(Mid(u"abcd", 2, 0), u"");
    EXPECT_EQ(Mid(u"abcd", 4, 5), u"d");
    EXPECT_EQ(Mid(u"abcd", 1, 2147483647), u"abcd");
    EXPECT_EQ(Mid(u"abcd", 5, 1), u"");
}

TEST(Mid, RefusesAStartBelowOneAndANegativeCount) {
    EXPECT_THAT([] { Mid(u"abc", 0); }, Raises(5));
    EXPECT_THAT([] { Mid(u"abc", -1); }, Raises(5));
    EXPECT_THAT([] { Mid(u"abc", 0, 1); }, Raises(5));
    EXPECT_THAT([] { Mid(u"abc", 1, -1); }, Raises(5));
    EXPECT_THAT([] { Mid(u"abc", 9, -1); }, Raises(5));
}

TEST(Trim, TakesBlanksAway) {
    EXPECT_EQ(LTrim(u"  a b  "), u"a b  ");
    EXPECT_EQ(RTrim(u"  a b  "), u"  a b");
    EXPECT_EQ(Trim(u"  a b  "), u"a b");
    EXPECT_EQ(Trim(u"ab"), u"ab");
}

TEST(Trim, LeavesNothingOfBlanksAlone) {
    EXPECT_EQ(LTrim(u"   "), u"");
    EXPECT_EQ(RTrim(u"   "), u"");
    EXPECT_EQ(Trim(u"   "), u"");
    EXPECT_EQ(Trim(u""), u"");
}

TEST(Trim, KeepsEveryOtherWhiteSpace) {
    for (const TextView text : {u"\t", u"\r\n", u"\u00A0", u"\u3000", u"\t a \t"}) {
        EXPECT_EQ(LTrim(text), text);
        EXPECT_EQ(RTrim(text), text);
        EXPECT_EQ(Trim(text), text);
    }
}

TEST(LCase, LowersLettersFarBeyondAscii) {
    EXPECT_EQ(LCase(u""), u"");
    EXPECT_EQ(LCase(u"ABC xyz 123 |[]"), u"abc xyz 123 |[]");
    EXPECT_EQ(LCase(u"ÀÉÎÕÜßŸ"), u"àéîõüßÿ");
    EXPECT_EQ(LCase(u"ĀŁŽ"), u"āłž");
    EXPECT_EQ(LCase(u"ΑΣΩ"), u"ασω");
    EXPECT_EQ(LCase(u"ЖЯЁ"), u"жяё");
    EXPECT_EQ(LCase(u"ԱԲ"), u"աբ");
    EXPECT_EQ(LCase(u"Ａ"), u"ａ");
    EXPECT_EQ(LCase(u"×÷"), u"×÷");
}

TEST(LCase, NeverChangesTheLength) {
    // LCase uses simple mappings. The full mapping of U+0130 has two units.
    EXPECT_EQ(LCase(u"\u0130"), u"i");
    EXPECT_EQ(LCase(u"ẞ"), u"ß");
    // Letters outside the first plane are two surrogates, which have no lower case mapping.
    EXPECT_EQ(LCase(u"\U00010400"), u"\U00010400");
}

TEST(LowerUnit, IsIdempotent) {
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
        const char16_t lower = LowerUnit(static_cast<char16_t>(unit));
        ASSERT_EQ(LowerUnit(lower), lower) << std::hex << unit;
    }
}

TEST(LowerUnit, LeavesSurrogatesAlone) {
    for (int unit = 0xD800; unit <= 0xDFFF; ++unit) {
        ASSERT_EQ(LowerUnit(static_cast<char16_t>(unit)), unit);
    }
}

TEST(SameText, ComparesUnitByUnit) {
    EXPECT_TRUE(SameText(u"", u""));
    EXPECT_TRUE(SameText(u"abc", u"abc"));
    EXPECT_FALSE(SameText(u"abc", u"Abc"));
    EXPECT_FALSE(SameText(u"abc", u"ab"));
    EXPECT_FALSE(SameText(u"abc", u"abd"));
}

TEST(SameText, IgnoresCaseWhenTold) {
    EXPECT_TRUE(SameText(u"", u"", Compare::IgnoreCase));
    EXPECT_TRUE(SameText(u"Caption", u"cAPTION", Compare::IgnoreCase));
    EXPECT_TRUE(SameText(u"ÄΩЖ", u"äωж", Compare::IgnoreCase));
    EXPECT_FALSE(SameText(u"Caption", u"Captio", Compare::IgnoreCase));
    EXPECT_FALSE(SameText(u"Captio", u"Caption", Compare::IgnoreCase));
    EXPECT_FALSE(SameText(u"Strasse", u"Straße", Compare::IgnoreCase));
    // '@' and '`', '[' and '{' differ by the same bit as 'A' and 'a', but are no letters.
    EXPECT_FALSE(SameText(u"@[", u"`{", Compare::IgnoreCase));
}

}  // namespace
}  // namespace lumenkit
