// Controls in real windows of the platform's template library, used by keyboard and mouse.
#include <gmock/gmock.h>

#include "tests/ole/clients/support/atl_window.h"
#include "tests/ole/clients/support/event_sink.h"

namespace lumenkit::clients {

namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

HWND WindowOf(IDispatch& control) {
    ComPtr<IOleWindow> window;
    HWND handle = nullptr;
    EXPECT_EQ(control.QueryInterface(IID_PPV_ARGS(&window)), S_OK);
    EXPECT_EQ(window->GetWindow(&handle), S_OK);
    return handle;
}

SIZE SizeOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

// A window gets no mouse messages if it or a parent is disabled.
bool CanBeClicked(HWND window) {
    for (; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
        if (!IsWindowEnabled(window)) {
            return false;
        }
    }
    return true;
}

class AtlHost : public OleTest {};

TEST_F(AtlHost, EachControlGetsAWindowOfItsSize) {
    for (const wchar_t* name : {L"lumenkit.VLabel", L"lumenkit.VMemo", L"lumenkit.VOptList"}) {
        AtlWindow window(name);
        ComPtr<IDispatch> control = window.Control();
        ASSERT_NE(control, nullptr) << name;
        const HWND own = WindowOf(*control.Get());
        EXPECT_TRUE(IsChild(window.Host(), own));
        EXPECT_TRUE(IsWindowVisible(own));
        EXPECT_EQ(SizeOf(own).cx, 200);
        EXPECT_EQ(SizeOf(own).cy, 100);
        window.Resize(321, 123);
        EXPECT_EQ(SizeOf(own).cx, 321);
        EXPECT_EQ(SizeOf(own).cy, 123);
        window.Resize(1, 1);
        window.Resize(0, 0);
        window.Resize(400, 300);
        EXPECT_EQ(SizeOf(own).cx, 400);
        window.Close();
        // The closed control is not visible, but its properties can still be read.
        EXPECT_FALSE(IsWindow(own) && IsWindowVisible(own));
        EXPECT_EQ(TextOf(*control.Get(), L"Enabled"), L"True");
        control.Reset();
        EXPECT_FALSE(IsWindow(own));
    }
}

TEST_F(AtlHost, WhatIsTypedIsTheText) {
    AtlWindow window(L"lumenkit.VMemo");
    const ComPtr<IDispatch> memo = window.Control();
    const std::vector<HWND> edits = window.Visible(L"Edit");
    ASSERT_THAT(edits, SizeIs(1));
    EXPECT_EQ(SizeOf(edits[0]).cx, 200);
    ASSERT_EQ(Put(*memo.Get(), L"Text", Variant(L"")), S_OK);
    for (const wchar_t character : std::wstring(L"Hi, you")) {
        AtlWindow::Type(edits[0], character);
    }
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"Hi, you");
    AtlWindow::Type(edits[0], L'\b');
    AtlWindow::Type(edits[0], L'\r');
    AtlWindow::Type(edits[0], L'!');
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"Hi, yo\r\n!");
    ASSERT_EQ(Put(*memo.Get(), L"Locked", Variant(1L)), S_OK);
    AtlWindow::Type(edits[0], L'?');
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"Hi, yo\r\n!");
}

TEST_F(AtlHost, LimitsHoldForWhatIsTyped) {
    AtlWindow window(L"lumenkit.VMemo");
    const ComPtr<IDispatch> memo = window.Control();
    const HWND edit = window.Visible(L"Edit").at(0);
    ASSERT_EQ(Put(*memo.Get(), L"MaxCharsPerLine", Variant(3L)), S_OK);
    ASSERT_EQ(Put(*memo.Get(), L"MaxLines", Variant(2L)), S_OK);
    ASSERT_EQ(Put(*memo.Get(), L"Text", Variant(L"abc")), S_OK);
    SendMessageW(edit, EM_SETSEL, 3, 3);
    AtlWindow::Type(edit, L'd');
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"abc");
    AtlWindow::Type(edit, L' ');
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"abc");
    AtlWindow::Type(edit, L'\r');
    AtlWindow::Type(edit, L'd');
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"abc\r\nd");
    AtlWindow::Type(edit, L'\r');
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"abc\r\nd");
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 6U);
    EXPECT_EQ(end, 6U);
}

TEST_F(AtlHost, AnotherBoxShowsTheTextWhenTheScrollBarsChange) {
    AtlWindow window(L"lumenkit.VMemo");
    const ComPtr<IDispatch> memo = window.Control();
    AtlWindow::Type(window.Visible(L"Edit").at(0), L'x');
    ASSERT_EQ(Put(*memo.Get(), L"ScrollBars", Variant(3L)), S_OK);
    const std::vector<HWND> edits = window.Visible(L"Edit");
    ASSERT_THAT(edits, SizeIs(1));
    EXPECT_EQ(GetWindowLongW(edits[0], GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL),
              WS_HSCROLL | WS_VSCROLL);
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"xVMemo\r\n");
}

