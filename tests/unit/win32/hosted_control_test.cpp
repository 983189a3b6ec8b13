// A control's window in its container: showing, mouse, keyboard and destruction.
#include "runtime/win32/hosted_control.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"
#include "runtime/win32/font_cache.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/window.h"
#include "tests/support/picture.h"
#include "tests/support/window_count.h"
#include "tests/support/windows_form.h"
#include "tests/unit/win32/painted_control.h"

namespace lumenkit::testing {
namespace {

using Lines = std::vector<std::string>;

constexpr SIZE startSize = {200, 100};

template <typename Constituent>
HWND WindowOf(Constituent& constituent) {
    return dynamic_cast<win32::Window&>(constituent).Handle();
}

class HostedControlTest : public ::testing::Test {
 protected:
    HostedControlTest() { control_->Start(); }

    PaintedControl& Painted() { return *PaintedControl::Last(); }
    win32::HostedControl& Hosted() { return control_->Hosted(); }
    host::Surface& Surface() { return Hosted().Drawing(); }
    host::Constituents& Parts() { return Hosted().Host().constituents; }
    HWND Window() { return Hosted().Handle(); }
    Lines Take() { return std::exchange(Painted().lines, {}); }

    void Send(UINT message, WPARAM keys, int x, int y) {
        SendMessageW(Window(), message, keys, MAKELPARAM(x, y));
    }
    // Passes a key to the control, as the container's message loop does.
    bool Key(WPARAM key, UINT message = WM_KEYDOWN) {
        MSG queued = {};
        queued.hwnd = GetFocus();
        queued.message = message;
        queued.wParam = key;
        queued.lParam = 1;
        const bool used = Hosted().TranslateKey(queued);
        WindowsForm::Pump();
        return used;
    }

