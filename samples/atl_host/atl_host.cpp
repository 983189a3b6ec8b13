// Shows the three controls in one window through the interfaces of the generated header. Prints
// "ready" after the first painting of the window. Returns 1 if a control is missing.
#include <cstdio>
#include <string>

#include "samples/atl_host/atl_windows.h"
#include "samples/atl_host/event_sink.h"
#include "samples/atl_host/interfaces.h"
#include "samples/atl_host/settings.h"

namespace atl_host {

namespace {

class Form {
 public:
    Form();

    HWND Window() const { return window_; }
    bool IsComplete() const { return isComplete_; }

 private:
    RECT Place(int left, int top, int width, int height) const;
    void ShowChoice();

    HWND window_;
    HWND label_ = nullptr;
    HWND memo_ = nullptr;
    HWND options_ = nullptr;
    bool isComplete_ = false;
    EventSink optionEvents_{__uuidof(__VOptList),
                            [this](DISPID /*event*/, const DISPPARAMS& /*none*/) { ShowChoice(); }};
};

LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE:
        case WM_THEMECHANGED:
            // The system sends these messages only to top-level windows.
            for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
                 child = GetWindow(child, GW_HWNDNEXT)) {
                SendMessageW(child, message, wParam, lParam);
                if (HWND control = GetWindow(child, GW_CHILD); control != nullptr) {
                    SendMessageW(control, message, wParam, lParam);
                }
            }
            InvalidateRect(window, nullptr, TRUE);
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

HWND CreateFormWindow() {
    WNDCLASSW form = {};
    form.lpfnWndProc = FormProcedure;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    form.lpszClassName = L"lumenkit sample";
    RegisterClassW(&form);
    return CreateWindowExW(WS_EX_CONTROLPARENT, form.lpszClassName, L"lumenkit",
                           WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 40, 40, 100, 100, nullptr,
                           nullptr, form.hInstance, nullptr);
}

// Converts pixels at 96 dpi to pixels of the screen.
RECT Form::Place(int left, int top, int width, int height) const {
    HDC const screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    const auto scaled = [dpi](int length) { return MulDiv(length, dpi, 96); };
    return {scaled(left), scaled(top), scaled(left + width), scaled(top + height)};
}

_variant_t NewFont(const wchar_t* name, int points) {
    FONTDESC design = {};
    design.cbSizeofstruct = sizeof design;
    design.lpstrName = const_cast<wchar_t*>(name);
    design.cySize.int64 = points * 10000LL;
    design.sWeight = FW_NORMAL;
    design.sCharset = DEFAULT_CHARSET;
    ComPtr<IDispatch> font;
    OleCreateFontIndirect(&design, IID_PPV_ARGS(&font));
    return {font.Get()};
}

Form::Form() : window_(CreateFormWindow()) {
    Settings label = {{L"BorderStyle", 1},
                      {L"WordWrap", true},
                      {L"BulletPrefix", L"* "},
                      {L"BulletIndent", 300},
                      {L"Font", NewFont(L"Arial", 10)}};
    Settings options = {
        {L"Caption", L"Delivery"},
        {L"Font", NewFont(L"Arial", 9)},
        {L"ItemFontName", L"Arial"},
        {L"ItemFontSize", 9},
        {L"LeftMargin", 180},
        {L"TopMargin", 360},
        {L"Spacing", 360},
        {L"Contents", L"post;By post|courier;By courier|shop;Fetched from the shop|mail;By e-mail"},
        {L"ListIndex", 1}};
    Settings memo = {{L"MaxCharsPerLine", 40},
                     {L"MaxLines", 5},
                     {L"ScrollBars", 2},
                     {L"Font", NewFont(L"Courier New", 10)},
                     {L"Text", L"Five lines of forty characters:\r\nnothing more gets in."}};
    label_ = PlaceControl(window_, L"lumenkit.VLabel", Place(16, 16, 300, 180), label);
    options_ = PlaceControl(window_, L"lumenkit.VOptList", Place(332, 12, 220, 184), options);
    memo_ = PlaceControl(window_, L"lumenkit.VMemo", Place(16, 212, 536, 130), memo);
    isComplete_ = label_ != nullptr && options_ != nullptr && memo_ != nullptr &&
                  Advise(options_, optionEvents_, __uuidof(__VOptList));
    if (!isComplete_) {
        return;
    }
    ShowChoice();
    RECT whole = Place(0, 0, 568, 358);
    AdjustWindowRectEx(&whole, WS_OVERLAPPEDWINDOW, FALSE, WS_EX_CONTROLPARENT);
    SetWindowPos(window_, nullptr, 0, 0, whole.right - whole.left, whole.bottom - whole.top,
                 SWP_NOMOVE | SWP_NOZORDER);
}

void Form::ShowChoice() {
    _bstr_t chosen;
    ControlIn<_VOptList>(options_)->get_Value(chosen.GetAddress());
    const _bstr_t caption =
        L"|Size:14||B:1|Your order|B:0||Size:10||CR||before:60|"
        L"It will be sent |i:1|within two days|i:0|. Before you pay:|CR|"
        L"* look at the |B:1|address|B:0||CR|"
        L"* say |Q|yes|Q| to the terms|CR|"
        L"* |Fore:0,128,0|delivery: |B:1|" +
        chosen + L"|B:0|";
    ControlIn<_VLabel>(label_)->put_Caption(caption);
}

// Prints "ready" when the message queue is empty for the first time: everything is painted then.
void SayReady() {
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        DispatchMessageW(&message);
    }
    std::puts("ready");
    std::fflush(stdout);
}

int Run() {
    Form form;
    if (!form.IsComplete()) {
        std::puts("A control is missing: is lumenkit.ocx registered?");
        return 1;
    }
    ShowWindow(form.Window(), SW_SHOW);
    SayReady();
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!TranslateKey(form.Window(), message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return 0;
}

}  // namespace

}  // namespace atl_host

int main() {
    if (FAILED(OleInitialize(nullptr))) {
        return 1;
    }
    const int result = atl_host::Run();
    OleUninitialize();
    return result;
}