TEST_F(AtlHost, ClickedOptionsAreSelected) {
    AtlWindow window(L"lumenkit.VOptList");
    const ComPtr<IDispatch> list = window.Control();
    ASSERT_EQ(Put(*list.Get(), L"Contents", Variant(L"r;Red|g;Green|b;Blue")), S_OK);
    window.Resize(300, 200);
    std::vector<DISPID> events;
    EventSink sink(EventsOf(*list.Get()),
                   [&](DISPID event, DISPPARAMS&) { events.push_back(event); });
    const Connection connection(*list.Get(), sink);
    std::vector<HWND> options;
    for (const HWND button : window.Visible(L"Button")) {
        if ((GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) != BS_GROUPBOX) {
            options.push_back(button);
        }
    }
    ASSERT_THAT(options, SizeIs(3));
    EXPECT_TRUE(CanBeClicked(options[1]));
    SendMessageW(options[2], BM_CLICK, 0, 0);
    EXPECT_EQ(TextOf(*list.Get(), L"ListIndex"), L"2");
    SendMessageW(options[0], WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(options[0], WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(TextOf(*list.Get(), L"Value"), L"r");
    EXPECT_THAT(events, ElementsAre(1, 1));
    // This option is already selected.
    SendMessageW(options[0], BM_CLICK, 0, 0);
    EXPECT_EQ(TextOf(*list.Get(), L"ListIndex"), L"0");
    ASSERT_EQ(Put(*list.Get(), L"Enabled", Variant(0L)), S_OK);
    EXPECT_FALSE(CanBeClicked(options[1]));
}

TEST_F(AtlHost, AControlIsLoadedIntoItsWindow) {
    ComPtr<IStream> saved;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &saved), S_OK);
    {
        const ComPtr<IDispatch> memo = Create(L"lumenkit.VMemo");
        ComPtr<IPersistStreamInit> persisted;
        ASSERT_EQ(memo.As(&persisted), S_OK);
        ASSERT_EQ(Put(*memo.Get(), L"Text", Variant(L"as saved")), S_OK);
        ASSERT_EQ(Put(*memo.Get(), L"ScrollBars", Variant(2L)), S_OK);
        ASSERT_EQ(persisted->Save(saved.Get(), TRUE), S_OK);
        saved->Seek({}, STREAM_SEEK_SET, nullptr);
    }
    AtlWindow window(L"");
    ASSERT_EQ(window.CreateControl(L"lumenkit.VMemo", saved.Get()), S_OK);
    const ComPtr<IDispatch> memo = window.Control();
    ASSERT_NE(memo, nullptr);
    EXPECT_EQ(TextOf(*memo.Get(), L"Text"), L"as saved");
    const std::vector<HWND> edits = window.Visible(L"Edit");
    ASSERT_THAT(edits, SizeIs(1));
    EXPECT_NE(GetWindowLongW(edits[0], GWL_STYLE) & WS_VSCROLL, 0);
    AtlWindow empty(L"");
    EXPECT_NE(empty.CreateControl(L"lumenkit.Nothing", nullptr), S_OK);
}

TEST_F(AtlHost, TheMouseOverALabelIsReported) {
    AtlWindow window(L"lumenkit.VLabel");
    const ComPtr<IDispatch> label = window.Control();
    std::vector<DISPID> events;
    std::vector<float> places;
    EventSink sink(EventsOf(*label.Get()), [&](DISPID event, DISPPARAMS& arguments) {
        events.push_back(event);
        if (event == 3) {
            ASSERT_EQ(arguments.cArgs, 4U);
            ASSERT_EQ(arguments.rgvarg[0].vt, VT_R4 | VT_BYREF);
            places = {*arguments.rgvarg[1].pfltVal, *arguments.rgvarg[0].pfltVal};
            EXPECT_EQ(*arguments.rgvarg[3].piVal, 1);  // the left button
            EXPECT_EQ(*arguments.rgvarg[2].piVal, 1);  // Shift
        }
    });
    const Connection connection(*label.Get(), sink);
    const HWND own = WindowOf(*label.Get());
    const HeldKey shift(VK_SHIFT);
    SendMessageW(own, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(20, 10));
    SendMessageW(own, WM_LBUTTONUP, MK_SHIFT, MAKELPARAM(20, 10));
    EXPECT_THAT(events, ElementsAre(3, 5, 1));
    // A twip is 1/1440 inch.
    const HDC screen = GetDC(nullptr);
    EXPECT_THAT(places,
                ElementsAre(20.0F * 1440 / static_cast<float>(GetDeviceCaps(screen, LOGPIXELSX)),
                            10.0F * 1440 / static_cast<float>(GetDeviceCaps(screen, LOGPIXELSY))));
    ReleaseDC(nullptr, screen);
}

}  // namespace

}  // namespace lumenkit::clients
