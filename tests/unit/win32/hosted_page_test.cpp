// Property pages in windows, and a test of every class of the library.
#include "runtime/win32/hosted_page.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/property_bag.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/screen_font.h"
#include "runtime/win32/text_box.h"
#include "runtime/win32/window.h"
#include "tests/support/picture.h"
#include "tests/support/window_count.h"
#include "tests/support/windows_form.h"

namespace lumenkit::testing {
namespace {

constexpr SIZE labelSize = {200, 100};

class Site final : public host::PropertyPageSite {
 public:
    bool Changed() const override { return changed_; }
    void SetChanged(bool changed) override { changed_ = changed; }

 private:
    bool changed_ = false;
};

class Selected final : public host::SelectedControls {
 public:
    explicit Selected(Object& control) : control_(ObjectRef(), &control) {}
    std::int16_t Count() const override { return 1; }
    ObjectRef Item(std::int16_t /*index*/) override { return control_; }

 private:
    ObjectRef control_;
};

const ClassDescriptor& Class(TextView name) {
    return *lumenkitClasses.Find(Text(u"lumenkit.") + Text(name));
}

class HostedPageTest : public ::testing::Test {
 protected:
    HostedPageTest() {
        label_.Start();
        label_.Hosted().Automation().Let(u"Caption", Text(u"|B:1|the label's"));
    }

    std::unique_ptr<win32::HostedPage> NewPage() {
        return std::make_unique<win32::HostedPage>(form_.Context(), Class(u"VLabelCaption"), site_,
                                                   selected_);
    }
    static HWND Child(HWND parent, const wchar_t* className, int index = 0) {
        HWND found = nullptr;
        for (; index >= 0; --index) {
            found = FindWindowExW(parent, found, className, nullptr);
        }
        return found;
    }

