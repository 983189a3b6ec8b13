// Constituents drawn on devices other than their windows, while no window is shown.
#include <memory>

#include "frame/host/option_buttons.h"
#include "frame/host/text_box.h"
#include "runtime/win32/drawable.h"
#include "tests/support/picture.h"
#include "tests/unit/win32/parts_form.h"

namespace lumenkit::win32 {
namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

class PartsDrawingTest : public PartsTest {
 protected:
    PartsDrawingTest() { ShowWindow(panel_->Handle(), SW_HIDE); }

    const lumenkit::testing::Picture& Draw() {
        picture_.Fill(white);
        DrawChildren(panel_->Handle(), picture_.Device());
        return picture_;
    }
    // Takes pixels.
    host::Placement At(int left, int top, int width, int height) {
        return ToTwips({left, top, left + width, top + height}, form_.PixelsPerInch());
    }

    lumenkit::testing::Picture picture_{200, 150};
    host::TextBoxEvents textEvents_;
    host::OptionButtonEvents optionEvents_;
    host::ClickEvents clickEvents_;
    host::ScrollBarEvents scrollEvents_;
};

TEST_F(PartsDrawingTest, ATextBoxShowsItsTextAndBorder) {
    const auto box = Parts().AddTextBox(
        {{.name = u"T", .placement = At(10, 10, 100, 50)}, true, host::ScrollBars::None, u"text"},
        textEvents_);
    box->SetForeColor(Rgb(255, 0, 0));
    const lumenkit::testing::Picture& picture = Draw();
    EXPECT_GT(picture.Count(red, {12, 12, 108, 58}), 10);
    EXPECT_EQ(picture.At(10, 10), GetSysColor(COLOR_3DSHADOW));
    EXPECT_EQ(picture.Count(white, {0, 0, 10, 150}), 1500) << "nothing beside it";
    box->SetVisible(false);
    EXPECT_EQ(Draw().Count(white), 200 * 150);
}

TEST_F(PartsDrawingTest, ATextBoxShowsItsScrollBars) {
    const auto box = Parts().AddTextBox(
        {{.name = u"T", .placement = At(10, 10, 100, 80)}, true, host::ScrollBars::Both, u""},
        textEvents_);
    const lumenkit::testing::Picture& picture = Draw();
    const int width = GetSystemMetrics(SM_CXVSCROLL);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(picture.At(108 - 1, 88 - 1), face) << "the corner";
    EXPECT_GT(picture.Count(face, {108 - width, 12, 108, 12 + width}), 20) << "an arrow";
    EXPECT_GT(picture.Count(face, {12, 88 - width, 12 + width, 88}), 20);
}

TEST_F(PartsDrawingTest, FramesAndOptionButtonsLieInEachOther) {
    const auto frame =
        Parts().AddFrame({{.name = u"F", .placement = At(20, 10, 150, 100)}, u"frame"});
    const auto options = Parts().AddOptionButtons(
        {{.name = u"O", .placement = At(10, 30, 100, 20)}, u"option"}, *frame, optionEvents_);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(Draw().At(100, 80), face);
    options->Item(0).SetForeColor(Rgb(255, 0, 0));
    EXPECT_GT(Draw().Count(red, {30, 40, 130, 60}), 10);
    EXPECT_EQ(picture_.Count(red, {0, 0, 200, 40}), 0);
    EXPECT_LT(picture_.Count(face, {20, 10, 170, 40}), 150 * 30) << "border and caption";
    frame->SetBorderStyle(0);
    EXPECT_EQ(Draw().Count(face, {20, 10, 170, 40}), 150 * 30) << "neither";
    options->Item(0).Move(At(140, 30, 100, 20));
    options->Item(0).SetAlignment(0);
    EXPECT_EQ(Draw().Count(white, {170, 0, 200, 150}), 30 * 150) << "clipped by the frame";
}

TEST_F(PartsDrawingTest, ALabelShowsItsColours) {
    const auto label = Parts().AddLabel(
        {{.name = u"L", .placement = At(10, 10, 60, 60)}, u"text that goes on and on"});
    label->SetForeColor(Rgb(255, 0, 0));
    label->SetBackColor(Rgb(0, 0, 255));
    const lumenkit::testing::Picture& picture = Draw();
    const RECT place = {10, 10, 70, 70};
    EXPECT_EQ(picture.Count(red, place) + picture.Count(blue, place), 3600);
    const RECT text = {10, 24, 70, 70};
    EXPECT_GT(picture.Count(red, text), 10) << "further lines";
}

TEST_F(PartsDrawingTest, ButtonsAndBoxesShowTheirState) {
    const auto check =
        Parts().AddCheckBox({{.name = u"C", .placement = At(10, 10, 80, 20)}, u"c"}, clickEvents_);
    const auto button = Parts().AddCommandButton(
        {{.name = u"B", .placement = At(10, 40, 80, 30)}, u"button"}, clickEvents_);
    const std::vector<std::uint32_t> unchecked = Draw().Pixels();
    check->SetCheckState(1);
    EXPECT_NE(Draw().Pixels(), unchecked);
    EXPECT_LT(picture_.Count(white, {10, 40, 90, 70}), 80 * 30);
    button->SetVisible(false);
    EXPECT_EQ(Draw().Count(white, {10, 40, 90, 70}), 80 * 30);
}

TEST_F(PartsDrawingTest, AScrollBarShowsWhereItStands) {
    const auto picture = Parts().AddPictureBox({.name = u"P", .placement = At(10, 10, 150, 60)});
    const auto bar = Parts().AddScrollBar(
        {.name = u"S", .parent = picture.get(), .placement = At(0, 0, 140, 16)},
        host::Orientation::Horizontal, scrollEvents_);
    bar->SetMax(100);
    bar->SetLargeChange(50);
    const RECT left = {12 + 20, 12, 12 + 50, 28};
    const RECT right = {12 + 90, 12, 12 + 120, 28};
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    Draw();
    EXPECT_GT(picture_.Count(face, left), picture_.Count(face, right)) << "the thumb";
    bar->SetScrollValue(100);
    Draw();
    EXPECT_LT(picture_.Count(face, left), picture_.Count(face, right));
    bar->SetMax(0);
    Draw();
    EXPECT_EQ(picture_.Count(face, left), picture_.Count(face, right)) << "no thumb";
}

TEST_F(PartsDrawingTest, LeavesTheDeviceAsItWas) {
    const auto box = Parts().AddTextBox(
        {{.name = u"T", .placement = At(10, 10, 100, 50)}, true, host::ScrollBars::Both, u"text"},
        textEvents_);
    const HGDIOBJ font = GetCurrentObject(picture_.Device(), OBJ_FONT);
    const COLORREF color = GetTextColor(picture_.Device());
    Draw();
    POINT origin = {1, 1};
    GetWindowOrgEx(picture_.Device(), &origin);
    EXPECT_EQ(origin.x, 0);
    EXPECT_EQ(origin.y, 0);
    EXPECT_EQ(GetCurrentObject(picture_.Device(), OBJ_FONT), font);
    EXPECT_EQ(GetTextColor(picture_.Device()), color);
    RECT clip = {};
    GetClipBox(picture_.Device(), &clip);
    EXPECT_EQ(clip.right, 200);
}

}  // namespace
}  // namespace lumenkit::win32