    WindowsForm form_{PaintedClasses()};
    std::unique_ptr<FormControl> control_ =
        std::make_unique<FormControl>(form_, PaintedClasses().classes[0], startSize);
};

// Holds a key down in the keyboard state of this thread.
class Held {
 public:
    explicit Held(int key) {
        GetKeyboardState(former_.data());
        auto keys = former_;
        keys[static_cast<std::size_t>(key)] = 0x80;
        SetKeyboardState(keys.data());
    }
    ~Held() { SetKeyboardState(former_.data()); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

 private:
    std::array<BYTE, 256> former_{};
};

// ---- In its container

TEST_F(HostedControlTest, IsToldThatItIsShownWheneverItWasNot) {
    EXPECT_EQ(Painted().shows, 1);
    Hosted().SetVisible(true);
    EXPECT_EQ(Painted().shows, 1);
    Hosted().SetVisible(false);
    EXPECT_EQ(IsWindowVisible(Window()), FALSE);
    Hosted().SetVisible(true);
    EXPECT_EQ(Painted().shows, 2);
    Hosted().Detach();
    EXPECT_FALSE(Hosted().IsAttached());
    EXPECT_EQ(IsWindowVisible(Window()), FALSE);
    Hosted().SetVisible(true);
    EXPECT_EQ(Painted().shows, 2) << "it has no container";
    Hosted().Attach(form_.Window(), {0, 0, 50, 50});
    EXPECT_EQ(Painted().shows, 3);
    EXPECT_NE(IsWindowVisible(Window()), FALSE);
}

TEST_F(HostedControlTest, IsShownOnceItIsStarted) {
    control_ = std::make_unique<FormControl>(form_, PaintedClasses().classes[0], startSize);
    Hosted().Attach(form_.Window(), {0, 0, startSize.cx, startSize.cy});
    EXPECT_EQ(Painted().shows, 0);
    EXPECT_FALSE(Hosted().IsStarted());
    Hosted().StartNew();
    EXPECT_EQ(Painted().shows, 1);
    EXPECT_TRUE(Hosted().IsStarted());
}

TEST_F(HostedControlTest, FollowsEveryChangeOfItsSizeOnce) {
    Painted().resizes = 0;
    Hosted().SetSize({50, 60});
    Hosted().SetSize({50, 60});
    EXPECT_EQ(Painted().resizes, 1);
    control_->MoveTo({10, 10, 80, 90});
    EXPECT_EQ(Painted().resizes, 2);
    EXPECT_EQ(Hosted().Size().cx, 70);
    control_->MoveTo({20, 20, 90, 100});
    EXPECT_EQ(Painted().resizes, 2) << "only its place changed";
    SetWindowPos(Window(), nullptr, 0, 0, 33, 44, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Painted().resizes, 3) << "the container may move the window itself";
    EXPECT_EQ(Hosted().Size().cy, 44);
    Hosted().SetSize({-5, 10});
    EXPECT_EQ(Hosted().Size().cx, 0);
    EXPECT_EQ(Surface().ScaleWidth(), 0);
}

TEST_F(HostedControlTest, ShowsOnlyWhatIsNotClipped) {
    const auto isWhole = [&] {
        const HRGN region = CreateRectRgn(0, 0, 0, 0);
        const int kind = GetWindowRgn(Window(), region);
        RECT box = {};
        GetRgnBox(region, &box);
        DeleteObject(region);
        return kind == ERROR || box.right - box.left == startSize.cx;
    };
    const RECT place = {20, 20, 20 + startSize.cx, 20 + startSize.cy};
    Hosted().Place(place, {0, 0, 1000, 1000});
    EXPECT_TRUE(isWhole());
    Hosted().Place(place, {0, 0, 60, 1000});
    EXPECT_FALSE(isWhole());
    Hosted().Place(place, place);
    EXPECT_TRUE(isWhole());
}

TEST_F(HostedControlTest, RefusesWhatIsNoControl) {
    const ClassDescriptor page = {.name = u"Page", .kind = ClassKind::PropertyPage};
    const int windows = WindowCount();
    try {
        const FormControl refused(form_, page, startSize);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 429);
    }
    EXPECT_EQ(WindowCount(), windows);
}

TEST_F(HostedControlTest, OutlivesItsWindow) {
    host::TextBoxEvents events;
    const auto box = Parts().AddTextBox({{.name = u"T"}}, events);
    DestroyWindow(Window());
    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(Hosted().IsAttached());
    Hosted().SetSize({10, 20});
    Hosted().Place({0, 0, 5, 5}, {0, 0, 5, 5});
    Hosted().SetVisible(true);
    Hosted().Focus();
    Hosted().Attach(form_.Window(), {0, 0, 50, 50});
    Hosted().AmbientChanged();
    Hosted().Detach();
    EXPECT_FALSE(Hosted().HasFocus());
    EXPECT_FALSE(Key(VK_TAB));
    Surface().SetBorderStyle(1);
    Surface().SetEnabled(false);
    Surface().SetBackColor(Rgb(1, 1, 1));
    Surface().Print(u"text");
    Surface().Refresh();
    Picture picture(50, 50);
    Hosted().DrawOn(picture.Device(), {0, 0, 50, 50});
    EXPECT_EQ(Hosted().Size().cx, 10);
}

TEST_F(HostedControlTest, LeavesAContainerWhoseWindowIsDestroyed) {
    host::TextBoxEvents events;
    const auto box = Parts().AddTextBox({{.name = u"T"}}, events);
    const HWND outer = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200,
                                       nullptr, nullptr, nullptr, nullptr);
    const HWND inner = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 200, 100,
                                       outer, nullptr, nullptr, nullptr);
    Hosted().Attach(inner, {0, 0, 50, 50});
    box->SetText(u"kept");
    Hosted().Focus();
    DestroyWindow(outer);
    EXPECT_FALSE(Hosted().IsAttached());
    ASSERT_NE(Window(), nullptr);
    EXPECT_FALSE(IsWindowVisible(Window()));
    EXPECT_TRUE(IsWindow(WindowOf(*box)));
    Hosted().Attach(form_.Window(), {0, 0, 50, 50});
    EXPECT_TRUE(IsWindowVisible(Window()));
    EXPECT_EQ(GetParent(Window()), form_.Window());
    EXPECT_EQ(box->GetText(), u"kept");
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), WindowOf(*box));
}

