#include "runtime/win32/option_buttons.h"

#include <functional>
#include <memory>
#include <utility>

#include "tests/support/window_count.h"
#include "tests/unit/win32/parts_form.h"

namespace lumenkit::win32 {
namespace {

class ClickRecorder final : public host::OptionButtonEvents {
 public:
    void Click(std::int16_t index) override {
        clicked.push_back(index);
        if (onClick) {
            const auto handler = onClick;
            handler(index);
        }
    }
    std::vector<std::int16_t> Take() { return std::exchange(clicked, {}); }

    std::function<void(std::int16_t)> onClick;
    std::vector<std::int16_t> clicked;
};

using Indices = std::vector<std::int16_t>;

class OptionButtonsWindowTest : public PartsTest {
 protected:
    OptionButtonsWindowTest() {
        for (const std::int16_t index : Indices{1, 2, 3}) {
            options_->Load(index);
            host::OptionButton& button = options_->Item(index);
            button.SetVisible(true);
            button.Move({.left = 100,
                         .top = static_cast<float>(200 + 300 * index),
                         .width = 1500,
                         .height = 300});
        }
    }
    HWND At(std::int16_t index) { return WindowOf(options_->Item(index)); }
    bool IsChecked(std::int16_t index) {
        return SendMessageW(At(index), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    // Returns the elements that are tab stops.
    Indices TabStops() {
        Indices stops;
        for (const std::int16_t index : Indices{0, 1, 2, 3}) {
            if ((GetWindowLongW(At(index), GWL_STYLE) & WS_TABSTOP) != 0) {
                stops.push_back(index);
            }
        }
        return stops;
    }

    ClickRecorder recorder_;
    std::unique_ptr<host::Frame> frame_ = Parts().AddFrame(
        {{.name = u"Frame1", .placement = {.width = 3000, .height = 3000}}, u"&Frame"});
    std::unique_ptr<host::OptionButtons> options_ = Parts().AddOptionButtons(
        {{.name = u"Option1", .placement = {.left = 100, .top = 200, .width = 1500, .height = 300}},
         u"Item 0"},
        *frame_, recorder_);
};

TEST_F(OptionButtonsWindowTest, ShowsOneMark) {
    options_->Item(1).Select(true);
    options_->Item(3).Select(true);
    EXPECT_FALSE(IsChecked(1));
    EXPECT_TRUE(IsChecked(3));
    options_->Item(3).Select(false);
    EXPECT_FALSE(IsChecked(3));
    EXPECT_EQ(recorder_.Take(), (Indices{1, 3}));
}

TEST_F(OptionButtonsWindowTest, LiesInTheFrame) {
    EXPECT_EQ(GetParent(At(2)), WindowOf(*frame_));
    RECT place = {};
    GetWindowRect(At(2), &place);
    MapWindowPoints(nullptr, WindowOf(*frame_), reinterpret_cast<POINT*>(&place), 2);
    const RECT expected = ToPixels(options_->Item(2).Place(), form_.PixelsPerInch());
    EXPECT_TRUE(EqualRect(&place, &expected));
}

TEST_F(OptionButtonsWindowTest, TheUserClicks) {
    ClickAt(At(2), {5, 5});
    EXPECT_EQ(recorder_.Take(), Indices{2});
    EXPECT_TRUE(IsChecked(2));
    ClickAt(At(2), {5, 5});
    EXPECT_EQ(recorder_.Take(), Indices{}) << "it is selected already";
    SendMessageW(At(1), BM_CLICK, 0, 0);
    EXPECT_EQ(recorder_.Take(), Indices{1}) << "as programs for the blind do";
    SetFocus(At(3));
    EXPECT_EQ(recorder_.Take(), Indices{}) << "the focus alone selects nothing";
    Strike(At(3), VK_SPACE, u' ');
    EXPECT_EQ(recorder_.Take(), Indices{3});
    SendMessageW(At(0), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(3, 3));
    LiftButton(At(0), {3, 3});
    EXPECT_EQ(recorder_.Take(), Indices{0}) << "two quick clicks";
}

TEST_F(OptionButtonsWindowTest, ArrowsMoveFocusAndSelection) {
    options_->Item(0).Select(true);
    SetFocus(At(0));
    recorder_.Take();
    Strike(At(0), VK_DOWN);
    EXPECT_EQ(GetFocus(), At(1));
    Strike(At(1), VK_RIGHT);
    EXPECT_EQ(recorder_.Take(), (Indices{1, 2}));
    Strike(At(2), VK_UP);
    Strike(At(1), VK_LEFT);
    EXPECT_EQ(recorder_.Take(), (Indices{1, 0}));
    Strike(At(0), VK_UP);
    EXPECT_EQ(GetFocus(), At(3)) << "round the end";
    EXPECT_TRUE(IsChecked(3));
    Strike(At(3), VK_DOWN);
    EXPECT_EQ(GetFocus(), At(0));
}

TEST_F(OptionButtonsWindowTest, ArrowsPassOverWhatCannotBeUsed) {
    options_->Item(1).SetVisible(false);
    options_->Item(2).SetEnabled(false);
    SetFocus(At(0));
    Strike(At(0), VK_DOWN);
    EXPECT_EQ(GetFocus(), At(3));
    options_->Item(0).SetEnabled(false);
    recorder_.Take();
    Strike(At(3), VK_DOWN);
    EXPECT_EQ(GetFocus(), At(3)) << "it alone is left";
    EXPECT_EQ(recorder_.Take(), Indices{});
}

TEST_F(OptionButtonsWindowTest, AreOneStopOfTheTabKey) {
    EXPECT_EQ(TabStops(), Indices{0});
    options_->Item(2).Select(true);
    EXPECT_EQ(TabStops(), Indices{2});
    options_->Item(2).SetVisible(false);
    EXPECT_EQ(TabStops(), Indices{0});
    options_->Item(0).SetEnabled(false);
    EXPECT_EQ(TabStops(), Indices{1});
    options_->Item(2).SetVisible(true);
    EXPECT_EQ(TabStops(), Indices{2});
    options_->Item(2).Select(false);
    EXPECT_EQ(TabStops(), Indices{1});
    EXPECT_NE(SendMessageW(At(1), WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS, 0);
}

TEST_F(OptionButtonsWindowTest, HaveNamesAndRolesForProgramsThatReadAloud) {
    options_->Item(1).SetCaption(u"&Second");
    wchar_t text[32] = {};
    GetWindowTextW(At(1), text, 32);
    EXPECT_STREQ(text, L"&Second");
    GetClassNameW(At(1), text, 32);
    EXPECT_STREQ(text, L"Button");
    EXPECT_EQ(GetWindowLongW(At(1), GWL_STYLE) & BS_TYPEMASK, BS_RADIOBUTTON);
    GetWindowTextW(WindowOf(*frame_), text, 32);
    EXPECT_STREQ(text, L"&Frame");
    EXPECT_EQ(GetWindowLongW(WindowOf(*frame_), GWL_STYLE) & BS_TYPEMASK, BS_GROUPBOX);
}

TEST_F(OptionButtonsWindowTest, AlignmentMovesTheButton) {
    options_->Item(1).SetAlignment(1);
    EXPECT_NE(GetWindowLongW(At(1), GWL_STYLE) & BS_RIGHTBUTTON, 0);
    options_->Item(1).SetAlignment(0);
    EXPECT_EQ(GetWindowLongW(At(1), GWL_STYLE) & BS_RIGHTBUTTON, 0);
}

TEST_F(OptionButtonsWindowTest, TheColourOfTheCaptionIsAskedFor) {
    options_->Item(1).SetForeColor(Rgb(200, 0, 0));
    const HDC device = GetDC(At(1));
    SendMessageW(WindowOf(*frame_), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(device),
                 reinterpret_cast<LPARAM>(At(1)));
    EXPECT_EQ(GetTextColor(device), RGB(200, 0, 0));
    EXPECT_EQ(GetBkColor(device), GetSysColor(COLOR_BTNFACE));
    ReleaseDC(At(1), device);
}

TEST_F(OptionButtonsWindowTest, AClickMayLoadMore) {
    recorder_.onClick = [&](std::int16_t) { options_->Load(10); };
    host::OptionButton& second = options_->Item(1);
    ClickAt(At(1), {5, 5});
    EXPECT_EQ(&options_->Item(1), &second);
    EXPECT_FALSE(options_->Item(10).IsSelected());
}

TEST_F(OptionButtonsWindowTest, MayBeDestroyedByAClick) {
    recorder_.onClick = [&](std::int16_t) { options_.reset(); };
    const HWND window = At(1);
    ClickAt(window, {5, 5});
    EXPECT_EQ(options_, nullptr);
    Pump();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(OptionButtonsWindowTest, MayBeDestroyedByAnArrow) {
    recorder_.onClick = [&](std::int16_t) {
        options_.reset();
        frame_.reset();
        panel_.reset();
    };
    SetFocus(At(1));
    Strike(At(1), VK_DOWN);
    EXPECT_EQ(options_, nullptr);
    Pump();
}

TEST_F(OptionButtonsWindowTest, AnErrorOfTheReceiverReachesWhoeverSelects) {
    recorder_.onClick = [](std::int16_t) { Raise(ErrorNumber::DivisionByZero); };
    EXPECT_TRUE(Raises(ErrorNumber::DivisionByZero, [&] { options_->Item(1).Select(true); }));
    EXPECT_TRUE(options_->Item(1).IsSelected());
    EXPECT_NO_THROW(ClickAt(At(2), {5, 5}));
    EXPECT_TRUE(options_->Item(2).IsSelected());
}

TEST_F(OptionButtonsWindowTest, ADisabledFrameGivesTheFocusAway) {
    SetFocus(At(1));
    frame_->SetEnabled(false);
    EXPECT_EQ(GetFocus(), panel_->Handle());
    EXPECT_TRUE(options_->Item(1).Enabled());
    EXPECT_FALSE(IsWindowEnabled(WindowOf(*frame_)));
    frame_->SetEnabled(true);
    EXPECT_EQ(GetFocus(), At(1)) << "it comes back";
    EXPECT_EQ(recorder_.Take(), Indices{});
}

TEST_F(OptionButtonsWindowTest, AButtonThatIsHiddenPassesTheFocusOn) {
    SetFocus(At(2));
    options_->Item(2).SetVisible(false);
    EXPECT_EQ(GetFocus(), At(0)) << "where Tab stops";
    options_->Item(3).Select(true);
    recorder_.Take();
    options_->Item(0).SetEnabled(false);
    EXPECT_EQ(GetFocus(), At(3)) << "the selected one";
    options_->Item(3).SetVisible(false);
    options_->Item(1).SetVisible(false);
    EXPECT_EQ(GetFocus(), panel_->Handle());
    options_->Item(2).SetVisible(true);
    EXPECT_EQ(GetFocus(), At(2));
    EXPECT_EQ(recorder_.Take(), Indices{}) << "nothing is selected by the focus";
}

TEST_F(OptionButtonsWindowTest, AnElementOutOfUsePassesTheFocusToTheNextTabStop) {
    host::TextBoxEvents events;
    const auto box = Parts().AddTextBox(
        {{.name = u"Text1", .placement = {.width = 600, .height = 300}}}, events);
    SetFocus(At(1));
    frame_->SetEnabled(false);
    EXPECT_EQ(GetFocus(), WindowOf(*box));
    frame_->SetEnabled(true);
    EXPECT_EQ(GetFocus(), WindowOf(*box)) << "the user goes on there";
    box->SetVisible(false);
    EXPECT_EQ(GetFocus(), At(0));
}

TEST_F(OptionButtonsWindowTest, ADisabledFrameGreysItsButtons) {
    options_->Item(3).SetEnabled(false);
    const auto enabled = [&] {
        return std::vector<bool>{IsWindowEnabled(At(0)) != FALSE, IsWindowEnabled(At(1)) != FALSE,
                                 IsWindowEnabled(At(3)) != FALSE};
    };
    frame_->SetEnabled(false);
    options_->Load(4);
    EXPECT_EQ(enabled(), (std::vector<bool>{false, false, false}));
    EXPECT_FALSE(IsWindowEnabled(At(4)));
    EXPECT_TRUE(options_->Item(1).Enabled());
    EXPECT_TRUE(options_->Item(4).Enabled());
    options_->Item(3).SetEnabled(true);
    EXPECT_FALSE(IsWindowEnabled(At(3)));
    options_->Item(1).SetEnabled(false);
    frame_->SetEnabled(true);
    EXPECT_EQ(enabled(), (std::vector<bool>{true, false, true}));
    EXPECT_TRUE(IsWindowEnabled(At(4)));
}

TEST_F(OptionButtonsWindowTest, AThousandAreThere) {
    const int before = testing::WindowCount();
    const auto start = GetTickCount64();
    for (std::int16_t index = 4; index < 1000; ++index) {
        options_->Load(index);
        options_->Item(index).SetCaption(u"caption");
        options_->Item(index).SetVisible(true);
        options_->Item(index).Move({.top = 300.0F * index, .width = 1500, .height = 300});
    }
    EXPECT_LT(GetTickCount64() - start, 30000U) << "far more than it takes";
    EXPECT_EQ(testing::WindowCount(), before + 996);
    options_->Item(999).Select(true);
    EXPECT_TRUE(IsChecked(999));
    options_.reset();
    EXPECT_EQ(testing::WindowCount(), before - 4);
}

}  // namespace
}  // namespace lumenkit::win32
