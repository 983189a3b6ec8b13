// The caption page in the platform's property frame, and in a frame of this test that applies
// changes.
#include <algorithm>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
// The order matters.
// clang-format off
#include <windows.h>
#include <commctrl.h>
// clang-format on

#include "tests/ole/clients/support/boxes.h"
#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

namespace {

using ::testing::ElementsAre;

std::wstring TextIn(HWND window) {
    std::wstring text(256, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    if (lstrcmpiW(name, L"Edit") == 0) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

// Returns the page's text box that contains the text.
HWND EditWith(HWND page, const std::wstring& text) {
    std::vector<HWND> edits;
    EnumChildWindows(page, &Collect, reinterpret_cast<LPARAM>(&edits));
    const auto found = std::ranges::find_if(edits, [&](HWND edit) { return TextIn(edit) == text; });
    return found == edits.end() ? nullptr : *found;
}

struct Search {
    const wchar_t* text;
    HWND found;
};

BOOL CALLBACK FindText(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    std::wstring text = TextIn(window);
    std::erase(text, L'&');  // marks the access key
    if (text == search.text) {
        search.found = window;
    }
    return TRUE;
}

HWND ButtonWith(HWND page, const wchar_t* text) {
    Search search = {text, nullptr};
    EnumChildWindows(page, &FindText, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

BOOL CALLBACK FindSheet(HWND window, LPARAM found) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() && IsWindowVisible(window) &&
        FindWindowExW(window, nullptr, L"SysTabControl32", nullptr) != nullptr) {
        *reinterpret_cast<HWND*>(found) = window;
    }
    return TRUE;
}

ComPtr<IDispatch> NewLabel() {
    ComPtr<IDispatch> label = Create(L"lumenkit.VLabel");
    EXPECT_EQ(Put(*label.Get(), L"Caption", Variant(L"|B|to be edited")), S_OK);
    EXPECT_EQ(Put(*label.Get(), L"BulletPrefix", Variant(L"- ")), S_OK);
    EXPECT_EQ(Put(*label.Get(), L"BulletIndent", Variant(240L)), S_OK);
    return label;
}

// Returns the class of the page that the control specifies.
CLSID PageOf(IDispatch& label) {
    ComPtr<ISpecifyPropertyPages> specifies;
    CAUUID pages = {};
    CLSID page = {};
    EXPECT_EQ(label.QueryInterface(IID_PPV_ARGS(&specifies)), S_OK);
    EXPECT_EQ(specifies->GetPages(&pages), S_OK);
    EXPECT_EQ(pages.cElems, 1U);
    if (pages.cElems != 0) {
        page = pages.pElems[0];
    }
    CoTaskMemFree(pages.pElems);
    return page;
}

class PropertyFrame : public OleTest {};

TEST_F(PropertyFrame, ThePlatformsFrameShowsThePage) {
    const ComPtr<IDispatch> label = NewLabel();
    bool shown = false;
    bool edited = false;
    std::wstring title;
    std::thread person([&] {
        HWND sheet = nullptr;
        for (int waited = 0; sheet == nullptr && waited < 500; ++waited) {
            Sleep(20);
            EnumWindows(&FindSheet, reinterpret_cast<LPARAM>(&sheet));
        }
        Sleep(100);
        title = TextIn(sheet);
        const HWND caption = EditWith(sheet, L"|B|to be edited");
        shown = caption != nullptr && EditWith(sheet, L"- ") != nullptr &&
                EditWith(sheet, L"240") != nullptr && IsWindowVisible(caption) &&
                ButtonWith(sheet, L"Keys Help") != nullptr;
        if (caption != nullptr) {
            SendMessageW(caption, EM_SETSEL, 0, 0);
            SendMessageW(caption, WM_CHAR, L'>', 1);
            edited = TextIn(caption) == L">|B|to be edited";
        }
        PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    });
    IUnknown* object = label.Get();
    CLSID page = PageOf(*label.Get());
    EXPECT_EQ(OleCreatePropertyFrame(nullptr, 0, 0, L"a label", 1, &object, 1, &page,
                                     LOCALE_USER_DEFAULT, 0, nullptr),
              S_OK);
    person.join();
    EXPECT_TRUE(shown);
    EXPECT_TRUE(edited);
    EXPECT_THAT(title, ::testing::HasSubstr(L"a label"));
    // Nothing was applied.
    EXPECT_EQ(TextOf(*label.Get(), L"Caption"), L"|B|to be edited");
}

// The site that a frame gives its page.
class PageSite final : public IPropertyPageSite {
 public:
    virtual ~PageSite() { EXPECT_EQ(references_, 0); }
    std::vector<DWORD> changes;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IPropertyPageSite;
        *object = known ? this : nullptr;
        references_ += known ? 1 : 0;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }
    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override {
        changes.push_back(flags);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override {
        *locale = LOCALE_USER_DEFAULT;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }

 private:
    long references_ = 0;
};

class OwnFrame : public PropertyFrame {
 protected:
    void SetUp() override {
        const CLSID page = PageOf(*label_.Get());
        ASSERT_EQ(CoCreateInstance(page, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&page_)),
                  S_OK);
        ASSERT_EQ(page_->SetPageSite(&site_), S_OK);
        PROPPAGEINFO information = {};
        information.cb = sizeof information;
        ASSERT_EQ(page_->GetPageInfo(&information), S_OK);
        CoTaskMemFree(information.pszTitle);
        CoTaskMemFree(information.pszDocString);
        CoTaskMemFree(information.pszHelpFile);
        const RECT place = {0, 0, information.size.cx, information.size.cy};
        ASSERT_EQ(page_->Activate(window_, &place, FALSE), S_OK);
        IUnknown* objects[] = {label_.Get(), other_.Get()};
        ASSERT_EQ(page_->SetObjects(2, objects), S_OK);
        ASSERT_EQ(page_->Show(SW_SHOW), S_OK);
        site_.changes.clear();
    }
    void TearDown() override {
        EXPECT_EQ(page_->Show(SW_HIDE), S_OK);
        EXPECT_EQ(page_->SetObjects(0, nullptr), S_OK);
        EXPECT_EQ(page_->Deactivate(), S_OK);
        EXPECT_EQ(page_->SetPageSite(nullptr), S_OK);
        page_.Reset();
        DestroyWindow(window_);
    }
    void Write(const wchar_t* before, const wchar_t* now) {
        const HWND edit = EditWith(window_, before);
        ASSERT_NE(edit, nullptr) << before;
        SendMessageW(edit, EM_SETSEL, 0, -1);
        SendMessageW(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(now));
    }

    ComPtr<IDispatch> label_ = NewLabel();
    ComPtr<IDispatch> other_ = NewLabel();
    HWND window_ = CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640,
                                   480, nullptr, nullptr, nullptr, nullptr);
    PageSite site_;
    ComPtr<IPropertyPage> page_;
};

TEST_F(OwnFrame, WhatIsEditedIsApplied) {
    Write(L"|B|to be edited", L"edited|CR|now");
    EXPECT_FALSE(site_.changes.empty());
    EXPECT_EQ(page_->IsPageDirty(), S_OK);
    Write(L"- ", L"* ");
    Write(L"240", L"13.5");
    SendMessageW(ButtonWith(window_, L"Word Wrap"), BM_CLICK, 0, 0);
    EXPECT_EQ(TextOf(*label_.Get(), L"Caption"), L"|B|to be edited");
    ASSERT_EQ(page_->Apply(), S_OK);
    EXPECT_EQ(TextOf(*label_.Get(), L"Caption"), L"edited|CR|now");
    EXPECT_EQ(TextOf(*label_.Get(), L"BulletPrefix"), L"* ");
    EXPECT_EQ(TextOf(*label_.Get(), L"BulletIndent"), L"14");
    EXPECT_EQ(TextOf(*label_.Get(), L"WordWrap"), L"True");
    EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
    // Only the first selected control is written to.
    EXPECT_EQ(TextOf(*other_.Get(), L"Caption"), L"|B|to be edited");
}

TEST_F(OwnFrame, AnIllegalIndentIsRefused) {
    for (const wchar_t* indent : {L"", L"abc", L"10000", L"-1"}) {
        BoxCloser boxes;
        Write(TextOf(*label_.Get(), L"BulletIndent") == L"240" ? L"240" : L"", indent);
        Write(L"- ", L"~ ");
        EXPECT_EQ(page_->Apply(), E_FAIL);
        EXPECT_EQ(page_->IsPageDirty(), S_OK) << "it is still to be applied";
        EXPECT_THAT(boxes.Errors(), ElementsAre(L"lumenkit: Illegal indent. Must be 0 to 9999"));
        EXPECT_EQ(TextOf(*label_.Get(), L"BulletPrefix"), L"- ");
        EXPECT_EQ(TextOf(*label_.Get(), L"BulletIndent"), L"240");
        Write(L"~ ", L"- ");
        Write(indent, L"240");
    }
}

TEST_F(OwnFrame, TheLimitsOfTheIndentAreAccepted) {
    Write(L"240", L"9999");
    ASSERT_EQ(page_->Apply(), S_OK);
    EXPECT_EQ(TextOf(*label_.Get(), L"BulletIndent"), L"9999");
    Write(L"9999", L"0");
    ASSERT_EQ(page_->Apply(), S_OK);
    EXPECT_EQ(TextOf(*label_.Get(), L"BulletIndent"), L"0");
}

}  // namespace

}  // namespace lumenkit::clients
