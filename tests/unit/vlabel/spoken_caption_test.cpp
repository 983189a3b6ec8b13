#include "vlabel/spoken_caption.h"

#include <gtest/gtest.h>

namespace lumenkit {

namespace {

TEST(SpokenCaption, HasNoMarkup) {
    EXPECT_EQ(SpokenCaption(u"|B:1|Hello|b:0| world", u""), u"Hello world");
    EXPECT_EQ(SpokenCaption(u"|Fore:255,0,0|a|CR|b|cr||size:20|c", u""), u"a\r\nb\r\nc");
    EXPECT_EQ(SpokenCaption(u"Say |Q|hi|q|", u""), u"Say \"hi\"");
    EXPECT_EQ(SpokenCaption(u"a |lone| b|b:1", u""), u"a  b");
    EXPECT_EQ(SpokenCaption(u"", u"* "), u"");
    EXPECT_EQ(SpokenCaption(u"end|CR|", u""), u"end\r\n");
}

TEST(SpokenCaption, MarksEachBulletOnce) {
    EXPECT_EQ(SpokenCaption(u"List|CR|* a|CR|x * b", u"* "), u"List\r\n\u2022 a\r\nx * b");
    EXPECT_EQ(SpokenCaption(u"|b:1|* a", u"* "), u"\u2022 a") << "commands may precede it";
    EXPECT_EQ(SpokenCaption(u"* |b:1|* a", u"* "), u"\u2022 a") << "both marks are in one place";
    EXPECT_EQ(SpokenCaption(u"* * a", u"* "), u"\u2022 * a");
    EXPECT_EQ(SpokenCaption(u"* a", u""), u"* a");
    EXPECT_EQ(SpokenCaption(u"X a|CR|x a", u"x"), u"X a\r\n\u2022  a") << "case matters";
}

TEST(SpokenCaption, EndsWhereTheDrawingEnds) {
    Text caption;
    for (int line = 0; line < 400; ++line) {
        caption += u"x|CR|";
    }
    const Text lines = SpokenCaption(caption, u"");
    EXPECT_EQ(lines.size(), 901U) << "301 lines and the breaks between them";
    EXPECT_EQ(SpokenCaption(u"kept|CR|" + Text(32768, u'y'), u""), u"kept");
}

}  // namespace

}  // namespace lumenkit