TEST_F(HostedControlTest, TakesNoInputThatItsSiteDoesNotAccept) {
    host::TextBoxEvents events;
    const auto box = Parts().AddTextBox({{.name = u"T"}}, events);
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), WindowOf(*box));
    control_->acceptsInput = false;
    EXPECT_TRUE(Hosted().AcceptsInput());  // until it is told
    Hosted().AmbientChanged();
    EXPECT_FALSE(Hosted().AcceptsInput());
    EXPECT_EQ(GetFocus(), form_.Window());
    EXPECT_FALSE(IsWindowEnabled(Window()));
    EXPECT_TRUE(IsWindowEnabled(WindowOf(*box)));
    Take();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    Send(WM_LBUTTONUP, 0, 10, 20);
    SendMessageW(WindowOf(*box), WM_CHAR, 'x', 1);
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), form_.Window());
    EXPECT_EQ(Take(), Lines{});
    EXPECT_EQ(box->GetText(), u"");
    control_->acceptsInput = true;
    Hosted().AmbientChanged();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    Send(WM_LBUTTONUP, 0, 10, 20);
    SendMessageW(WindowOf(*box), WM_CHAR, 'x', 1);
    EXPECT_NE(Take(), Lines{});
    EXPECT_EQ(box->GetText(), u"x");
}

TEST_F(HostedControlTest, DrawsItsConstituentsToo) {
    const auto frame = Parts().AddFrame(
        {{.name = u"F", .placement = {.left = 300, .top = 300, .width = 1500, .height = 750}},
         u""});
    const auto label = Parts().AddLabel(
        {{.name = u"L", .parent = frame.get(), .placement = {.width = 450, .height = 300}}, u""});
    label->SetBackColor(Rgb(255, 0, 0));
    Hosted().Detach();
    Picture plain(startSize.cx, startSize.cy);
    Hosted().DrawOn(plain.Device(), {0, 0, startSize.cx, startSize.cy});
    EXPECT_EQ(plain.Count(RGB(255, 0, 0)), 30 * 20);
    EXPECT_EQ(plain.Count(RGB(255, 0, 0), {20, 20, 50, 40}), 30 * 20);
    Picture large(startSize.cx * 2, startSize.cy * 2);
    Hosted().DrawOn(large.Device(), {0, 0, startSize.cx * 2, startSize.cy * 2});
    EXPECT_EQ(large.Count(RGB(255, 0, 0), {40, 40, 100, 80}), 60 * 40);
    label->SetVisible(false);
    Hosted().DrawOn(plain.Device(), {0, 0, startSize.cx, startSize.cy});
    EXPECT_EQ(plain.Count(RGB(255, 0, 0)), 0);
}

// ---- The mouse

TEST_F(HostedControlTest, AClickGoesDownAndUpInside) {
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    EXPECT_EQ(GetCapture(), Window());
    Send(WM_LBUTTONUP, 0, 11, 21);
    EXPECT_NE(GetCapture(), Window());
    EXPECT_EQ(Take(), (Lines{"down 1 0 150,300", "up 1 0 165,315", "click"}));
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    Send(WM_LBUTTONUP, 0, -5, 20);
    EXPECT_EQ(Take(), (Lines{"down 1 0 150,300", "up 1 0 -75,300"}));
    Send(WM_LBUTTONUP, 0, 10, 20);
    EXPECT_EQ(Take(), Lines{"up 1 0 150,300"}) << "it went down elsewhere";
}

TEST_F(HostedControlTest, ASecondQuickClickIsADoubleOne) {
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    Send(WM_LBUTTONUP, 0, 10, 20);
    Take();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, 10, 20);
    Send(WM_LBUTTONUP, 0, 10, 20);
    EXPECT_EQ(Take(), (Lines{"dblclick", "up 1 0 150,300"}));
}

