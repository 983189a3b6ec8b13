// The magnifier under the caption box.
#include <gtest/gtest.h>

#include "tests/support/placed_caption_page.h"

namespace lumenkit::testing {

namespace {

class PageMagnifier : public ::testing::Test {
 protected:
    PageMagnifier() {
        page_.Select(page_.NewEdited());
        page_.Caption().SetText(u"Hello world");
        page_.User().MoveFocusTo(page_.Caption());
    }

    // Selects as the user does with the mouse, and returns the magnifier's text.
    std::string At(std::int32_t start, std::int32_t length = 0) {
        page_.User().Select(page_.Caption(), start, length);
        page_.User().Mouse(page_.Caption(), memory::MouseAction::Up, {});
        return page_.Magnifier();
    }

    host::Placement Where(TextView label) { return page_.Part<memory::Label>(label).Where(); }

    PlacedCaptionPage page_;
};

TEST_F(PageMagnifier, ShowsWhatIsAroundTheCaret) {
    EXPECT_EQ(At(6), "llo |w|orld");
    EXPECT_EQ(At(0), "|H|ello");
    EXPECT_EQ(At(2), "He|l|lo w");
    EXPECT_EQ(At(10), "worl|d|");
    EXPECT_EQ(At(11), "orld||");
}

TEST_F(PageMagnifier, ShowsTheSelection) {
    EXPECT_EQ(At(6, 5), "llo |[world]|");
    EXPECT_EQ(At(0, 5), "|[Hello]| wor");
    EXPECT_EQ(At(4, 1), "Hell|[o]| wor");
    EXPECT_EQ(At(0, 11), "|[Hello world]|");
}

TEST_F(PageMagnifier, ShowsNothingOfAnEmptyCaption) {
    page_.Caption().SetText(u"");
    EXPECT_EQ(At(0), "||");
}

// A unit of Courier at 12 points is 120 twips wide on this runtime.
TEST_F(PageMagnifier, LinesUpBehindTheMiddle) {
    At(6);
    EXPECT_EQ(Where(u"labChar").left, 720);
    EXPECT_EQ(Where(u"labRight").left, 720 + Where(u"labChar").width);
    At(0, 5);
    EXPECT_EQ(Where(u"labSelect"),
              (host::Placement{720, Where(u"labLeft").top, 600, Where(u"labLeft").height}));
    EXPECT_EQ(Where(u"labRight").left, 1320);
}

TEST_F(PageMagnifier, IsThereWhileTheCaptionIsEdited) {
    EXPECT_TRUE(page_.IsMagnifierVisible());
    page_.User().LeaveFocus();
    EXPECT_FALSE(page_.IsMagnifierVisible());
    page_.User().MoveFocusTo(page_.Caption());
    EXPECT_EQ(page_.Magnifier(), "|H|ello");
    EXPECT_TRUE(page_.Part<memory::Label>(u"labLeft").IsVisible());
    EXPECT_TRUE(page_.Part<memory::Label>(u"labRight").IsVisible());
    EXPECT_TRUE(page_.Part<memory::Label>(u"labChar").IsVisible());
    EXPECT_FALSE(page_.Part<memory::Label>(u"labSelect").IsVisible());
    At(0, 5);
    page_.User().MoveFocusTo(page_.Prefix());
    EXPECT_FALSE(page_.IsMagnifierVisible());
}

TEST_F(PageMagnifier, FollowsTheKeys) {
    At(5);
    page_.User().Type(page_.Caption(), u"!");
    EXPECT_EQ(page_.Magnifier(), "llo!| |worl");
    page_.User().Type(page_.Caption(), u"\b\b");
    EXPECT_EQ(page_.Magnifier(), "Hell| |worl");
}

}  // namespace

}  // namespace lumenkit::testing
