#include <array>
#include <functional>
#include <memory>
#include <utility>

#include "frame/host/simple_constituents.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/pixels.h"
#include "tests/support/window_count.h"
#include "tests/unit/win32/parts_form.h"

namespace lumenkit::win32 {
namespace {

class Receiver final : public host::ClickEvents, public host::ScrollBarEvents {
 public:
    void Click() override { Note(clicks); }
    void Change() override { Note(changes); }
    int clicks = 0;
    int changes = 0;
    std::function<void()> onEvent;

 private:
    void Note(int& counter) {
        ++counter;
        if (onEvent) {
            const auto handler = onEvent;
            handler();
        }
    }
};

class SimplePartsTest : public PartsTest {
 protected:
    std::unique_ptr<host::ScrollBar> Bar(host::Orientation orientation) {
        auto bar = Parts().AddScrollBar(
            {.name = u"S", .placement = {.width = 3000, .height = 3000}}, orientation, receiver_);
        bar->SetMax(100);
        bar->SetLargeChange(20);
        bar->SetSmallChange(3);
        return bar;
    }
    std::unique_ptr<host::Label> NewLabel(TextView caption) {
        return Parts().AddLabel(
            {{.name = u"L", .placement = {.width = 600, .height = 300}}, caption});
    }
    static SCROLLINFO InfoOf(HWND bar) {
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        GetScrollInfo(bar, SB_CTL, &info);
        return info;
    }

    Receiver receiver_;
};

// ---- Places

TEST_F(SimplePartsTest, PlacesAreKeptAsSetAndEdgesRounded) {
    const auto label = NewLabel(u"x");
    const host::Placement odd = {.left = 22.5F, .top = 7.4F, .width = 100.1F, .height = 52.5F};
    label->Move(odd);
    EXPECT_EQ(label->Place(), odd);
    RECT place = {};
    GetWindowRect(WindowOf(*label), &place);
    MapWindowPoints(nullptr, panel_->Handle(), reinterpret_cast<POINT*>(&place), 2);
    const RECT expected = ToPixels(odd, form_.PixelsPerInch());
    EXPECT_TRUE(EqualRect(&place, &expected));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { label->Move({.width = -1}); }));
    EXPECT_TRUE(Raises(ErrorNumber::InvalidPropertyValue, [&] { label->Move({.height = -1}); }));
    EXPECT_EQ(label->Place(), odd);
}

TEST_F(SimplePartsTest, TheOneMadeFirstIsInFrontAndComesFirst) {
    const auto first = NewLabel(u"first");
    const auto second = NewLabel(u"second");
    EXPECT_EQ(GetWindow(WindowOf(*first), GW_HWNDNEXT), WindowOf(*second));
    second->Move({.left = 30, .top = 30, .width = 900, .height = 900});
    second->SetVisible(false);
    second->SetVisible(true);
    EXPECT_EQ(GetWindow(WindowOf(*first), GW_HWNDNEXT), WindowOf(*second));
    EXPECT_NE(GetWindowLongW(WindowOf(*first), GWL_STYLE) & WS_CLIPSIBLINGS, 0);
}

TEST_F(SimplePartsTest, VisibilityIsItsOwn) {
    const auto frame = Parts().AddFrame({{.name = u"F"}, u""});
    const auto label = Parts().AddLabel({{.name = u"L", .parent = frame.get()}, u""});
    frame->SetVisible(false);
    EXPECT_TRUE(label->Visible());
    EXPECT_FALSE(IsWindowVisible(WindowOf(*label)));
    ShowWindow(panel_->Handle(), SW_HIDE);
    frame->SetVisible(true);
    EXPECT_TRUE(frame->Visible());
}

TEST_F(SimplePartsTest, ParentsMustBeOfThisRuntime) {
    class Foreign final : public host::Constituent {
     public:
        host::Placement Place() const override { return {}; }
        void Move(const host::Placement& /*placement*/) override {}
        bool Visible() const override { return true; }
        void SetVisible(bool /*visible*/) override {}
        bool Enabled() const override { return true; }
        void SetEnabled(bool /*enabled*/) override {}
        void Refresh() override {}
    };
    Foreign foreign;
    EXPECT_THROW(Parts().AddLabel({{.name = u"L", .parent = &foreign}, u""}), std::logic_error);
}

