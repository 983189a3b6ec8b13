// Constituents drawn as texts and shapes.
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "frame/host/option_buttons.h"
#include "frame/host/text_box.h"
#include "frame/utf8.h"
#include "runtime/win32/canvas_part.h"
#include "runtime/win32/colors.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/kept_picture.h"
#include "tests/unit/win32/parts_form.h"

namespace lumenkit::win32 {
namespace {

constexpr Color greyText = SystemColor(COLOR_GRAYTEXT);

struct Shape {
    RECT box = {};
    Color color = {};
};
struct Printed {
    std::string text;
    POINT at = {};
    Color color = {};
    RECT clip = {};
};

// Collects what is drawn, with the clip that applies to it.
class Shapes final : public Canvas {
 public:
    void Clear(Color paper) override { Fill(clips_.back(), paper); }
    void Print(const TextRun& run) override {
        texts.push_back({ToUtf8(run.text), run.at, run.ink, clips_.back()});
    }
    void Fill(const RECT& box, Color color) override { boxes.push_back({box, color}); }
    void FillFigure(Figure figure, const RECT& box, Color color) override {
        (figure == Figure::Ellipse ? ellipses : triangles).push_back({box, color});
    }
    void BeginClip(const RECT& box) override {
        RECT both = {};
        IntersectRect(&both, &clips_.back(), &box);
        clips_.push_back(both);
    }
    void EndClip() override { clips_.pop_back(); }

    std::vector<std::string> Texts() const {
        std::vector<std::string> all;
        for (const Printed& printed : texts) {
            all.push_back(printed.text);
        }
        return all;
    }
    std::size_t OpenClips() const { return clips_.size() - 1; }

    std::vector<Printed> texts;
    std::vector<Shape> boxes;
    std::vector<Shape> ellipses;
    std::vector<Shape> triangles;

 private:
    std::vector<RECT> clips_ = {{0, 0, 600, 400}};
};

bool Has(const std::vector<Shape>& shapes, const RECT& box, Color color) {
    return std::ranges::any_of(shapes, [&](const Shape& shape) {
        return EqualRect(&shape.box, &box) != FALSE && shape.color == color;
    });
}

class PartShapesTest : public PartsTest {
 protected:
    PartShapesTest() { ShowWindow(panel_->Handle(), SW_HIDE); }

    Shapes Draw() {
        KeptPicture picture;
        DrawChildShapes(panel_->Handle(), picture);
        Shapes shapes;
        picture.DrawOn(shapes);  // a picture can be kept and drawn later
        EXPECT_EQ(shapes.OpenClips(), 0U);
        return shapes;
    }
    // Takes pixels.
    host::Placement At(int left, int top, int width, int height) {
        return ToTwips({left, top, left + width, top + height}, form_.PixelsPerInch());
    }
    std::unique_ptr<host::TextBox> NewBox(host::ScrollBars bars, const host::Placement& place) {
        auto box =
            Parts().AddTextBox({{.name = u"T", .placement = place}, true, bars, u""}, events_);
        box->SetCurrentFont(form_.Fonts().NewFont(u"Arial", 9));
        return box;
    }