TEST_F(HostedControlTest, TellsButtonsAndKeys) {
    const Held shift(VK_SHIFT);
    Send(WM_RBUTTONDOWN, MK_RBUTTON, 1, 1);
    Send(WM_RBUTTONUP, 0, 1, 1);
    Send(WM_MBUTTONDOWN, MK_MBUTTON, 1, 1);
    Send(WM_MBUTTONUP, 0, 1, 1);
    Send(WM_MOUSEMOVE, MK_LBUTTON | MK_MBUTTON, 2, 2);
    EXPECT_EQ(Take(), (Lines{"down 2 1 15,15", "up 2 1 15,15", "click", "down 4 1 15,15",
                             "up 4 1 15,15", "move 5 1 30,30"}));
}

TEST_F(HostedControlTest, TheLeftAndTheRightButtonDoubleClick) {
    Send(WM_RBUTTONDBLCLK, MK_RBUTTON, 1, 1);
    Send(WM_RBUTTONUP, 0, 1, 1);
    Send(WM_MBUTTONDBLCLK, MK_MBUTTON, 1, 1);
    Send(WM_MBUTTONUP, 0, 1, 1);
    EXPECT_EQ(Take(), (Lines{"dblclick", "up 2 0 15,15", "down 4 0 15,15", "up 4 0 15,15"}));
}

TEST_F(HostedControlTest, ADisabledControlDoesNotReact) {
    Surface().SetEnabled(false);
    EXPECT_EQ(IsWindowEnabled(Window()), FALSE);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    Send(WM_LBUTTONUP, 0, 10, 20);
    Send(WM_MOUSEMOVE, 0, 10, 20);
    EXPECT_EQ(Take(), Lines{});
    Surface().SetEnabled(true);
    Send(WM_MOUSEMOVE, 0, 10, 20);
    EXPECT_EQ(Take(), Lines{"move 0 0 150,300"});
}

TEST_F(HostedControlTest, ALostCaptureEndsTheClick) {
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    SetCapture(form_.Window());
    Send(WM_LBUTTONUP, 0, 10, 20);
    ReleaseCapture();
    EXPECT_EQ(Take(), (Lines{"down 1 0 150,300", "up 1 0 150,300"}));
}

TEST_F(HostedControlTest, AHandlerMayHideOrUnwindTheWindow) {
    Painted().onClick = [&] { DestroyWindow(Window()); };
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 10, 20);
    Send(WM_LBUTTONUP, 0, 10, 20);
    EXPECT_EQ(Window(), nullptr);
}

// ---- The keyboard

TEST_F(HostedControlTest, TellsWhenTheFocusComesAndGoes) {
    host::TextBoxEvents events;
    const auto one = Parts().AddTextBox({{.name = u"A"}}, events);
    const auto two = Parts().AddTextBox({{.name = u"B"}}, events);
    SetFocus(form_.Window());
    control_->focusGained = control_->focusLost = 0;
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), WindowOf(*one));
    EXPECT_TRUE(Hosted().HasFocus());
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), WindowOf(*two));
    SetFocus(Window());
    EXPECT_EQ(control_->focusGained, 1);
    EXPECT_EQ(control_->focusLost, 0);
    SetFocus(form_.Window());
    EXPECT_EQ(control_->focusGained, 1);
    EXPECT_EQ(control_->focusLost, 1);
    EXPECT_FALSE(Hosted().HasFocus());
}

TEST_F(HostedControlTest, AHiddenControlLeavesTheFocusToItsContainer) {
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), Window());
    Hosted().SetVisible(false);
    EXPECT_EQ(GetFocus(), form_.Window());
    Hosted().SetVisible(true);
    Hosted().Focus();
    Hosted().Detach();
    EXPECT_EQ(GetFocus(), form_.Window());
}