TEST_F(SimplePartsTest, MayBeDestroyedInAnyOrder) {
    const int before = testing::WindowCount();
    auto picture = Parts().AddPictureBox({.name = u"P"});
    auto frame = Parts().AddFrame({{.name = u"F", .parent = picture.get()}, u"f"});
    auto button =
        Parts().AddCommandButton({{.name = u"B", .parent = frame.get()}, u"b"}, receiver_);
    picture.reset();
    frame.reset();
    button->SetCaption(u"still here");
    EXPECT_EQ(button->Caption(), u"still here");
    button->Refresh();
    button.reset();
    auto label = NewLabel(u"l");
    panel_.reset();
    label->SetAutoSize(true);
    label->SetCaption(u"no window");
    label.reset();
    EXPECT_EQ(testing::WindowCount(), before - 1);
}

// ---- Labels

TEST_F(SimplePartsTest, ALabelTakesTheSizeOfItsCaption) {
    const auto label = NewLabel(u"wide");
    label->SetAutoSize(true);
    const host::Placement one = label->Place();
    label->SetCaption(u"wide\r\nwide");
    EXPECT_EQ(label->Place().width, one.width);
    EXPECT_EQ(label->Place().height, 2 * one.height);
    label->SetCaption(u"");
    EXPECT_EQ(label->Place().width, 0);
    EXPECT_EQ(label->Place().height, one.height);
    label->SetCaption(u"wide");
    label->CurrentFont()->SetSize(30);
    EXPECT_GT(label->Place().width, 2 * one.width);
    RECT inside = {};
    GetClientRect(WindowOf(*label), &inside);
    EXPECT_EQ(ToTwips(static_cast<int>(inside.right), form_.PixelsPerInch().x),
              label->Place().width);
    label->SetAutoSize(false);
    label->Move({.width = 15, .height = 15});
    label->SetCaption(u"still narrow");
    EXPECT_EQ(label->Place().width, 15);
}

TEST_F(SimplePartsTest, ALabelHasItsOwnColours) {
    const auto label = NewLabel(u"x");
    label->SetForeColor(Rgb(1, 2, 3));
    label->SetBackColor(Rgb(4, 5, 6));
    const HDC device = GetDC(WindowOf(*label));
    const LRESULT brush =
        SendMessageW(panel_->Handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(device),
                     reinterpret_cast<LPARAM>(WindowOf(*label)));
    EXPECT_EQ(GetTextColor(device), RGB(1, 2, 3));
    EXPECT_EQ(GetBkColor(device), RGB(4, 5, 6));
    EXPECT_EQ(GetDCBrushColor(device), RGB(4, 5, 6));
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(brush), GetStockObject(DC_BRUSH));
    ReleaseDC(WindowOf(*label), device);
    EXPECT_NE(SendMessageW(WindowOf(*label), WM_GETDLGCODE, 0, 0) & DLGC_STATIC, 0)
        << "its mnemonic belongs to what follows";
}

TEST_F(SimplePartsTest, ALabelWithoutAMnemonicShowsItsTextAsItStands) {
    host::CaptionDesign design = {{.name = u"L", .placement = {.width = 600, .height = 300}},
                                  u"&a\r\n\tb"};
    design.useMnemonic = false;
    const auto label = Parts().AddLabel(design);
    const auto shown = [&] {
        std::array<wchar_t, 20> text = {};
        GetWindowTextW(WindowOf(*label), text.data(), static_cast<int>(text.size()));
        return std::wstring(text.data());
    };
    EXPECT_EQ(shown(), L"&a\u00B6\u00AC\u00BBb") << "also the designed text";
    label->SetAutoSize(true);
    const host::Placement one = label->Place();
    label->SetCaption(u"&&a\r\n\tb");
    EXPECT_EQ(label->Caption(), u"&&a\r\n\tb");
    EXPECT_EQ(shown(), L"&&a\u00B6\u00AC\u00BBb");
    EXPECT_GT(label->Place().width, one.width) << "each ampersand is shown";
    EXPECT_EQ(label->Place().height, one.height);
    const auto style = static_cast<DWORD>(GetWindowLongW(WindowOf(*label), GWL_STYLE));
    EXPECT_NE(style & SS_NOPREFIX, 0U);
    EXPECT_EQ(MnemonicsInside(panel_->Handle()), L"");
}

