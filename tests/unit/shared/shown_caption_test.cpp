#include "runtime/shared/shown_caption.h"

#include <gtest/gtest.h>

namespace lumenkit::shared {
namespace {

TEST(ShownCaption, MarksTheFirstLetterThatIsTheAccessKey) {
    EXPECT_EQ(WithAccessKey(u"Bullet Indent:", u'I'), u"Bullet &Indent:");
    EXPECT_EQ(WithAccessKey(u"Caption:", u'T'), u"Cap&tion:") << "in either case";
    EXPECT_EQ(WithAccessKey(u"tat", u't'), u"&tat") << "only the first";
    EXPECT_EQ(WithAccessKey(u"none", u'z'), u"none");
}

TEST(ShownCaption, AnAmpersandBesidesAnAccessKeyIsACharacter) {
    EXPECT_EQ(WithAccessKey(u"this & that", u'a'), u"this && th&at");
    EXPECT_EQ(WithAccessKey(u"a & b", u'z'), u"a && b");
}

TEST(ShownCaption, WithoutAnAccessKeyTheCaptionIsMarkedItself) {
    EXPECT_EQ(WithAccessKey(u"&Name && more", 0), u"&Name && more");
}

TEST(ShownCaption, LineEndsAndTabsBecomeSignsOfOneUnit) {
    EXPECT_EQ(WithVisibleSigns(u"a\r\nb\tc & d"), u"a\u00B6\u00ACb\u00BBc & d");
}

}  // namespace
}  // namespace lumenkit::shared
