#include "tests/ole/clients/support/atl_window.h"

#include <algorithm>

namespace lumenkit::clients {

namespace {

// Some tool chains have no import library for atl.dll.
template <typename Function>
Function Entry(const char* name) {
    static const HMODULE library = LoadLibraryW(L"atl.dll");
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

using Initialise = BOOL(WINAPI*)();
using GetControl = HRESULT(WINAPI*)(HWND, IUnknown**);

using CreateControlEx = HRESULT(WINAPI*)(LPCOLESTR, HWND, IStream*, IUnknown**, IUnknown**, REFIID,
                                         IUnknown*);

struct WindowSearch {
    const wchar_t* windowClass;
    std::vector<HWND> found;
};

BOOL CALLBACK Find(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    if (lstrcmpiW(name, search.windowClass) == 0 && IsWindowVisible(window)) {
        search.found.push_back(window);
    }
    return TRUE;
}

LONG TopOf(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return place.top;
}

}  // namespace

AtlWindow::AtlWindow(const std::wstring& text)
    : top_((Entry<Initialise>("AtlAxWinInit")(),
            CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640, 480,
                            nullptr, nullptr, nullptr, nullptr))),
      host_(CreateWindowExW(0, L"AtlAxWin", text.c_str(), WS_CHILD | WS_VISIBLE, 10, 20, 200, 100,
                            top_, nullptr, nullptr, nullptr)) {
    EXPECT_NE(host_, nullptr);
}

AtlWindow::~AtlWindow() {
    Close();
}

void AtlWindow::Close() {
    if (top_ != nullptr) {
        DestroyWindow(top_);
        RunMessages();
        top_ = nullptr;
    }
}

ComPtr<IDispatch> AtlWindow::Control() const {
    ComPtr<IUnknown> control;
    ComPtr<IDispatch> dispatch;
    if (SUCCEEDED(Entry<GetControl>("AtlAxGetControl")(host_, &control))) {
        control.As(&dispatch);
    }
    return dispatch;
}

HRESULT AtlWindow::CreateControl(const wchar_t* name, IStream* saved) {
    ComPtr<IUnknown> container;
    ComPtr<IUnknown> control;
    const HRESULT result = Entry<CreateControlEx>("AtlAxCreateControlEx")(
        name, host_, saved, &container, &control, IID_NULL, nullptr);
    EXPECT_EQ(container != nullptr && control != nullptr, SUCCEEDED(result));
    return result;
}

std::vector<HWND> AtlWindow::Visible(const wchar_t* windowClass) const {
    WindowSearch search = {windowClass, {}};
    EnumChildWindows(host_, &Find, reinterpret_cast<LPARAM>(&search));
    std::ranges::sort(search.found, {}, &TopOf);
    return search.found;
}

void AtlWindow::Type(HWND window, wchar_t character) {
    const SHORT key = VkKeyScanW(character);
    SendMessageW(window, WM_KEYDOWN, static_cast<WPARAM>(key & 0xFF), 1);
    SendMessageW(window, WM_CHAR, character, 1);
    SendMessageW(window, WM_KEYUP, static_cast<WPARAM>(key & 0xFF), 0xC0000001);
}

void AtlWindow::Resize(int width, int height) {
    MoveWindow(host_, 10, 20, width, height, TRUE);
    RunMessages();
}

HeldKey::HeldKey(int key) {
    GetKeyboardState(before_.data());
    std::array<BYTE, 256> held = before_;
    held.at(static_cast<std::size_t>(key)) = 0x80;
    SetKeyboardState(held.data());
}

HeldKey::~HeldKey() {
    SetKeyboardState(before_.data());
}

}  // namespace lumenkit::clients