TEST_F(SimplePartsTest, AnAccessKeyIsUnderlinedAndTheCaptionStays) {
    host::CaptionDesign design = {{.name = u"P", .placement = {.width = 600, .height = 300}},
                                  u"One & more"};
    design.accessKey = u'M';
    const auto label = Parts().AddLabel(design);
    const auto box = Parts().AddCheckBox(design, receiver_);
    const auto button = Parts().AddCommandButton(design, receiver_);
    const auto frame = Parts().AddFrame(design);
    for (const HWND window :
         {WindowOf(*label), WindowOf(*box), WindowOf(*button), WindowOf(*frame)}) {
        std::array<wchar_t, 20> text = {};
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
        EXPECT_STREQ(text.data(), L"One && &more");
    }
    EXPECT_EQ(label->Caption(), u"One & more");
    EXPECT_EQ(button->Caption(), u"One & more");
    label->SetCaption(u"Moon");
    EXPECT_EQ(MnemonicsInside(panel_->Handle()), L"m");
    EXPECT_TRUE(UseMnemonicInside(panel_->Handle(), L'm'));
    EXPECT_EQ(GetFocus(), WindowOf(*box));
}

// The platform repaints only what a growing window did not show before.
TEST_F(SimplePartsTest, ALabelThatGrowsIsRepaintedAsAWhole) {
    const auto label = NewLabel(u"a b");
    label->SetAutoSize(true);
    const HWND window = WindowOf(*label);
    for (const bool byCaption : {true, false}) {
        ValidateRect(window, nullptr);
        if (byCaption) {
            label->SetCaption(u"a longer text in many words");
        } else {
            const host::Placement place = label->Place();
            label->Move({place.left, place.top, place.width + 150, place.height + 150});
        }
        RECT inside = {};
        GetClientRect(window, &inside);
        RECT stale = {};
        GetUpdateRect(window, &stale, FALSE);
        EXPECT_TRUE(EqualRect(&stale, &inside)) << stale.left << " " << stale.right;
    }
}

// ---- Buttons

TEST_F(SimplePartsTest, ACommandButtonIsPressedByMouseKeysAndPrograms) {
    const auto button = Parts().AddCommandButton(
        {{.name = u"B", .placement = {.width = 900, .height = 300}}, u"&Press"}, receiver_);
    ClickAt(WindowOf(*button), {5, 5});
    EXPECT_EQ(receiver_.clicks, 1);
    PressButton(WindowOf(*button), {5, 5});
    LiftButton(WindowOf(*button), {-50, 5});
    EXPECT_EQ(receiver_.clicks, 1);
    SetFocus(WindowOf(*button));
    Strike(WindowOf(*button), VK_SPACE, u' ');
    EXPECT_EQ(receiver_.clicks, 2);
    Strike(WindowOf(*button), VK_RETURN, u'\r');
    EXPECT_EQ(receiver_.clicks, 3);
    SendMessageW(WindowOf(*button), BM_CLICK, 0, 0);
    EXPECT_EQ(receiver_.clicks, 4);
}

TEST_F(SimplePartsTest, ACheckBoxShowsItsState) {
    const auto box = Parts().AddCheckBox(
        {{.name = u"C", .placement = {.width = 900, .height = 300}}, u"c"}, receiver_);
    const auto shown = [&] { return SendMessageW(WindowOf(*box), BM_GETCHECK, 0, 0); };
    box->SetCheckState(2);
    EXPECT_EQ(shown(), BST_INDETERMINATE);
    ClickAt(WindowOf(*box), {5, 5});
    EXPECT_EQ(box->CheckState(), 0) << "a greyed box is cleared";
    EXPECT_EQ(shown(), BST_UNCHECKED);
    SetFocus(WindowOf(*box));
    Strike(WindowOf(*box), VK_SPACE, u' ');
    EXPECT_EQ(shown(), BST_CHECKED);
    EXPECT_EQ(receiver_.clicks, 3);
}