    WindowsForm form_{lumenkitClasses};
    FormControl label_{form_, Class(u"VLabel"), labelSize};
    Site site_;
    Selected selected_{label_.Hosted().Automation()};
};

TEST_F(HostedPageTest, ComposedTextIsHeldToTheFields) {
    const auto page = NewPage();
    page->GetPage().PropertyPage_SelectionChanged();
    const auto box = [&](int index) -> win32::TextBox& {
        return dynamic_cast<win32::TextBox&>(
            *win32::Window::Of(Child(page->Handle(), L"Edit", index)));
    };
    win32::TextBox& caption = box(0);
    win32::TextBox& indent = box(2);
    indent.SetSelection(0, -1);
    indent.EnterComposed(u"1\x3044\x32");
    EXPECT_EQ(indent.GetText(), u"12") << "digits only";
    caption.SetText(u"x y");
    caption.SetSelStart(1);
    caption.EnterComposed(u"\xEF");
    caption.EnterComposed(u"\"");
    EXPECT_EQ(caption.GetText(), u"x\xEF|Q| y");
    SendMessageW(caption.Handle(), EM_UNDO, 0, 0);
    EXPECT_EQ(caption.GetText(), u"x\xEF y") << "the shortcut is a step";
    SendMessageW(caption.Handle(), EM_UNDO, 0, 0);
    EXPECT_EQ(caption.GetText(), u"x y");
}

TEST_F(HostedPageTest, IsAsLargeAsItIsLaidOut) {
    const auto page = NewPage();
    const ClassDescriptor& type = Class(u"VLabelCaption");
    EXPECT_EQ(page->Size().cx, win32::ToPixels(type.pageWidth, form_.PixelsPerInch().x));
    EXPECT_EQ(page->Size().cy, win32::ToPixels(type.pageHeight, form_.PixelsPerInch().y));
}

TEST_F(HostedPageTest, ComesHiddenAndGoes) {
    const auto page = NewPage();
    page->Attach(form_.Window(), {5, 6, 205, 306});
    EXPECT_EQ(GetParent(page->Handle()), form_.Window());
    EXPECT_EQ(IsWindowVisible(page->Handle()), FALSE);
    page->SetVisible(true);
    EXPECT_NE(IsWindowVisible(page->Handle()), FALSE);
    page->Place({0, 0, 33, 44});
    RECT place = {};
    GetWindowRect(page->Handle(), &place);
    EXPECT_EQ(place.right - place.left, 33);
    page->Detach();
    EXPECT_EQ(IsWindowVisible(page->Handle()), FALSE);
    EXPECT_NE(GetParent(page->Handle()), form_.Window());
    page->SetVisible(true);
    EXPECT_EQ(IsWindowVisible(page->Handle()), FALSE);
}

TEST_F(HostedPageTest, EditsTheSelectedControl) {
    const auto page = NewPage();
    page->GetPage().PropertyPage_SelectionChanged();
    page->Attach(form_.Window(), {0, 0, page->Size().cx, page->Size().cy});
    page->SetVisible(true);
    const HWND box = Child(page->Handle(), L"EDIT");
    wchar_t text[100] = L"";
    GetWindowTextW(box, text, 100);
    EXPECT_STREQ(text, L"|B:1|the label's");
    site_.SetChanged(false);
    SetFocus(box);
    SendMessageW(box, EM_SETSEL, 0, -1);
    SendMessageW(box, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"typed"));
    EXPECT_TRUE(site_.Changed());
    page->GetPage().PropertyPage_ApplyChanges();
    EXPECT_EQ(label_.Hosted().Automation().Get(u"Caption"), Value(Text(u"typed")));
}

TEST_F(HostedPageTest, TabGoesThroughThePageAndThenOn) {
    const auto page = NewPage();
    page->Attach(form_.Window(), {0, 0, page->Size().cx, page->Size().cy});
    page->SetVisible(true);
    const auto tab = [&] {
        MSG message = {};
        message.hwnd = GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = VK_TAB;
        return page->TranslateKey(message);
    };
    SetFocus(Child(page->Handle(), L"EDIT"));
    int stops = 1;
    for (; tab(); ++stops) {
        ASSERT_LT(stops, 20);
    }
    EXPECT_EQ(stops, 7) << "three boxes, a check box, a button and two scroll bars";
    MSG escape = {};
    escape.hwnd = GetFocus();
    escape.message = WM_KEYDOWN;
    escape.wParam = VK_ESCAPE;
    EXPECT_FALSE(page->TranslateKey(escape));
}

std::wstring ShownBy(HWND window) {
    std::array<wchar_t, 40> text = {};
    GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
    return text.data();
}

TEST_F(HostedPageTest, TheMagnifierShowsEveryCharacter) {
    const auto page = NewPage();
    label_.Hosted().Automation().Let(u"Caption", Text(u"&a&&\r\n\tb"));
    page->GetPage().PropertyPage_SelectionChanged();
    page->Attach(form_.Window(), {0, 0, page->Size().cx, page->Size().cy});
    page->SetVisible(true);
    const HWND box = Child(page->Handle(), L"EDIT");
    SetFocus(box);
    const auto select = [&](int start, int end) {
        SendMessageW(box, EM_SETSEL, static_cast<WPARAM>(start), end);
        SendMessageW(box, WM_KEYUP, VK_SHIFT, static_cast<LPARAM>(0xC0000001));
    };
    select(4, 4);
    // The labels in order: two of the page, and the four of the magnifier.
    EXPECT_EQ(ShownBy(Child(page->Handle(), L"STATIC", 2)), L"&a&&");
    EXPECT_EQ(ShownBy(Child(page->Handle(), L"STATIC", 3)), L"\u00B6");
    EXPECT_EQ(ShownBy(Child(page->Handle(), L"STATIC", 5)), L"\u00AC\u00BBb");
    select(2, 6);
    EXPECT_EQ(ShownBy(Child(page->Handle(), L"STATIC", 4)), L"&&\u00B6\u00AC");
}

TEST_F(HostedPageTest, AccessKeysLeadToTheFields) {
    const auto page = NewPage();
    page->Attach(form_.Window(), {0, 0, page->Size().cx, page->Size().cy});
    page->SetVisible(true);
    SetFocus(Child(page->Handle(), L"EDIT"));
    const auto press = [&](wchar_t unit) {
        MSG message = {};
        message.hwnd = GetFocus();
        message.message = WM_SYSCHAR;
        message.wParam = unit;
        EXPECT_TRUE(page->TranslateKey(message)) << static_cast<char>(unit);
        return GetFocus();
    };
    EXPECT_EQ(press(L'p'), Child(page->Handle(), L"EDIT", 1));
    EXPECT_EQ(press(L'i'), Child(page->Handle(), L"EDIT", 2));
    EXPECT_EQ(press(L't'), Child(page->Handle(), L"EDIT", 0));
    EXPECT_EQ(press(L'w'), FindWindowExW(page->Handle(), nullptr, L"BUTTON", L"&Word Wrap"));
    EXPECT_EQ(SendMessageW(GetFocus(), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(press(L'k'), FindWindowExW(page->Handle(), nullptr, L"BUTTON", L"&Keys Help"));
    EXPECT_EQ(form_.GetLog().Messages().size(), 1U);
}

TEST_F(HostedPageTest, GivesTheFocusToAPartByItsName) {
    const auto page = NewPage();
    page->Attach(form_.Window(), {0, 0, page->Size().cx, page->Size().cy});
    page->SetVisible(true);
    EXPECT_TRUE(page->FocusOn(u"txtBulletIndent"));
    EXPECT_EQ(GetFocus(), Child(page->Handle(), L"EDIT", 2));
    EXPECT_FALSE(page->FocusOn(u"txtNone"));
    EXPECT_EQ(GetFocus(), Child(page->Handle(), L"EDIT", 2));
}

RECT PlaceIn(HWND parent, HWND child) {
    RECT place = {};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

RECT Moved(RECT place, const RECT& edges) {
    return {place.left + edges.left, place.top + edges.top, place.right + edges.right,
            place.bottom + edges.bottom};
}

TEST_F(HostedPageTest, ALargerPageGivesTheCaptionBoxMoreRoom) {
    const auto page = NewPage();
    const SIZE size = page->Size();
    page->Attach(form_.Window(), {0, 0, size.cx, size.cy});
    struct Part {
        HWND window;
        RECT edges;
        RECT before;
    };
    const HWND whole = page->Handle();
    std::vector<Part> parts = {
        {Child(whole, L"STATIC", 0), {0, 0, 0, 0}, {}},
        {Child(whole, L"EDIT", 0), {0, 0, 100, 60}, {}},
        {Child(whole, L"STATIC", 1), {0, 60, 100, 60}, {}},
        {FindWindowExW(whole, nullptr, L"BUTTON", L"&Keys Help"), {100, 60, 100, 60}, {}},
        {Child(whole, L"STATIC", 5), {0, 60, 0, 60}, {}},
        {Child(whole, L"EDIT", 2), {0, 60, 0, 60}, {}},
        {Child(whole, L"lumenkitWindow"), {0, 60, 0, 60}, {}},
    };
    for (Part& part : parts) {
        ASSERT_NE(part.window, nullptr);
        part.before = PlaceIn(whole, part.window);
    }
    page->Place({0, 0, size.cx + 100, size.cy + 60});
    for (const Part& part : parts) {
        const RECT now = PlaceIn(whole, part.window);
        const RECT expected = Moved(part.before, part.edges);
        EXPECT_TRUE(EqualRect(&now, &expected)) << &part - parts.data();
    }
    page->Place({0, 0, size.cx - 50, size.cy - 50});
    for (const Part& part : parts) {
        const RECT now = PlaceIn(whole, part.window);
        EXPECT_TRUE(EqualRect(&now, &part.before)) << &part - parts.data();
    }
}

TEST_F(HostedPageTest, TheWheelOverThePreviewScrollsIt) {
    const auto page = NewPage();
    label_.MoveTo({0, 0, 600, 400});
    page->GetPage().PropertyPage_SelectionChanged();
    page->Attach(form_.Window(), {0, 0, page->Size().cx, page->Size().cy});
    page->SetVisible(true);
    const HWND viewport = Child(page->Handle(), L"lumenkitWindow");
    const HWND preview = Child(viewport, L"lumenkitWindow");
    ASSERT_NE(preview, nullptr);
    const RECT before = PlaceIn(viewport, preview);
    SendMessageW(preview, WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
    EXPECT_LT(PlaceIn(viewport, preview).top, before.top);
    EXPECT_EQ(PlaceIn(viewport, preview).left, before.left);
    SendMessageW(preview, WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -120), 0);
    EXPECT_LT(PlaceIn(viewport, preview).left, before.left);
}

TEST_F(HostedPageTest, OutlivesItsWindow) {
    const auto page = NewPage();
    page->Attach(form_.Window(), {0, 0, 100, 100});
    DestroyWindow(page->Handle());
    EXPECT_EQ(page->Handle(), nullptr);
    page->SetVisible(true);
    page->Place({0, 0, 5, 5});
    page->Attach(form_.Window(), {0, 0, 5, 5});
    page->Detach();
    MSG message = {};
    EXPECT_FALSE(page->TranslateKey(message));
    try {
        page->GetPage().PropertyPage_SelectionChanged();
    } catch (const RuntimeError&) {
        // The host of a page shows the errors of the page.
    }
}

BOOL CALLBACK Count(HWND /*child*/, LPARAM counted) {
    ++*reinterpret_cast<int*>(counted);
    return TRUE;
}

int ChildrenOf(HWND window) {
    int count = 0;
    EnumChildWindows(window, &Count, reinterpret_cast<LPARAM>(&count));
    return count;
}

TEST_F(HostedPageTest, LeavesAContainerWhoseWindowIsDestroyedWithItsPreview) {
    const auto page = NewPage();
    const int children = ChildrenOf(page->Handle());
    const HWND frame = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200,
                                       nullptr, nullptr, nullptr, nullptr);
    page->Attach(frame, {0, 0, 100, 100});
    page->SetVisible(true);
    DestroyWindow(frame);
    ASSERT_NE(page->Handle(), nullptr);
    EXPECT_FALSE(page->IsAttached());
    EXPECT_EQ(ChildrenOf(page->Handle()), children);
    page->Attach(form_.Window(), {0, 0, 100, 100});
    page->SetVisible(true);
    EXPECT_TRUE(IsWindowVisible(page->Handle()));
}

TEST_F(HostedPageTest, RefusesWhatIsNoPage) {
    EXPECT_THROW(win32::HostedPage(form_.Context(), Class(u"VMemo"), site_, selected_),
                 RuntimeError);
}

// Whether the control draws anything other than its background.
bool ShowsSomething(win32::HostedControl& control) {
    Picture picture(labelSize.cx, labelSize.cy);
    control.DrawOn(picture.Device(), {0, 0, labelSize.cx, labelSize.cy});
    const COLORREF background = picture.At(labelSize.cx - 30, labelSize.cy - 30);
    return picture.Count(background) < labelSize.cx * labelSize.cy;
}

class Products : public HostedPageTest, public ::testing::WithParamInterface<const char16_t*> {};
INSTANTIATE_TEST_SUITE_P(Controls, Products, ::testing::Values(u"VLabel", u"VMemo", u"VOptList"));

TEST_P(Products, AreShownSavedAndShownAgain) {
    FormControl control(form_, Class(GetParam()), labelSize);
    control.Start();
    EXPECT_TRUE(ShowsSomething(control.Hosted()));
    memory::PropertyBag bag;
    control.Hosted().Save(bag);
    FormControl again(form_, Class(GetParam()), labelSize);
    again.Start(&bag);
    EXPECT_TRUE(ShowsSomething(again.Hosted()));
    again.Hosted().Detach();
    EXPECT_TRUE(ShowsSomething(again.Hosted())) << "while it is parked too";
    DestroyWindow(control.Hosted().Handle());
    control.Hosted().Save(bag);
    EXPECT_TRUE(form_.GetLog().Messages().empty());
}

TEST_P(Products, LeaveNothingBehind) {
    const int windows = WindowCount();
    const int fonts = win32::ScreenFont::Count();
    for (int round = 0; round < 250; ++round) {
        FormControl control(form_, Class(GetParam()), labelSize);
        control.Start();
        control.Hosted().Focus();
        UpdateWindow(control.Hosted().Handle());
    }
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_LE(win32::ScreenFont::Count(), fonts + 10) << "some are kept for the next";
}

TEST_F(HostedPageTest, LeavesNothingBehind) {
    const int windows = WindowCount();
    for (int round = 0; round < 100; ++round) {
        const auto page = NewPage();
        page->Attach(form_.Window(), {0, 0, 400, 300});
        page->GetPage().PropertyPage_SelectionChanged();
        page->SetVisible(true);
    }
    EXPECT_EQ(WindowCount(), windows);
}

}  // namespace
}  // namespace lumenkit::testing
