// Surfaces on screens with other resolutions than this one.
#include <functional>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/win32/gdi_font.h"
#include "runtime/win32/surface.h"
#include "tests/support/test_seed.h"

namespace lumenkit::win32 {
namespace {

// A control without a window.
class Owner final : public SurfaceOwner {
 public:
    HWND SurfaceWindow() const override { return nullptr; }
    SIZE WholeSize() const override { return size; }
    bool IsShown() const override { return false; }
    bool PaintControl() override {
        if (paint) {
            paint();
        }
        return true;
    }
    void RequestSize(SIZE requested) override { size = requested; }
    void BorderChanged() override {}
    void PictureChanged() override {}

    SIZE size = {300, 200};
    std::function<void()> paint;
};

class ResolutionTest : public ::testing::TestWithParam<int> {
 protected:
    Owner owner_;
    Resolution resolution_{.x = GetParam(), .y = GetParam()};
    std::shared_ptr<GdiFont> font_ = std::make_shared<GdiFont>(u"Arial", 10.0F, resolution_);
    Surface surface_{owner_, font_, resolution_};
};
INSTANTIATE_TEST_SUITE_P(PixelsPerInch, ResolutionTest,
                         ::testing::Values(72, 96, 120, 144, 168, 192, 216, 480));

TEST_P(ResolutionTest, WidthsAreDifferencesOfEnds) {
    std::mt19937 random(lumenkit::testing::TestSeed());
    std::uniform_int_distribution<int> letter('a' - 5, 'z');
    for (int round = 0; round < 100; ++round) {
        Text text;
        for (int i = 0; i < 60; ++i) {
            const int unit = letter(random);
            text += unit < 'a' ? blank : static_cast<char16_t>(unit);
        }
        std::vector<double> ends(text.size());
        surface_.TextWidths(text, ends);
        for (std::size_t begin = 0; begin < text.size(); ++begin) {
            if (begin > 0 && text[begin - 1] != blank) {
                continue;
            }
            for (std::size_t end = begin + 1; end <= text.size(); ++end) {
                if (end == text.size() || text[end] == blank || text[end - 1] == blank) {
                    const double before = begin == 0 ? 0.0 : ends[begin - 1];
                    ASSERT_EQ(static_cast<float>(ends[end - 1] - before),
                              surface_.TextWidth(TextView(text).substr(begin, end - begin)));
                }
            }
        }
    }
}

TEST_P(ResolutionTest, LengthsAreInTwips) {
    const float twipsPerPixel = 1440.0F / static_cast<float>(GetParam());
    EXPECT_FLOAT_EQ(surface_.Width(), 300 * twipsPerPixel);
    EXPECT_FLOAT_EQ(surface_.ScaleHeight(), 200 * twipsPerPixel);
    // Ten points are 200 twips, and a line is somewhat higher than its letters.
    EXPECT_NEAR(surface_.TextHeight(u"Ag"), 230, 30);
    EXPECT_NEAR(surface_.TextWidth(u"mmmmmmmmmm"), 1660, 160);
    surface_.Size(1440, 720);
    EXPECT_EQ(owner_.size.cx, GetParam());
    EXPECT_EQ(owner_.size.cy, GetParam() / 2);
    EXPECT_FLOAT_EQ(surface_.Width(), 1440);
}

// Collects the filled boxes.
class Boxes final : public Canvas {
 public:
    void Clear(Color /*paper*/) override {}
    void Print(const TextRun& /*run*/) override {}
    void Fill(const RECT& box, Color /*color*/) override { filled.push_back(box); }
    void FillFigure(Figure /*figure*/, const RECT& /*box*/, Color /*color*/) override {}
    void BeginClip(const RECT& /*box*/) override {}
    void EndClip() override {}

    std::vector<RECT> filled;
};

TEST_P(ResolutionTest, BoxesWithOneOriginFitTogether) {
    constexpr host::PixelBox wide = {0, -2, 7, 1};
    constexpr host::PixelBox tall = {2, -4, 5, 3};
    for (float origin = 0; origin < 60; ++origin) {
        owner_.paint = [&] {
            surface_.FillPixels(origin, origin + 100, wide, Color{});
            surface_.FillPixels(origin, origin + 100, tall, Color{});
        };
        surface_.PictureOutdated();
        surface_.PaintIfOutdated();
        Boxes boxes;
        surface_.DrawOn(boxes);
        ASSERT_EQ(boxes.filled.size(), 2U);
        const RECT& first = boxes.filled[0];
        const RECT& second = boxes.filled[1];
        EXPECT_EQ(first.right - first.left, 8);
        EXPECT_EQ(first.bottom - first.top, 4);
        EXPECT_EQ(second.left - first.left, 2);
        EXPECT_EQ(first.right - second.right, 2);
        EXPECT_EQ(first.top - second.top, 2);
        EXPECT_EQ(second.bottom - first.bottom, 2);
    }
}

}  // namespace
}  // namespace lumenkit::win32