TEST_F(SimplePartsTest, ButtonsMayBeDestroyedByTheirClick) {
    for (const bool check : {true, false}) {
        std::unique_ptr<host::Constituent> part;
        if (check) {
            part = Parts().AddCheckBox({{.name = u"C", .placement = {.width = 900, .height = 300}}},
                                       receiver_);
        } else {
            part = Parts().AddCommandButton(
                {{.name = u"C", .placement = {.width = 900, .height = 300}}}, receiver_);
        }
        const HWND window = WindowOf(*part);
        receiver_.onEvent = [&] { part.reset(); };
        ClickAt(window, {5, 5});
        EXPECT_EQ(part, nullptr);
        Pump();
        EXPECT_FALSE(IsWindow(window));
    }
}

// ---- Picture box

TEST_F(SimplePartsTest, APictureBoxHasABorderOfTwoPixels) {
    const auto box =
        Parts().AddPictureBox({.name = u"P", .placement = {.width = 1500, .height = 900}});
    const Resolution resolution = form_.PixelsPerInch();
    EXPECT_EQ(box->ScaleWidth(), ToTwips(ToPixels(1500, resolution.x) - 4, resolution.x));
    EXPECT_EQ(box->ScaleHeight(), ToTwips(ToPixels(900, resolution.y) - 4, resolution.y));
    const auto inside = NewLabel(u"x");
    const auto label = Parts().AddLabel({{.name = u"L", .parent = box.get()}, u""});
    EXPECT_EQ(GetParent(WindowOf(*label)), WindowOf(*box));
}

TEST_F(SimplePartsTest, TheWheelOverAPictureBoxScrollsTheBarsInIt) {
    const auto box =
        Parts().AddPictureBox({.name = u"P", .placement = {.width = 3000, .height = 3000}});
    const auto bar = [&](host::Orientation orientation) {
        auto made = Parts().AddScrollBar(
            {.name = u"S", .parent = box.get(), .placement = {.width = 300, .height = 300}},
            orientation, receiver_);
        made->SetMax(1000);
        made->SetSmallChange(10);
        return made;
    };
    const auto across = bar(host::Orientation::Horizontal);
    const auto down = bar(host::Orientation::Vertical);
    const auto inside = Parts().AddLabel({{.name = u"L", .parent = box.get()}, u"x"});
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const auto notch = static_cast<std::int16_t>(10 * lines);
    using Values = std::pair<std::int16_t, std::int16_t>;
    const auto turn = [&](UINT message, int delta, WORD held = 0) {
        // Wine's windows do not pass WM_MOUSEHWHEEL on to their parents.
        const HWND window = message == WM_MOUSEWHEEL ? WindowOf(*inside) : WindowOf(*box);
        SendMessageW(window, message, MAKEWPARAM(held, delta), 0);
        return Values(across->ScrollValue(), down->ScrollValue());
    };
    EXPECT_EQ(turn(WM_MOUSEWHEEL, -120), Values(0, notch));
    EXPECT_EQ(turn(WM_MOUSEWHEEL, -120, MK_SHIFT), Values(notch, notch));
    EXPECT_EQ(turn(WM_MOUSEWHEEL, 120, MK_SHIFT), Values(0, notch));
    EXPECT_EQ(turn(WM_MOUSEHWHEEL, 120), Values(notch, notch));
    down->SetEnabled(false);
    across->SetVisible(false);
    EXPECT_EQ(turn(WM_MOUSEWHEEL, -120), Values(notch, notch));
    EXPECT_EQ(turn(WM_MOUSEHWHEEL, 120), Values(notch, notch));
}

// ---- Scroll bars

TEST_F(SimplePartsTest, AScrollBarScrollsByStepsPagesAndEnds) {
    for (const auto orientation : {host::Orientation::Horizontal, host::Orientation::Vertical}) {
        const auto bar = Bar(orientation);
        const bool vertical = orientation == host::Orientation::Vertical;
        const auto scroll = [&](int code, std::int16_t position = 0) {
            receiver_.changes = 0;
            SendMessageW(panel_->Handle(), vertical ? WM_VSCROLL : WM_HSCROLL,
                         MAKEWPARAM(code, position), reinterpret_cast<LPARAM>(WindowOf(*bar)));
            return std::pair(bar->ScrollValue(), receiver_.changes);
        };
        using Result = std::pair<std::int16_t, int>;
        EXPECT_EQ(scroll(SB_LINEUP), Result(0, 0));
        EXPECT_EQ(scroll(SB_LINEDOWN), Result(3, 1));
        EXPECT_EQ(scroll(SB_PAGEDOWN), Result(23, 1));
        EXPECT_EQ(scroll(SB_THUMBTRACK, 60), Result(60, 1));
        EXPECT_EQ(scroll(SB_THUMBPOSITION, 60), Result(60, 0));
        EXPECT_EQ(scroll(SB_ENDSCROLL), Result(60, 0));
        EXPECT_EQ(scroll(SB_BOTTOM), Result(100, 1));
        EXPECT_EQ(scroll(SB_PAGEDOWN), Result(100, 0));
        EXPECT_EQ(scroll(SB_PAGEUP), Result(80, 1));
        EXPECT_EQ(scroll(SB_TOP), Result(0, 1));
        EXPECT_EQ(InfoOf(WindowOf(*bar)).nPos, 0);
    }
}

