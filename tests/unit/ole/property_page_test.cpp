#include <cstring>
#include <string>

#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

class PageSite final : public container::Counted<IPropertyPageSite> {
 public:
    PageSite() : Counted(IID_IPropertyPageSite) {}

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override {
        status |= flags;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* /*locale*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** /*container*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* /*message*/) override { return S_FALSE; }

    DWORD status = 0;
};

class PropertyPageTest : public OleTest {
 protected:
    ComPtr<IPropertyPage2> page_ = Create<IPropertyPage2>(u"VLabelCaption");
    ComPtr<IDispatch> label_ = Create<IDispatch>(u"VLabel");
    PageSite site_;
    container::Form form_;

    void Show() {
        EXPECT_EQ(page_->SetPageSite(&site_), S_OK);
        IUnknown* object = label_.Get();
        EXPECT_EQ(page_->SetObjects(1, &object), S_OK);
        const RECT place = {0, 0, 480, 372};
        EXPECT_EQ(page_->Activate(form_.Window(), &place, FALSE), S_OK);
        EXPECT_EQ(page_->Show(SW_SHOW), S_OK);
    }
    // Returns the identifier of a property of the label.
    DISPID IdentifierOf(std::wstring property) const {
        LPOLESTR name = property.data();
        DISPID identifier = DISPID_UNKNOWN;
        EXPECT_EQ(label_->GetIDsOfNames(IID_NULL, &name, 1, 0, &identifier), S_OK);
        return identifier;
    }
    // Returns the page's first text box, which holds the caption.
    HWND CaptionBox() const {
        const HWND page = GetWindow(form_.Window(), GW_CHILD);
        return FindWindowExW(page, nullptr, L"Edit", nullptr);
    }
    void TearDown() override {
        page_->SetObjects(0, nullptr);
        page_->SetPageSite(nullptr);
        EXPECT_EQ(site_.References(), 0U);
        page_.Reset();
        label_.Reset();
        OleTest::TearDown();
    }
};

TEST_F(PropertyPageTest, SaysWhatItIs) {
    PROPPAGEINFO information = {};
    information.cb = sizeof information;
    ASSERT_EQ(page_->GetPageInfo(&information), S_OK);
    EXPECT_STREQ(information.pszTitle, L"Caption");
    EXPECT_EQ(information.size.cx, 480);
    EXPECT_EQ(information.size.cy, 372);
    CoTaskMemFree(information.pszTitle);
    EXPECT_EQ(page_->GetPageInfo(nullptr), E_POINTER);
}

// As the platform's frame asks under Wine: with whatever lay on the stack.
TEST_F(PropertyPageTest, SaysWhatItIsInAStructureThatWasNeverFilled) {
    for (const ULONG size : {0UL, 7UL, 0xFFFFFFFFUL}) {
        PROPPAGEINFO information;
        std::memset(&information, 0xA5, sizeof information);
        information.cb = size;
        ASSERT_EQ(page_->GetPageInfo(&information), S_OK) << size;
        EXPECT_EQ(information.cb, sizeof information);
        EXPECT_STREQ(information.pszTitle, L"Caption");
        EXPECT_EQ(information.pszDocString, nullptr);
        EXPECT_EQ(information.pszHelpFile, nullptr);
        CoTaskMemFree(information.pszTitle);
    }
}

TEST_F(PropertyPageTest, EditsALabel) {
    Show();
    const HWND box = CaptionBox();
    ASSERT_NE(box, nullptr);
    std::array<wchar_t, 20> shown = {};
    GetWindowTextW(box, shown.data(), static_cast<int>(shown.size()));
    EXPECT_STREQ(shown.data(), L"VLabel");
    site_.status = 0;
    SendMessageW(box, WM_CHAR, 'x', 1);
    EXPECT_EQ(page_->IsPageDirty(), S_OK);
    EXPECT_NE(site_.status & PROPPAGESTATUS_DIRTY, 0U);
    EXPECT_EQ(ToText(Late(label_).Get(L"Caption")), u"VLabel");
    EXPECT_EQ(page_->Apply(), S_OK);
    EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
    EXPECT_EQ(ToText(Late(label_).Get(L"Caption")), u"xVLabel");
    EXPECT_EQ(page_->EditProperty(0), S_OK);
    EXPECT_EQ(page_->Show(SW_HIDE), S_OK);
    EXPECT_EQ(page_->Deactivate(), S_OK);
    EXPECT_EQ(page_->Deactivate(), E_UNEXPECTED);
}