class KeyboardTest : public HostedControlTest {
 protected:
    KeyboardTest() {
        options_->Load(1);
        options_->Load(2);
        for (const std::int16_t index : {std::int16_t{1}, std::int16_t{2}}) {
            options_->Item(index).SetVisible(true);
        }
        options_->Item(1).SetCaption(u"&Beta");
        SetFocus(form_.Window());
    }
    HWND Option(std::int16_t index) { return WindowOf(options_->Item(index)); }

    class Clicks final : public host::ClickEvents {
     public:
        void Click() override { ++count; }
        int count = 0;
    };

    static constexpr host::Placement place_ = {.width = 300, .height = 300};
    host::TextBoxEvents textEvents_;
    host::OptionButtonEvents optionEvents_;
    Clicks clicks_;
    std::unique_ptr<host::Label> label_ =
        Parts().AddLabel({{.name = u"L", .placement = place_}, u"&Name"});
    std::unique_ptr<host::TextBox> text_ = Parts().AddTextBox(
        {{.name = u"T", .placement = place_}, true, host::ScrollBars::None, u"a & b"}, textEvents_);
    std::unique_ptr<host::Frame> frame_ =
        Parts().AddFrame({{.name = u"F", .placement = {.width = 900, .height = 900}}, u"Frame"});
    std::unique_ptr<host::OptionButtons> options_ = Parts().AddOptionButtons(
        {{.name = u"O", .placement = place_}, u"&Alpha"}, *frame_, optionEvents_);
    std::unique_ptr<host::CheckBox> check_ =
        Parts().AddCheckBox({{.name = u"C", .placement = place_}, u"&Check && more"}, clicks_);
    std::unique_ptr<host::CommandButton> button_ =
        Parts().AddCommandButton({{.name = u"B", .placement = place_}, u"&Go"}, clicks_);
};

TEST_F(KeyboardTest, TabGoesInTheOrderOfMaking) {
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), WindowOf(*text_));
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), Option(0)) << "none is selected: the first";
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), WindowOf(*check_)) << "a group is one stop";
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), WindowOf(*button_));
    EXPECT_FALSE(Key(VK_TAB)) << "the container goes on";
    EXPECT_EQ(GetFocus(), WindowOf(*button_));
    const Held shift(VK_SHIFT);
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), WindowOf(*check_));
    options_->Item(2).Select(true);
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), Option(2)) << "the selected one of a group";
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), WindowOf(*text_));
    EXPECT_FALSE(Key(VK_TAB));
}

TEST_F(KeyboardTest, TabSkipsWhatCannotBeUsed) {
    frame_->SetEnabled(false);
    check_->SetVisible(false);
    Hosted().Focus();
    EXPECT_TRUE(Key(VK_TAB));
    EXPECT_EQ(GetFocus(), WindowOf(*button_));
    Hosted().Focus(true);
    EXPECT_EQ(GetFocus(), WindowOf(*button_));
    text_->SetEnabled(false);
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), WindowOf(*button_));
    const Held control(VK_CONTROL);
    EXPECT_FALSE(Key(VK_TAB)) << "for the container";
}

TEST_F(KeyboardTest, ArrowsSelectInAGroup) {
    options_->Item(0).Select(true);
    SetFocus(Option(0));
    EXPECT_TRUE(Key(VK_DOWN));
    EXPECT_TRUE(options_->Item(1).IsSelected());
    EXPECT_EQ(GetFocus(), Option(1));
    EXPECT_TRUE(Key(VK_UP));
    EXPECT_TRUE(Key(VK_LEFT));
    EXPECT_TRUE(options_->Item(2).IsSelected()) << "round the group";
    options_->Item(0).SetVisible(false);
    EXPECT_TRUE(Key(VK_RIGHT));
    EXPECT_TRUE(options_->Item(1).IsSelected());
}

