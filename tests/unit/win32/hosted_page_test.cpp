// Property pages in windows, and a test of every class of the library.
#include "runtime/win32/hosted_page.h"

#include <memory>

#include <gtest/gtest.h>

#include "frame/runtime_error.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/property_bag.h"
#include "runtime/win32/drawable.h"
#include "runtime/win32/screen_font.h"
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

int ChildrenOf(HWND window) {
    int count = 0;
    EnumChildWindows(
        window,
        [](HWND /*child*/, LPARAM counted) -> BOOL {
            ++*reinterpret_cast<int*>(counted);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
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