    host::TextBoxEvents events_;
    host::OptionButtonEvents optionEvents_;
    host::ClickEvents clickEvents_;
    host::ScrollBarEvents scrollEvents_;
};

TEST_F(PartShapesTest, AFrameIsAGrooveWithACaption) {
    const auto frame =
        Parts().AddFrame({{.name = u"F", .placement = At(20, 10, 150, 100)}, u"&Size && form"});
    frame->SetCurrentFont(form_.Fonts().NewFont(u"Arial", 9));
    const Shapes shapes = Draw();
    ASSERT_EQ(shapes.texts.size(), 1U);
    const Printed& caption = shapes.texts[0];
    EXPECT_EQ(caption.text, "Size & form");
    EXPECT_EQ(caption.color, Color::ButtonText);
    EXPECT_EQ(caption.at.x, 20 + 8);
    EXPECT_EQ(caption.at.y, 10);
    EXPECT_TRUE(Has(shapes.boxes, {20, 10, 170, 110}, Color::ButtonFace)) << "the background";
    // The groove: two rings, of which the outer one begins dark and the inner one light.
    const Color dark = SystemColor(COLOR_BTNSHADOW);
    const auto left = std::ranges::find_if(shapes.boxes, [&](const Shape& shape) {
        return shape.color == dark && shape.box.left == 20 && shape.box.right == 21;
    });
    ASSERT_NE(left, shapes.boxes.end());
    EXPECT_GT(left->box.top, 12) << "behind the middle of the caption";
    EXPECT_LT(left->box.top, 20);
    EXPECT_EQ(left->box.bottom, 110);
    EXPECT_TRUE(Has(shapes.boxes, {20, 109, 170, 110}, SystemColor(COLOR_BTNHIGHLIGHT)));
    frame->SetEnabled(false);
    EXPECT_EQ(Draw().texts.at(0).color, greyText);
    frame->SetBorderStyle(0);
    EXPECT_TRUE(Draw().texts.empty());
    EXPECT_EQ(Draw().boxes.size(), 1U) << "neither border nor caption";
}

class OptionShapes : public PartShapesTest {
 protected:
    OptionShapes() {
        options_->Item(0).SetCurrentFont(form_.Fonts().NewFont(u"Arial", 9));
        options_->Load(1);
        options_->Item(1).SetCaption(u"second");
    }
    std::unique_ptr<host::Frame> frame_ =
        Parts().AddFrame({{.name = u"F", .placement = At(0, 0, 200, 100)}, u""});
    std::unique_ptr<host::OptionButtons> options_ = Parts().AddOptionButtons(
        {{.name = u"O", .placement = At(10, 30, 120, 20)}, u"option"}, *frame_, optionEvents_);
};

TEST_F(OptionShapes, ARingStandsLeftOfTheCaption) {
    options_->Item(0).SetForeColor(Rgb(255, 0, 0));
    const Shapes shapes = Draw();
    EXPECT_EQ(shapes.Texts(), Lines{"option"}) << "a hidden button is not drawn";
    const Printed& caption = shapes.texts.at(0);
    EXPECT_EQ(caption.color, Rgb(255, 0, 0));
    ASSERT_EQ(shapes.ellipses.size(), 2U) << "no dot";
    const RECT& ring = shapes.ellipses[0].box;
    EXPECT_EQ(ring.left, 10);
    EXPECT_EQ(ring.right - ring.left, ring.bottom - ring.top);
    EXPECT_EQ(ring.right - ring.left, 13);
    EXPECT_NEAR((ring.top + ring.bottom) / 2.0, 40, 1) << "in the middle";
    EXPECT_EQ(shapes.ellipses[1].color, Color::WindowBackground);
    EXPECT_GT(caption.at.x, ring.right);
    EXPECT_LT(caption.at.x, ring.right + 8);
    const RECT button = {10, 30, 130, 50};
    RECT outside = {};
    EXPECT_FALSE(SubtractRect(&outside, &caption.clip, &button)) << "clipped to the button";
}

TEST_F(OptionShapes, ARingStandsRightOfTheCaption) {
    options_->Item(0).SetAlignment(1);
    const Shapes shapes = Draw();
    const RECT& ring = shapes.ellipses.at(0).box;
    EXPECT_EQ(ring.right, 130);
    EXPECT_EQ(shapes.texts.at(0).at.x, 10 + 1);
    EXPECT_LT(shapes.texts.at(0).clip.right, ring.left);
}

TEST_F(OptionShapes, ADotMarksTheSelectedButton) {
    options_->Item(0).Select(true);
    const Shapes shapes = Draw();
    ASSERT_EQ(shapes.ellipses.size(), 3U);
    const RECT& ring = shapes.ellipses[0].box;
    const RECT& dot = shapes.ellipses[2].box;
    EXPECT_EQ(shapes.ellipses[2].color, Color::WindowText);
    EXPECT_EQ(dot.left - ring.left, ring.right - dot.right);
    EXPECT_EQ(dot.top - ring.top, ring.bottom - dot.bottom);
    EXPECT_GE(dot.right - dot.left, 4);
}

TEST_F(OptionShapes, ADisabledButtonIsGrey) {
    options_->Item(0).Select(true);
    options_->Item(0).SetEnabled(false);
    const Shapes shapes = Draw();
    EXPECT_EQ(shapes.texts.at(0).color, greyText);
    EXPECT_EQ(shapes.ellipses.at(1).color, Color::ButtonFace);
    EXPECT_EQ(shapes.ellipses.at(2).color, greyText);
}

TEST_F(OptionShapes, AButtonInADisabledFrameIsGrey) {
    options_->Item(0).Select(true);
    options_->Item(0).SetForeColor(Rgb(255, 0, 0));
    frame_->SetEnabled(false);
    const Shapes shapes = Draw();
    EXPECT_EQ(shapes.texts.at(0).color, greyText);
    EXPECT_EQ(shapes.ellipses.at(1).color, Color::ButtonFace);
    EXPECT_EQ(shapes.ellipses.at(2).color, greyText);
}

TEST_F(OptionShapes, ButtonsBelowTheFrameAreLeftOut) {
    options_->Item(1).Move(At(10, 120, 120, 20));
    options_->Item(1).SetVisible(true);
    EXPECT_EQ(Draw().Texts(), Lines{"option"});
    options_->Item(1).Move(At(10, 90, 120, 20));
    EXPECT_THAT(Draw().Texts(), ::testing::UnorderedElementsAre("option", "second"));
    frame_->SetVisible(false);
    EXPECT_EQ(Draw().Texts(), Lines{});
}

TEST_F(PartShapesTest, ATextBoxShowsTheLinesThatAreSeen) {
    const auto box = NewBox(host::ScrollBars::None, At(10, 20, 200, 64));
    box->SetForeColor(Rgb(0, 0, 255));
    box->SetText(u"first\r\n\r\nthird\twith a tab\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9");
    const HWND window = WindowOf(*box);
    RECT area = {};
    SendMessageW(window, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
    OffsetRect(&area, 10 + 2, 20 + 2);
    const Shapes shapes = Draw();
    ASSERT_GE(shapes.texts.size(), 4U);
    EXPECT_EQ(shapes.texts[0].text, "first");
    EXPECT_EQ(shapes.texts[1].text, "third");
    EXPECT_EQ(shapes.texts[2].text, "with a tab");
    EXPECT_EQ(shapes.texts[1].at.y, shapes.texts[2].at.y);
    EXPECT_GT(shapes.texts[2].at.x, shapes.texts[1].at.x + 20);
    EXPECT_EQ(shapes.texts[3].text, "4");
    for (const Printed& line : shapes.texts) {
        EXPECT_EQ(line.color, Rgb(0, 0, 255));
        EXPECT_TRUE(EqualRect(&line.clip, &area));
        EXPECT_GE(line.at.y, area.top);
        EXPECT_LT(line.at.y, area.bottom);
    }
    EXPECT_EQ(shapes.texts[0].at.x, area.left);
    EXPECT_TRUE(Has(shapes.boxes, {10, 20, 210, 21}, SystemColor(COLOR_BTNSHADOW)));
    EXPECT_TRUE(Has(shapes.boxes, {12, 22, 208, 82}, Color::WindowBackground));

    SendMessageW(window, EM_LINESCROLL, 0, 3);
    const Shapes scrolled = Draw();
    EXPECT_EQ(scrolled.texts.at(0).text, "4");
    EXPECT_EQ(scrolled.texts.at(0).at.y, area.top);
    EXPECT_EQ(scrolled.Texts().at(1), "5");
    EXPECT_EQ(scrolled.texts.size(), shapes.texts.size()) << "a line is empty, another has a tab";
}

TEST_F(PartShapesTest, ATextBoxBreaksLinesAsItsWindow) {
    const auto box = NewBox(host::ScrollBars::None, At(10, 20, 100, 80));
    box->SetText(u"one two three four five six");
    const Shapes shapes = Draw();
    ASSERT_GE(shapes.texts.size(), 2U);
    std::string all;
    for (const Printed& line : shapes.texts) {
        all += line.text;
    }
    EXPECT_EQ(all, "one two three four five six");
    EXPECT_LT(shapes.texts[0].at.y, shapes.texts[1].at.y);
}

TEST_F(PartShapesTest, AScrolledLineBeginsWhereItIsSeen) {
    const auto box = NewBox(host::ScrollBars::Horizontal, At(10, 20, 100, 80));
    Text line;
    for (int word = 0; word < 900; ++word) {
        line += u"iiiii ";
    }
    line += u"end";
    box->SetText(line + u"\r\nshort");
    EXPECT_EQ(Draw().texts.size(), 2U);
    box->SetSelStart(static_cast<std::int32_t>(line.size()));
    const Shapes shapes = Draw();
    ASSERT_EQ(shapes.texts.size(), 1U) << "the other line is scrolled out";
    const Printed& seen = shapes.texts[0];
    EXPECT_TRUE(seen.text.ends_with("iiiii end"));
    EXPECT_LT(seen.text.size(), 80U);
    EXPECT_LE(seen.at.x, seen.clip.left);
    EXPECT_GT(seen.at.x, seen.clip.left - 20);
}

TEST_F(PartShapesTest, ADisabledTextBoxIsGreyAndALockedOneIsNot) {
    const auto box = NewBox(host::ScrollBars::None, At(10, 20, 100, 50));
    box->SetText(u"text");
    box->SetLocked(true);
    EXPECT_EQ(Draw().texts.at(0).color, Color::WindowText);
    box->SetEnabled(false);
    EXPECT_EQ(Draw().texts.at(0).color, greyText);
    box->SetVisible(false);
    const Shapes hidden = Draw();
    EXPECT_TRUE(hidden.texts.empty());
    EXPECT_TRUE(hidden.boxes.empty());
}

TEST_F(PartShapesTest, ATextBoxHasItsScrollBars) {
    const auto box = NewBox(host::ScrollBars::Both, At(10, 20, 100, 80));
    const Shapes shapes = Draw();
    EXPECT_EQ(shapes.triangles.size(), 4U);
    const auto corner = static_cast<LONG>(GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_TRUE(Has(shapes.boxes, {108 - corner, 98 - corner, 108, 98}, Color::ButtonFace));
    for (const Shape& arrow : shapes.triangles) {
        const bool isInVertical = arrow.box.left >= 108 - corner && arrow.box.bottom <= 98;
        const bool isInHorizontal = arrow.box.top >= 98 - corner && arrow.box.right <= 108;
        EXPECT_TRUE(isInVertical || isInHorizontal);
    }
}

TEST_F(PartShapesTest, TheOtherKindsShowTheirCaptionsAndStates) {
    const auto label = Parts().AddLabel(
        {{.name = u"L", .placement = At(10, 10, 60, 60)}, u"text that goes on\r\nand on"});
    label->SetForeColor(Rgb(255, 0, 0));
    label->SetBackColor(Rgb(0, 0, 255));
    const auto check = Parts().AddCheckBox(
        {{.name = u"C", .placement = At(10, 80, 80, 20)}, u"check"}, clickEvents_);
    const auto button = Parts().AddCommandButton(
        {{.name = u"B", .placement = At(10, 110, 80, 30)}, u"&Button"}, clickEvents_);
    const auto picture = Parts().AddPictureBox({.name = u"P", .placement = At(200, 10, 150, 60)});
    const auto bar = Parts().AddScrollBar(
        {.name = u"S", .parent = picture.get(), .placement = At(0, 0, 140, 16)},
        host::Orientation::Horizontal, scrollEvents_);
    const Shapes shapes = Draw();
    EXPECT_TRUE(Has(shapes.boxes, {10, 10, 70, 70}, Rgb(0, 0, 255)));
    std::string words;
    int fromLabel = 0;
    for (const Printed& printed : shapes.texts) {
        if (printed.color == Rgb(255, 0, 0)) {
            words += printed.text + '/';
            ++fromLabel;
        }
    }
    EXPECT_GE(fromLabel, 3) << words;
    EXPECT_TRUE(words.ends_with("/and on/")) << words;
    EXPECT_THAT(shapes.Texts(), ::testing::Contains("check"));
    EXPECT_THAT(shapes.Texts(), ::testing::Contains("Button"));
    EXPECT_EQ(shapes.triangles.size(), 2U);
    EXPECT_GE(shapes.triangles.at(0).box.left, 202);
    check->SetCheckState(1);
    EXPECT_EQ(Draw().boxes.size(), shapes.boxes.size() + 7) << "the tick";
}

}  // namespace
}  // namespace lumenkit::win32
