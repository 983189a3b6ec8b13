#include <vector>

#include "tests/contract/contract_test.h"

namespace lumenkit::contract {
namespace {

class SurfaceContract : public ContractTest {};
INSTANTIATE_TEST_SUITE_P(Runtime, SurfaceContract, ::testing::Values(RuntimeUnderTest()),
                         ::testing::PrintToStringParamName());

TEST_P(SurfaceContract, ClsPutsThePenAtTheOrigin) {
    Surface().SetCurrentX(150);
    Surface().SetCurrentY(-75.5F);
    EXPECT_EQ(Surface().CurrentX(), 150);
    EXPECT_EQ(Surface().CurrentY(), -75.5F);
    Surface().Cls();
    EXPECT_EQ(Surface().CurrentX(), 0);
    EXPECT_EQ(Surface().CurrentY(), 0);
}

TEST_P(SurfaceContract, PrintMovesThePenByTheWidth) {
    Surface().SetCurrentX(60);
    Surface().SetCurrentY(45);
    Surface().Print(u"some text");
    EXPECT_EQ(Surface().CurrentX(), 60 + Surface().TextWidth(u"some text"));
    EXPECT_EQ(Surface().CurrentY(), 45);
}

TEST_P(SurfaceContract, ABoxLeavesThePenAtItsSecondCorner) {
    Surface().FillBox(15, 30, 150, 300, Color{});
    EXPECT_EQ(Surface().CurrentX(), 150);
    EXPECT_EQ(Surface().CurrentY(), 300);
}

TEST_P(SurfaceContract, ABoxOfPixelsLeavesThePenAtItsSecondCorner) {
    Surface().FillPixels(150, 300, {-1, -2, 4, 6}, Color{});
    EXPECT_NEAR(Surface().CurrentX(), 150 + 4 * Pixel(), 1);
    EXPECT_NEAR(Surface().CurrentY(), 300 + 6 * Pixel(), 1);
}

TEST_P(SurfaceContract, ASurfaceMeasuresAllBreaksOfATextAtOnce) {
    const TextView text = u"one two  three";
    std::vector<double> ends(text.size());
    Surface().TextWidths(text, ends);
    const auto between = [&](std::size_t begin, std::size_t end) {
        return static_cast<float>(ends[end - 1] - (begin == 0 ? 0.0 : ends[begin - 1]));
    };
    EXPECT_EQ(between(0, 3), Surface().TextWidth(u"one"));
    EXPECT_EQ(between(0, 7), Surface().TextWidth(u"one two"));
    EXPECT_EQ(between(4, 7), Surface().TextWidth(u"two"));
    EXPECT_EQ(between(9, 14), Surface().TextWidth(u"three"));
    EXPECT_EQ(between(0, 14), Surface().TextWidth(text));
}

TEST_P(SurfaceContract, AnEmptyTextHasNoWidthButALinesHeight) {
    EXPECT_EQ(Surface().TextWidth(u""), 0);
    EXPECT_GT(Surface().TextHeight(u""), 0);
    EXPECT_EQ(Surface().TextHeight(u""), Surface().TextHeight(u"Ag"));
}

TEST_P(SurfaceContract, ControlCharactersAreMeasuredAsBlanks) {
    for (const char16_t unit : {u'\t', u'\r', u'\n', u'\x1', u'\x7F', u'\x9F', u'\x2028'}) {
        for (const TextView frame : {u"ab cd", u" ", u"\x639 \x639", u"  i  "}) {
            Text text(frame);
            std::ranges::replace(text, blank, unit);
            const float width = Surface().TextWidth(frame);
            EXPECT_FLOAT_EQ(Surface().TextWidth(text), width) << static_cast<int>(unit);
            std::vector<double> ends(text.size());
            Surface().TextWidths(text, ends);
            EXPECT_FLOAT_EQ(static_cast<float>(ends.back()), width) << static_cast<int>(unit);
            Surface().SetCurrentX(0);
            Surface().Print(text);
            EXPECT_FLOAT_EQ(Surface().CurrentX(), width) << static_cast<int>(unit);
        }
    }
}

TEST_P(SurfaceContract, TheFontIsReplacedByReference) {
    const host::FontRef font = runtime_->NewFont(u"Arial", 20);
    Surface().SetCurrentFont(font);
    EXPECT_EQ(Surface().CurrentFont(), font);
    EXPECT_TRUE(Raises(ErrorNumber::ObjectNotSet, [&] { Surface().SetCurrentFont(nullptr); }));
    EXPECT_EQ(Surface().CurrentFont(), font);
}

TEST_P(SurfaceContract, ASurfaceKeepsItsProperties) {
    Surface().SetForeColor(Rgb(1, 2, 3));
    Surface().SetBackColor(Color::WindowBackground);
    Surface().SetFontTransparent(false);
    Surface().SetEnabled(false);
    Surface().SetBorderStyle(1);
    Surface().SetPointer(99);
    EXPECT_EQ(Surface().ForeColor(), Rgb(1, 2, 3));
    EXPECT_EQ(Surface().BackColor(), Color::WindowBackground);
    EXPECT_FALSE(Surface().FontTransparent());
    EXPECT_FALSE(Surface().Enabled());
    EXPECT_EQ(Surface().BorderStyle(), 1);
    EXPECT_EQ(Surface().Pointer(), 99);
}

TEST_P(SurfaceContract, ASurfaceRefusesUndefinedStylesAndPointers) {
    for (const std::int16_t style : Integers{-1, 2}) {
        EXPECT_TRUE(
            Raises(ErrorNumber::InvalidPropertyValue, [&] { Surface().SetBorderStyle(style); }));
    }
    for (const std::int16_t pointer : Integers{-1, 16, 98, 100}) {
        EXPECT_TRUE(
            Raises(ErrorNumber::InvalidPropertyValue, [&] { Surface().SetPointer(pointer); }));
    }
}

TEST_P(SurfaceContract, RefreshPaintsAtOnceUnlessTheSurfaceKeepsItsPicture) {
    Surface().SetAutoRedraw(false);
    Probe().Take();
    Surface().Refresh();
    EXPECT_EQ(Probe().Take(), Lines{"Paint"});
    Surface().SetAutoRedraw(true);
    Probe().Take();
    Surface().Refresh();
    EXPECT_EQ(Probe().Take(), Lines{});
}

TEST_P(SurfaceContract, AnExposureIsAnsweredFromThePicture) {
    Surface().SetAutoRedraw(false);
    Surface().Refresh();
    Probe().Take();
    runtime_->Expose();
    EXPECT_EQ(Probe().Take(), Lines{});
}

TEST_P(SurfaceContract, ADrawingHasAFontOfItsOwn) {
    const host::FontRef font = runtime_->NewFont(u"Arial", 10);
    font->SetWeight(300);
    Surface().SetCurrentFont(font);
    const float width = Surface().TextWidth(u"measured");
    const host::FontRef own = Surface().BeginDrawing();
    EXPECT_NE(own, font);
    EXPECT_TRUE(own->IsSame(*font));
    EXPECT_EQ(Surface().TextWidth(u"measured"), width);
    own->SetBold(true);
    own->SetSize(20);
    EXPECT_GT(Surface().TextWidth(u"measured"), width * 1.5F);
    EXPECT_EQ(Surface().CurrentFont(), font);
    EXPECT_EQ(font->Weight(), 300);
    EXPECT_EQ(font->Size(), 10);
    Surface().EndDrawing();
    EXPECT_EQ(Surface().TextWidth(u"measured"), width);
    EXPECT_TRUE(Surface().BeginDrawing()->IsSame(*font)) << "each drawing starts with a copy";
    Surface().EndDrawing();
}

TEST_P(SurfaceContract, SizeResizesAtOnceIfAnythingChanges) {
    const float width = Surface().Width() + 20 * Pixel();
    const float height = Surface().Height();
    Surface().SetAutoRedraw(true);
    Probe().Take();
    Surface().Size(width, height);
    EXPECT_EQ(Probe().Take(), Lines{"Resize"});
    EXPECT_NEAR(Surface().Width(), width, Pixel());
    Surface().Size(Surface().Width(), Surface().Height());
    EXPECT_EQ(Probe().Take(), Lines{});
}

TEST_P(SurfaceContract, TheDrawingAreaIsNotLargerThanTheControl) {
    EXPECT_NEAR(Surface().Width(), 3000, Pixel());
    EXPECT_NEAR(Surface().Height(), 1500, Pixel());
    for (const std::int16_t style : Integers{0, 1}) {
        Surface().SetBorderStyle(style);
        EXPECT_GT(Surface().ScaleWidth(), 0);
        EXPECT_LE(Surface().ScaleWidth(), Surface().Width());
        EXPECT_LE(Surface().ScaleHeight(), Surface().Height());
        EXPECT_GE(Surface().VisibleBottom(), Surface().ScaleHeight());
    }
}

TEST_P(SurfaceContract, TheScreenHasAResolution) {
    EXPECT_GT(Host().screen.TwipsPerPixelX(), 0);
    EXPECT_GT(Host().screen.TwipsPerPixelY(), 0);
}

}  // namespace
}  // namespace lumenkit::contract