TEST_F(KeyboardTest, MnemonicsReachWhatTheyName) {
    SetFocus(WindowOf(*button_));
    EXPECT_TRUE(Key('n', WM_SYSCHAR));
    EXPECT_EQ(GetFocus(), WindowOf(*text_)) << "a label names what follows it";
    EXPECT_TRUE(Key('B', WM_SYSCHAR));
    EXPECT_TRUE(options_->Item(1).IsSelected());
    EXPECT_TRUE(Key('c', WM_SYSCHAR));
    EXPECT_EQ(check_->CheckState(), 1);
    EXPECT_EQ(clicks_.count, 1);
    EXPECT_TRUE(Key('g', WM_SYSCHAR));
    EXPECT_EQ(clicks_.count, 2);
    EXPECT_FALSE(Key('m', WM_SYSCHAR)) << "behind two of them";
    EXPECT_FALSE(Key(' ', WM_SYSCHAR)) << "typed, not named";
    button_->SetEnabled(false);
    EXPECT_FALSE(Key('g', WM_SYSCHAR));
}

TEST_F(KeyboardTest, KeysThatEditAreNotTheContainers) {
    SetFocus(WindowOf(*text_));
    text_->SetSelStart(0);
    EXPECT_TRUE(Key(VK_RIGHT));
    EXPECT_EQ(text_->SelStart(), 1);
    EXPECT_TRUE(Key(VK_END));
    EXPECT_TRUE(Key(VK_RETURN)) << "it breaks lines here";
    EXPECT_FALSE(Key(VK_ESCAPE));
    EXPECT_FALSE(Key(VK_F4));
    EXPECT_FALSE(Key('S'));
    SetFocus(WindowOf(*button_));
    EXPECT_FALSE(Key(VK_RETURN)) << "the container has a default button";
    EXPECT_FALSE(Key(VK_RIGHT));
    SetFocus(form_.Window());
    EXPECT_FALSE(Key(VK_TAB)) << "the focus is elsewhere";
}

// The message loop of a dialog finds the constituents by itself.
TEST_F(KeyboardTest, DialogsFindTheConstituents) {
    EXPECT_EQ(GetNextDlgTabItem(form_.Window(), nullptr, FALSE), WindowOf(*text_));
    SetFocus(WindowOf(*check_));
    EXPECT_EQ(GetNextDlgTabItem(form_.Window(), WindowOf(*check_), FALSE), WindowOf(*button_));
}

TEST_F(HostedControlTest, DialogsPassByAControlWithoutConstituents) {
    const HWND button = CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 300,
                                        300, 50, 20, form_.Window(), nullptr, nullptr, nullptr);
    Hosted().Focus();
    EXPECT_EQ(GetFocus(), Window());
    EXPECT_EQ(GetNextDlgTabItem(form_.Window(), Window(), FALSE), button);
    EXPECT_EQ(GetNextDlgTabItem(form_.Window(), Window(), TRUE), button);
}

TEST_F(HostedControlTest, IsAStaticTextToScreenReadersUnlessItHasConstituents) {
    const auto kind = [&] {
        return SendMessageW(Window(), WM_GETOBJECT, 0, OBJID_QUERYCLASSNAMEIDX);
    };
    EXPECT_EQ(kind(), 65536 + 3) << "as a STATIC window says of itself";
    const auto label = Hosted().Host().constituents.AddLabel({{.name = u"L"}, u"text"});
    EXPECT_EQ(kind(), 0);
}

TEST(Mnemonics, AreMarkedOnce) {
    EXPECT_TRUE(win32::AnswersTo(L"&Open", L'o'));
    EXPECT_TRUE(win32::AnswersTo(L"Save &As", L'A'));
    EXPECT_FALSE(win32::AnswersTo(L"Open", L'o'));
    EXPECT_FALSE(win32::AnswersTo(L"a && b", L' '));
    EXPECT_FALSE(win32::AnswersTo(L"a && b", L'&'));
    EXPECT_TRUE(win32::AnswersTo(L"a &&&b", L'b'));
    EXPECT_FALSE(win32::AnswersTo(L"end&", L'\0'));
    EXPECT_FALSE(win32::AnswersTo(L"", L'x'));
}

// ---- Destruction

