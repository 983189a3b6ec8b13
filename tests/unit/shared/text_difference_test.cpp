#include "runtime/shared/text_difference.h"

#include <gtest/gtest.h>

namespace lumenkit::shared {
namespace {

void ExpectDifference(const TextDifference& found, const TextDifference& expected) {
    EXPECT_EQ(found.start, expected.start);
    EXPECT_EQ(found.oldEnd, expected.oldEnd);
    EXPECT_EQ(found.newEnd, expected.newEnd);
}

TEST(TextDifference, IsTheShortestPart) {
    ExpectDifference(DifferenceOf(u"abcdef", u"abXYef"), {2, 4, 4});
    ExpectDifference(DifferenceOf(u"abc", u"abXc"), {2, 2, 3});
    ExpectDifference(DifferenceOf(u"abc", u"ac"), {1, 2, 1});
    ExpectDifference(DifferenceOf(u"", u"abc"), {0, 0, 3});
    EXPECT_TRUE(DifferenceOf(u"same", u"same").IsEmpty());
    EXPECT_FALSE(DifferenceOf(u"a", u"").IsEmpty());
}

TEST(TextDifference, SplitsNoLineBreak) {
    ExpectDifference(DifferenceOf(u"a\r\nb", u"a\rb"), {1, 3, 2});
    ExpectDifference(DifferenceOf(u"a\r\nb", u"a\nb"), {1, 3, 2});
    ExpectDifference(DifferenceOf(u"a\r\n", u"a\r\n\r\n"), {3, 3, 5});
}

TEST(TextDifference, IsFoundInLongTexts) {
    Text old(5000, u'x');
    Text text = old;
    text.insert(4500, u"Y");
    ExpectDifference(DifferenceOf(old, text), {4500, 4500, 4501});
    ExpectDifference(EditedPart(old, text, 4501), {4500, 4500, 4501});
    text = old;
    text[10] = u'Y';
    ExpectDifference(DifferenceOf(old, text), {10, 11, 11});
}

TEST(TextDifference, TheCaretTellsWhichOfEqualUnitsAreNew) {
    ExpectDifference(EditedPart(u"aaa", u"aaaa", 1), {0, 0, 1});
    ExpectDifference(EditedPart(u"aaa", u"aaaa", 4), {3, 3, 4});
    ExpectDifference(EditedPart(u"aaa", u"aa", 0), {0, 1, 0});
    ExpectDifference(EditedPart(u"aaa", u"aa", 2), {2, 3, 2});
    ExpectDifference(EditedPart(u"\r\n\r\n", u"\r\n\r\n\r\n", 2), {0, 0, 2});
}

TEST(TextDifference, ACaretElsewhereTellsNothing) {
    ExpectDifference(EditedPart(u"abcd", u"aXcd", 1), {1, 2, 2});
    ExpectDifference(EditedPart(u"ab", u"abX", 100), {2, 2, 3});
}

}  // namespace
}  // namespace lumenkit::shared
