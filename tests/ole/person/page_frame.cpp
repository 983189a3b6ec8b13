#include "tests/ole/person/page_frame.h"

#include <stdexcept>

namespace lumenkit::person {

namespace {

constexpr WORD applyButton = 1;
constexpr WORD closeButton = 2;
constexpr int margin = 8;
constexpr SIZE buttonSize = {80, 24};

void Require(HRESULT result) {
    if (FAILED(result)) {
        throw std::runtime_error("the page refuses");
    }
}

HWND AddButton(HWND parent, const wchar_t* caption, WORD identifier, POINT at) {
    HWND const button = CreateWindowExW(0, L"BUTTON", caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                        at.x, at.y, buttonSize.cx, buttonSize.cy, parent,
                                        reinterpret_cast<HMENU>(static_cast<ULONG_PTR>(identifier)),
                                        nullptr, nullptr);
    SendMessageW(button, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    return button;
}

}  // namespace

PageFrame::PageFrame(HWND owner, REFCLSID type, IUnknown& control) {
    Require(CoCreateInstance(type, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&page_)));
    Require(page_->SetPageSite(this));
    PROPPAGEINFO information = {};
    information.cb = sizeof information;
    Require(page_->GetPageInfo(&information));
    IUnknown* selected = &control;
    Require(page_->SetObjects(1, &selected));

    WNDCLASSW frame = {};
    frame.lpfnWndProc = Procedure;
    frame.hInstance = GetModuleHandleW(nullptr);
    frame.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    frame.lpszClassName = L"page frame";
    RegisterClassW(&frame);
    const RECT page = {margin, margin, margin + information.size.cx, margin + information.size.cy};
    RECT whole = {0, 0, page.right + margin, page.bottom + buttonSize.cy + 2 * margin};
    constexpr DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
    const RECT inner = whole;
    AdjustWindowRectEx(&whole, style, FALSE, WS_EX_CONTROLPARENT);
    window_ = CreateWindowExW(WS_EX_CONTROLPARENT, frame.lpszClassName, information.pszTitle, style,
                              500, 200, whole.right - whole.left, whole.bottom - whole.top, owner,
                              nullptr, frame.hInstance, this);
    CoTaskMemFree(information.pszTitle);
    CoTaskMemFree(information.pszDocString);
    CoTaskMemFree(information.pszHelpFile);
    Require(page_->Activate(window_, &page, FALSE));
    const LONG row = page.bottom + margin;
    apply_ = AddButton(window_, L"Apply", applyButton,
                       {inner.right - 2 * (buttonSize.cx + margin), row});
    AddButton(window_, L"Close", closeButton, {inner.right - buttonSize.cx - margin, row});
    ShowDirt();
    Require(page_->Show(SW_SHOW));
    ShowWindow(window_, SW_SHOW);
    SetFocus(GetNextDlgTabItem(window_, nullptr, FALSE));
}

PageFrame::~PageFrame() {
    Close();
}

void PageFrame::Close() {
    if (window_ == nullptr) {
        return;
    }
    page_->Deactivate();
    page_->SetObjects(0, nullptr);
    page_->SetPageSite(nullptr);
    page_.Reset();
    HWND const window = window_;
    window_ = nullptr;
    DestroyWindow(window);
}

void PageFrame::ShowDirt() {
    const bool isDirty = page_->IsPageDirty() == S_OK;
    if (!isDirty && GetFocus() == apply_) {
        // A disabled window must not keep the focus.
        SetFocus(GetNextDlgTabItem(window_, apply_, FALSE));
    }
    EnableWindow(apply_, isDirty ? TRUE : FALSE);
}

bool PageFrame::TranslateKey(MSG& message) {
    if (window_ == nullptr || IsChild(window_, message.hwnd) == FALSE) {
        return false;
    }
    return page_->TranslateAccelerator(&message) == S_OK ||
           IsDialogMessageW(window_, &message) != FALSE;
}

LRESULT CALLBACK PageFrame::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        SetWindowLongPtrW(
            window, GWLP_USERDATA,
            reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
    }
    auto* const frame = reinterpret_cast<PageFrame*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return frame == nullptr || frame->window_ == nullptr
               ? DefWindowProcW(window, message, wParam, lParam)
               : frame->Handle(message, wParam, lParam);
}

LRESULT PageFrame::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && LOWORD(wParam) == applyButton) {
        page_->Apply();
        ShowDirt();
        return 0;
    }
    if (message == WM_CLOSE || (message == WM_COMMAND && LOWORD(wParam) == closeButton)) {
        Close();
        return 0;
    }
    return DefWindowProcW(window_, message, wParam, lParam);
}

HRESULT PageFrame::QueryInterface(REFIID iid, void** object) {
    const bool known = iid == IID_IUnknown || iid == IID_IPropertyPageSite;
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

HRESULT PageFrame::OnStatusChange(DWORD /*flags*/) {
    if (apply_ != nullptr) {
        ShowDirt();
    }
    return S_OK;
}

HRESULT PageFrame::GetLocaleID(LCID* locale) {
    *locale = LOCALE_USER_DEFAULT;
    return S_OK;
}

HRESULT PageFrame::GetPageContainer(IUnknown** container) {
    *container = nullptr;
    return E_NOTIMPL;
}

HRESULT PageFrame::TranslateAccelerator(MSG* /*message*/) {
    return S_FALSE;
}

}  // namespace lumenkit::person