TEST_F(PropertyPageTest, TabGoesThroughThePageAndOutOfIt) {
    Show();
    SetFocus(CaptionBox());
    MSG key = {};
    key.message = WM_KEYDOWN;
    key.wParam = VK_TAB;
    int stops = 0;
    for (HRESULT used = S_OK; used == S_OK && stops < 50; ++stops) {
        const HWND before = GetFocus();
        key.hwnd = before;
        used = page_->TranslateAccelerator(&key);
        EXPECT_EQ(used == S_OK, GetFocus() != before);
    }
    EXPECT_GT(stops, 1);
    EXPECT_LT(stops, 50);  // at the last stop, the key goes to the container
    key.wParam = VK_ESCAPE;
    EXPECT_EQ(page_->TranslateAccelerator(&key), S_FALSE);
}

TEST_F(PropertyPageTest, LeadsToTheFieldOfAProperty) {
    Show();
    struct Field {
        const wchar_t* property;
        const wchar_t* className;
        int index;
    };
    const HWND page = GetWindow(form_.Window(), GW_CHILD);
    for (const Field& field :
         {Field{L"BulletPrefix", L"Edit", 1}, Field{L"BulletIndent", L"Edit", 2},
          Field{L"WordWrap", L"Button", 1}, Field{L"Caption", L"Edit", 0}}) {
        HWND expected = nullptr;
        for (int index = 0; index <= field.index; ++index) {
            expected = FindWindowExW(page, expected, field.className, nullptr);
        }
        EXPECT_EQ(page_->EditProperty(IdentifierOf(field.property)), S_OK);
        EXPECT_EQ(GetFocus(), expected) << field.index;
    }
    const HWND focus = GetFocus();
    EXPECT_EQ(page_->EditProperty(IdentifierOf(L"BackColor")), E_INVALIDARG);
    EXPECT_EQ(page_->EditProperty(DISPID_UNKNOWN), E_INVALIDARG);
    EXPECT_EQ(GetFocus(), focus);
    EXPECT_EQ(page_->SetObjects(0, nullptr), S_OK);
    EXPECT_EQ(page_->EditProperty(0), E_UNEXPECTED);
}

TEST_F(PropertyPageTest, FailuresOfTheEditedControlGoToTheHost) {
    const ComPtr<IDispatch> memo = Create<IDispatch>(u"VMemo");
    IUnknown* object = memo.Get();
    // A memo has no caption.
    EXPECT_EQ(page_->SetObjects(1, &object), static_cast<HRESULT>(0x800A0000 + 438));
    EXPECT_EQ(page_->SetObjects(0, nullptr), S_OK);
    EXPECT_EQ(page_->Apply(), E_UNEXPECTED);
}

TEST_F(PropertyPageTest, RefusesBadCalls) {
    EXPECT_EQ(page_->Activate(nullptr, nullptr, FALSE), E_POINTER);
    const RECT place = {0, 0, 100, 100};
    EXPECT_EQ(page_->Activate(nullptr, &place, FALSE), E_INVALIDARG);
    EXPECT_EQ(page_->Show(SW_SHOW), E_UNEXPECTED);
    EXPECT_EQ(page_->Show(77), E_INVALIDARG);
    EXPECT_EQ(page_->Move(nullptr), E_POINTER);
    EXPECT_EQ(page_->Move(&place), E_UNEXPECTED);
    EXPECT_EQ(page_->TranslateAccelerator(nullptr), E_POINTER);
    EXPECT_EQ(page_->SetObjects(1, nullptr), E_POINTER);
    EXPECT_EQ(page_->EditProperty(0), E_UNEXPECTED);
    EXPECT_EQ(page_->Help(nullptr), E_NOTIMPL);
    EXPECT_EQ(page_->SetPageSite(&site_), S_OK);
    EXPECT_EQ(page_->SetPageSite(&site_), E_UNEXPECTED);
}

}  // namespace
}  // namespace lumenkit::ole