TEST_F(SimplePartsTest, AScrollBarShowsRangeAndPage) {
    const auto bar = Bar(host::Orientation::Horizontal);
    bar->SetScrollValue(100);
    SCROLLINFO info = InfoOf(WindowOf(*bar));
    EXPECT_EQ(info.nMin, 0);
    EXPECT_EQ(info.nMax, 119);
    EXPECT_EQ(info.nPage, 20U);
    EXPECT_EQ(info.nPos, 100);
    bar->SetMax(32767);
    bar->SetLargeChange(32767);
    bar->SetScrollValue(32767);
    EXPECT_EQ(InfoOf(WindowOf(*bar)).nPos, 32767);
    bar->SetMax(0);
    EXPECT_EQ(bar->ScrollValue(), 0);
    EXPECT_TRUE(bar->Enabled());
    EXPECT_TRUE(IsWindowEnabled(WindowOf(*bar)));
    EXPECT_TRUE(IsWindowVisible(WindowOf(*bar)));
    bar->SetEnabled(false);
    bar->SetMax(10);
    EXPECT_FALSE(IsWindowEnabled(WindowOf(*bar)));
    bar->SetEnabled(true);
    EXPECT_TRUE(IsWindowEnabled(WindowOf(*bar)));
}

TEST_F(SimplePartsTest, AScrollBarTakesKeysAndTheWheel) {
    const auto bar = Bar(host::Orientation::Vertical);
    const HWND window = WindowOf(*bar);
    SetFocus(window);
    Strike(window, VK_DOWN);
    EXPECT_EQ(bar->ScrollValue(), 3);
    Strike(window, VK_NEXT);
    EXPECT_EQ(bar->ScrollValue(), 23);
    Strike(window, VK_END);
    EXPECT_EQ(bar->ScrollValue(), 100);
    Strike(window, VK_HOME);
    EXPECT_EQ(bar->ScrollValue(), 0);
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const auto notch = static_cast<std::int16_t>(3 * lines);
    const auto turn = [&](UINT message, int delta) {
        SendMessageW(window, message, MAKEWPARAM(0, delta), 0);
    };
    turn(WM_MOUSEWHEEL, -120);
    EXPECT_EQ(bar->ScrollValue(), notch);
    turn(WM_MOUSEWHEEL, 120);
    EXPECT_EQ(bar->ScrollValue(), 0);
    for (int i = 0; i < 4; ++i) {
        turn(WM_MOUSEWHEEL, -30);
    }
    EXPECT_EQ(bar->ScrollValue(), notch) << "parts of a notch add up";
    turn(WM_MOUSEHWHEEL, 120);
    EXPECT_EQ(bar->ScrollValue(), 2 * notch);
}

TEST_F(SimplePartsTest, AScrollBarMayBeDestroyedByItsChange) {
    auto bar = Bar(host::Orientation::Vertical);
    const HWND window = WindowOf(*bar);
    receiver_.onEvent = [&] { bar.reset(); };
    SetFocus(window);
    Strike(window, VK_DOWN);
    EXPECT_EQ(bar, nullptr);
    Pump();
    EXPECT_FALSE(IsWindow(window));
    bar = Bar(host::Orientation::Vertical);
    bar->SetScrollValue(5);
    EXPECT_EQ(bar, nullptr);
    bar = Bar(host::Orientation::Vertical);
    SendMessageW(WindowOf(*bar), WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
    EXPECT_EQ(bar, nullptr);
}

}  // namespace
}  // namespace lumenkit::win32