TEST_F(HostedControlTest, LeavesNothingBehind) {
    control_.reset();
    const int windows = WindowCount();
    const int fonts = win32::ScreenFont::Count();
    const DWORD handles = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    for (int round = 0; round < 1000; ++round) {
        control_ = std::make_unique<FormControl>(form_, PaintedClasses().classes[0], startSize);
        control_->Start();
        Painted().paint = [](host::Surface& surface) {
            surface.CurrentFont()->SetBold(true);
            surface.Print(u"text");
            surface.CurrentFont()->SetBold(false);
            surface.FillBox(0, 0, 150, 150, Color{});
        };
        Surface().Refresh();
        Picture picture(30, 30);
        Hosted().DrawOn(picture.Device(), {0, 0, 30, 30});
        control_.reset();
    }
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_EQ(win32::ScreenFont::Count(), fonts);
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), handles);
}

// The container's window is on a monitor of another resolution than the screen of the process.
TEST(ResolutionOfAControl, IsOneForAllItsParts) {
    const win32::Resolution fine = {.x = 144, .y = 144};
    WindowsForm form(PaintedClasses(), fine);
    FormControl control(form, PaintedClasses().classes[0], {300, 150});
    control.Start();
    PaintedControl& painted = *PaintedControl::Last();
    const ControlHost& host = control.Hosted().Host();
    EXPECT_EQ(control.Hosted().Drawing().Width(), 3000);
    EXPECT_EQ(host.screen.TwipsPerPixelX(), 10);
    SendMessageW(control.Hosted().Handle(), WM_MOUSEMOVE, 0, MAKELPARAM(10, 20));
    EXPECT_EQ(painted.lines.back(), "move 0 0 100,200");

    const auto widthOf = [](HWND window) {
        RECT place = {};
        GetWindowRect(window, &place);
        return place.right - place.left;
    };
    host::TextBoxEvents events;
    const host::Placement inch = {.left = 0, .top = 0, .width = 1440, .height = 720};
    const auto box = host.constituents.AddTextBox(
        {{.name = u"T", .placement = inch}, true, host::ScrollBars::None, u""}, events);
    EXPECT_EQ(widthOf(WindowOf(*box)), 144);
    const auto embedded =
        host.constituents.AddControl({.name = u"E", .placement = inch}, u"test.Painted");
    const ControlHost& inner = PaintedControl::Last()->Host();
    EXPECT_EQ(inner.screen.TwipsPerPixelX(), 10);
    EXPECT_EQ(inner.surface.Width(), 1440);
}

TEST_F(HostedControlTest, KeepsItsPictureOnAMonitorOfAnotherResolution) {
    constexpr UINT beforeParent = 0x02E2;
    constexpr UINT afterParent = 0x02E3;
    host::TextBoxEvents events;
    const auto box = Parts().AddTextBox(
        {{.name = u"T", .placement = {0, 0, 1500, 600}}, true, host::ScrollBars::None, u"text"},
        events);
    WindowsForm::Pump();
    const float height = Surface().TextHeight(u"x");
    SendMessageW(WindowOf(*box), beforeParent, 0, 0);
    SendMessageW(Window(), beforeParent, 0, 0);
    control_->MoveTo({20, 20, 320, 170});  // the container enlarges it
    UpdateWindow(Window());
    UpdateWindow(WindowOf(*box));
    SendMessageW(Window(), afterParent, 0, 0);
    SendMessageW(WindowOf(*box), afterParent, 0, 0);
    EXPECT_EQ(Hosted().Size().cx, 300) << "pixels are the container's";
    EXPECT_EQ(Surface().Width(), win32::ToTwips(300, form_.PixelsPerInch().x));
    EXPECT_EQ(Surface().TextHeight(u"x"), height);
    EXPECT_TRUE(GetUpdateRect(Window(), nullptr, FALSE)) << "drawn again";
    EXPECT_TRUE(GetUpdateRect(WindowOf(*box), nullptr, FALSE));
}

}  // namespace
}  // namespace lumenkit::testing
