// The preview's size and scroll bars.
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/support/placed_caption_page.h"
#include "tests/unit/frame/raises.h"

namespace lumenkit::testing {

namespace {

constexpr int hidden = -1;

// The viewport measures 6900 x 2460 twips inside. A visible vertical bar leaves a width of 6645, a
// visible horizontal bar a height of 2205.
struct Geometry {
    float width;
    float height;
    int horizontalMax;  // or hidden
    int verticalMax;
    float previewHeight;
};

void PrintTo(const Geometry& geometry, std::ostream* out) {
    *out << geometry.width << " x " << geometry.height;
}

class PreviewGeometry : public ::testing::TestWithParam<Geometry> {
 protected:
    static void ExpectBar(memory::ScrollBar& bar, int max, int page) {
        EXPECT_EQ(bar.IsVisible(), max != hidden);
        EXPECT_EQ(bar.IsEnabled(), max != hidden);
        EXPECT_EQ(bar.ScrollValue(), 0);
        EXPECT_EQ(bar.LargeChange(), page);
        if (max != hidden) {
            EXPECT_EQ(bar.Max(), max);
        }
    }

    void ExpectPreview(const Geometry& geometry) {
        page_.Select(page_.NewEdited(geometry.width, geometry.height));
        EXPECT_EQ(page_.PreviewPart().Where(),
                  (host::Placement{0, 0, geometry.width, geometry.previewHeight}));
        EXPECT_EQ(page_.PreviewPart().Inner().Drawing().CurrentWidth(), geometry.width);
        EXPECT_EQ(page_.PreviewPart().Inner().Drawing().CurrentHeight(), geometry.previewHeight);
        ExpectBar(page_.Horizontal(), geometry.horizontalMax, 6645);
        ExpectBar(page_.Vertical(), geometry.verticalMax, 2205);
    }

    PlacedCaptionPage page_;
};

TEST_P(PreviewGeometry, FollowsTheControlsSize) {
    ExpectPreview(GetParam());
}

// The same, starting with both bars visible and scrolled.
TEST_P(PreviewGeometry, FollowsTheControlsSizeFromAScrolledPreview) {
    page_.Select(page_.NewEdited(20000, 20000));
    page_.User().Scroll(page_.Horizontal(), 700);
    page_.User().Scroll(page_.Vertical(), 900);
    ExpectPreview(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Thresholds, PreviewGeometry,
    ::testing::Values(
        // Smaller than the viewport: no bars. The preview is stretched to the visible height.
        Geometry{3000, 1500, hidden, hidden, 2205}, Geometry{0, 0, hidden, hidden, 2205},
        Geometry{6645, 2204.5F, hidden, hidden, 2205}, Geometry{6645, 2205, hidden, hidden, 2205},
        Geometry{6645, 2205.5F, hidden, hidden, 2205.5F},
        // Larger than the area that bars would leave, but not larger than the viewport: no bars.
        Geometry{6900, 2205, hidden, hidden, 2205}, Geometry{6645, 2460, hidden, hidden, 2460},
        Geometry{6900, 2460, hidden, hidden, 2460},
        // Wider than the viewport: the horizontal bar, and the vertical bar if the height left is
        // too small.
        Geometry{6900.5F, 1000, 256, hidden, 2205}, Geometry{6901, 2204, 256, hidden, 2205},
        Geometry{6901, 2205, 256, hidden, 2205}, Geometry{6901, 2206, 256, 1, 2206},
        Geometry{6901, 2460, 256, 255, 2460}, Geometry{6901, 2461, 256, 256, 2461},
        // Higher than the viewport: the vertical bar, and the horizontal bar if the width left is
        // too small.
        Geometry{6644, 2461, hidden, 256, 2461}, Geometry{6645, 2461, hidden, 256, 2461},
        Geometry{6646, 2461, 1, 256, 2461}, Geometry{6900, 2461, 255, 256, 2461},
        Geometry{10000, 5000, 3355, 2795, 5000},
        // Halves are rounded to the even number.
        Geometry{6645.5F, 2461, 0, 256, 2461}, Geometry{6646.5F, 2461, 2, 256, 2461},
        Geometry{6647.5F, 2461.5F, 2, 256, 2461.5F}, Geometry{6901, 2206.5F, 256, 2, 2206.5F},
        Geometry{6901, 2205.5F, 256, 0, 2205.5F},
        // The largest 16-bit values: 6645 + 32767 and 2205 + 32767.
        Geometry{39412, 34972, 32767, 32767, 34972},
        Geometry{39411.5F, 34971.5F, 32766, 32766, 34971.5F}));

TEST(PreviewScrolling, MovesThePreview) {
    PlacedCaptionPage page;
    page.Select(page.NewEdited(10000, 5000));
    page.User().Scroll(page.Horizontal(), 1200);
    EXPECT_EQ(page.PreviewPart().Where(), (host::Placement{-1200, 0, 10000, 5000}));
    page.User().Scroll(page.Vertical(), 2795);
    EXPECT_EQ(page.PreviewPart().Where(), (host::Placement{-1200, -2795, 10000, 5000}));
    page.User().Scroll(page.Horizontal(), 0);
    EXPECT_EQ(page.PreviewPart().Where(), (host::Placement{0, -2795, 10000, 5000}));
}

TEST(PreviewScrolling, LeavesThePreviewAloneWhileTheBarIsHidden) {
    PlacedCaptionPage page;
    page.Select(page.NewEdited());
    page.Horizontal().SetScrollValue(10);
    page.Vertical().SetScrollValue(10);
    EXPECT_EQ(page.PreviewPart().Where(), (host::Placement{0, 0, 3000, 2205}));
}

TEST(PreviewScrolling, RaisesAnOverflowBeyond16Bits) {
    PlacedCaptionPage page;
    EXPECT_THAT([&] { page.Select(page.NewEdited(39412.5F, 1000)); }, Raises(6));
    EXPECT_THAT([&] { page.Select(page.NewEdited(39413, 1000)); }, Raises(6));
    EXPECT_THAT([&] { page.Select(page.NewEdited(1000, 34973)); }, Raises(6));
    EXPECT_THAT([&] { page.Select(page.NewEdited(10000, 34973)); }, Raises(6));
    // The page stays usable.
    page.Select(page.NewEdited(10000, 5000));
    EXPECT_EQ(page.Horizontal().Max(), 3355);
    EXPECT_EQ(page.Vertical().Max(), 2795);
    EXPECT_TRUE(page.Horizontal().IsVisible());
    EXPECT_TRUE(page.Vertical().IsVisible());
}

}  // namespace

}  // namespace lumenkit::testing
