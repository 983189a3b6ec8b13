#include "runtime/memory/surface.h"

#include <array>
#include <cmath>
#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/support/allocation_counter.h"
#include "tests/unit/memory/expect_error.h"

namespace lumenkit::memory {
namespace {

class PaintCounter final : public Control {
 public:
    Object& Automation() override { throw std::logic_error("not used"); }
    void UserControl_Paint() override { ++paints; }
    void UserControl_Resize() override { ++resizes; }

    int paints = 0;
    int resizes = 0;
};

class MemorySurface : public ::testing::Test {
 protected:
    MemorySurface() { surface_.SetControl(&control_); }

    std::shared_ptr<FaultPlan> faults_ = std::make_shared<FaultPlan>();
    PaintCounter control_;
    Surface surface_{faults_, 3000, 1500};
};

TEST_F(MemorySurface, StartsInTheDocumentedState) {
    EXPECT_FALSE(surface_.AutoRedraw());
    EXPECT_TRUE(surface_.FontTransparent());
    EXPECT_TRUE(surface_.Enabled());
    EXPECT_EQ(surface_.ForeColor(), Color::ButtonText);
    EXPECT_EQ(surface_.BackColor(), Color::ButtonFace);
    EXPECT_EQ(surface_.BorderStyle(), 0);
    EXPECT_EQ(surface_.Pointer(), 0);
    EXPECT_EQ(surface_.CurrentFont()->Name(), u"MS Sans Serif");
    EXPECT_EQ(surface_.CurrentFont()->Size(), 8.25F);
    EXPECT_EQ(surface_.ScaleWidth(), 3000);
    EXPECT_EQ(surface_.ScaleHeight(), 1500);
    EXPECT_TRUE(std::isinf(surface_.VisibleBottom()));
    EXPECT_EQ(surface_.Drawn().Size(), 0U);
}

TEST_F(MemorySurface, RecordsWhatIsDrawnWithWhat) {
    surface_.Cls();
    surface_.SetForeColor(Rgb(1, 2, 3));
    surface_.SetCurrentX(30);
    surface_.SetCurrentY(60);
    surface_.Print(u"ab");
    surface_.CurrentFont()->SetBold(true);
    surface_.CurrentFont()->SetItalic(true);
    surface_.CurrentFont()->SetUnderline(true);
    surface_.CurrentFont()->SetStrikethrough(true);
    surface_.CurrentFont()->SetSize(10);
    surface_.CurrentFont()->SetName(u"Arial");
    surface_.Print(u"c");
    surface_.FillBox(1, 2, 3, 4, Color{});
    surface_.FillBox(5, 6, 7, 8, Rgb(9, 9, 9));

    const std::vector<DisplayItem> expected = {
        ClsItem{},
        PrintItem{.text = u"ab",
                  .x = 30,
                  .y = 60,
                  .size = 8.25F,
                  .color = Rgb(1, 2, 3),
                  .fontName = u"MS Sans Serif"},
        PrintItem{.text = u"c",
                  .x = 195,  // 30 + 2 * 10 * 8.25
                  .y = 60,
                  .bold = true,
                  .italic = true,
                  .underline = true,
                  .strikethrough = true,
                  .size = 10,
                  .color = Rgb(1, 2, 3),
                  .fontName = u"Arial"},
        BoxItem{.x1 = 1, .y1 = 2, .x2 = 3, .y2 = 4, .color = Rgb(1, 2, 3)},
        BoxItem{.x1 = 5, .y1 = 6, .x2 = 7, .y2 = 8, .color = Rgb(9, 9, 9)},
    };
    EXPECT_EQ(surface_.Drawn().Items(), expected);
    EXPECT_THROW(surface_.Drawn().At(5), std::out_of_range);
}

TEST_F(MemorySurface, PutsThePenWhereDrawingLeavesIt) {
    surface_.Print(u"abc");
    EXPECT_EQ(surface_.CurrentX(), 247.5F);  // 3 * 10 * 8.25
    surface_.FillBox(1, 2, 3, 4, Color{});
    EXPECT_EQ(surface_.CurrentX(), 3);
    EXPECT_EQ(surface_.CurrentY(), 4);
    surface_.Cls();
    EXPECT_EQ(surface_.CurrentX(), 0);
    EXPECT_EQ(surface_.CurrentY(), 0);
    EXPECT_EQ(surface_.Drawn().Items(), std::vector<DisplayItem>{ClsItem{}});
}

TEST_F(MemorySurface, MeasuresInTheCurrentFont) {
    EXPECT_EQ(surface_.TextWidth(u""), 0);
    EXPECT_EQ(surface_.TextWidth(u"abcd"), 330);
    EXPECT_EQ(surface_.TextHeight(u""), 198);
    std::array<double, 3> ends{};
    surface_.CurrentFont()->SetBold(true);
    surface_.TextWidths(u"a b", ends);
    EXPECT_EQ(ends, (std::array<double, 3>{90.75, 181.5, 272.25}));
}

TEST_F(MemorySurface, ANewBackColorClearsWhatIsDrawn) {
    surface_.Print(u"x");
    surface_.SetBackColor(Color::WindowBackground);
    EXPECT_EQ(surface_.Drawn().Size(), 0U);
}

TEST_F(MemorySurface, RefreshPaintsWhereNothingIsKeptAndTheControlShows) {
    surface_.Refresh();
    EXPECT_EQ(control_.paints, 0);
    surface_.SetShown(true);
    surface_.Print(u"old");
    surface_.Refresh();
    EXPECT_EQ(control_.paints, 1);
    EXPECT_EQ(surface_.Drawn().Size(), 0U) << "a repaint starts from an erased surface";
    surface_.SetAutoRedraw(true);
    surface_.Print(u"kept");
    surface_.Refresh();
    EXPECT_EQ(control_.paints, 1);
    EXPECT_EQ(surface_.Drawn().Size(), 1U);
}

TEST_F(MemorySurface, ANewSizeResizesTheControl) {
    surface_.Size(3000, 1500);
    EXPECT_EQ(control_.resizes, 0);
    surface_.Size(3000, 1501);
    EXPECT_EQ(control_.resizes, 1);
    EXPECT_EQ(surface_.Height(), 1501);
    EXPECT_TRUE(testing::Raises(ErrorNumber::InvalidPropertyValue, [&] { surface_.Size(-1, 5); }));
    EXPECT_EQ(control_.resizes, 1);
}

TEST_F(MemorySurface, AFailingCallDoesNothing) {
    faults_->FailCall(u"Surface.Print", 1, ErrorNumber::OutOfMemory);
    EXPECT_TRUE(testing::Raises(ErrorNumber::OutOfMemory, [&] { surface_.Print(u"x"); }));
    EXPECT_EQ(surface_.Drawn().Size(), 0U);
    EXPECT_EQ(surface_.CurrentX(), 0);
}

void DrawPage(host::Surface& surface, std::span<double> ends) {
    const TextView line = u"a line of text that is longer than any small buffer";
    surface.Cls();
    for (int row = 0; row < 100; ++row) {
        const host::FontRef font = surface.CurrentFont();
        font->SetBold(row % 2 == 0);
        font->SetSize(static_cast<float>(8 + row % 5));
        surface.SetForeColor(Rgb(static_cast<std::uint8_t>(row), 0, 0));
        surface.TextWidths(line, ends.first(line.size()));
        surface.SetCurrentX(surface.TextWidth(line));
        surface.SetCurrentY(surface.CurrentY() + surface.TextHeight(line));
        surface.FillBox(0, surface.CurrentY(), 15, surface.CurrentY() + 15, Color{});
        surface.Print(line);
    }
}

TEST_F(MemorySurface, DrawingTheSameAgainAllocatesNothing) {
    std::array<double, 64> ends{};
    DrawPage(surface_, ends);
    const std::size_t drawn = surface_.Drawn().Size();
    const std::int64_t before = testing::AllocationCount();
    for (int round = 0; round < 10; ++round) {
        DrawPage(surface_, ends);
    }
    EXPECT_EQ(testing::AllocationCount(), before);
    EXPECT_EQ(surface_.Drawn().Size(), drawn);
}

TEST(AllocationCounter, SeesAllocations) {
    const std::int64_t before = testing::AllocationCount();
    const Text text(100, u'x');
    EXPECT_EQ(testing::AllocationCount(), before + 1) << text.size();
}

}  // namespace
}  // namespace lumenkit::memory
