// A form for a user: the three controls in AtlAxWin windows, and a button. The tab order is memo,
// options, label, button. Keys for the test:
//     F12  writes a line of JSON: the visible windows, and the events since the last such line
//     F9   opens the label's caption page in a frame of this program
//     F8   opens it in the system's own frame
//     F7   sets other system colours, as a high-contrast scheme does
#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

#include "samples/atl_host/atl_windows.h"
#include "samples/atl_host/event_sink.h"
#include "samples/atl_host/interfaces.h"
#include "samples/atl_host/settings.h"
#include "tests/ole/person/page_frame.h"
#include "tests/ole/person/window_state.h"

namespace lumenkit::person {

namespace {

using atl_host::ControlIn;
using atl_host::EventSink;
using atl_host::Settings;

class Form {
 public:
    Form();

    HWND Window() const { return window_; }
    bool TranslateKey(MSG& message);
    bool Watch(WPARAM key);

 private:
    HWND Place(const wchar_t* name, const RECT& place, Settings&& settings, EventSink& sink,
               REFIID events);
    void Heard(const std::string& event) {
        events_ += (events_.empty() ? "\"" : ",\"") + event + "\"";
    }
    void HeardOfMouse(const char* event, const DISPPARAMS& arguments);
    void HeardOfLabel(DISPID event, const DISPPARAMS& arguments);
    void WriteState();
    void OpenPage();
    void OpenSystemFrame();

    HWND window_;
    std::string events_;
    EventSink memoEvents_{__uuidof(__VMemo), [this](DISPID event, const DISPPARAMS& /*arguments*/) {
                              if (event == 9) {
                                  Heard("memo.Change");
                              }
                          }};
    EventSink optionEvents_{
        __uuidof(__VOptList),
        [this](DISPID /*event*/, const DISPPARAMS& /*arguments*/) { Heard("options.Click"); }};
    EventSink labelEvents_{__uuidof(__VLabel), [this](DISPID event, const DISPPARAMS& arguments) {
                               HeardOfLabel(event, arguments);
                           }};
    HWND memo_;
    HWND options_;
    HWND label_;
    std::unique_ptr<PageFrame> page_;
};

Form* shownForm = nullptr;

LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) {
        PostQuitMessage(0);
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND CreateFormWindow() {
    WNDCLASSW form = {};
    form.lpfnWndProc = FormProcedure;
    form.hInstance = GetModuleHandleW(nullptr);
    form.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    form.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    form.lpszClassName = L"person";
    RegisterClassW(&form);
    return CreateWindowExW(WS_EX_CONTROLPARENT, form.lpszClassName, L"person",
                           WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 20, 20, 460, 420, nullptr,
                           nullptr, form.hInstance, nullptr);
}

Form::Form()
    : window_(CreateFormWindow()),
      memo_(Place(L"lumenkit.VMemo", {10, 10, 210, 110},
                  {{L"MaxCharsPerLine", 10}, {L"MaxLines", 3}}, memoEvents_, __uuidof(__VMemo))),
      options_(Place(L"lumenkit.VOptList", {220, 10, 430, 150},
                     {{L"Caption", L"Size"},
                      {L"Contents", L"s;Small|m;Medium|l;Large"},
                      {L"LeftMargin", 150},
                      {L"TopMargin", 300},
                      {L"Spacing", 360}},
                     optionEvents_, __uuidof(__VOptList))),
      label_(Place(L"lumenkit.VLabel", {10, 170, 310, 370},
                   {{L"Caption", L"|B:1|Menu|B:0||CR|* soup|CR|* bread"},
                    {L"BulletPrefix", L"* "},
                    {L"BulletIndent", 300}},
                   labelEvents_, __uuidof(__VLabel))) {
    HWND const button = CreateWindowExW(0, L"BUTTON", L"Done", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                        330, 300, 100, 30, window_, nullptr, nullptr, nullptr);
    SendMessageW(button, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), 0);
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
}

HWND Form::Place(const wchar_t* name, const RECT& place, Settings&& settings, EventSink& sink,
                 REFIID events) {
    HWND const window = atl_host::PlaceControl(window_, name, place, settings);
    if (window == nullptr || !atl_host::Advise(window, sink, events)) {
        throw std::runtime_error("a control is missing");
    }
    // Each control comes after the controls before it in the tab order.
    SetWindowPos(window, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return window;
}

bool Form::TranslateKey(MSG& message) {
    return (page_ != nullptr && page_->TranslateKey(message)) ||
           atl_host::TranslateKey(window_, message);
}

void Form::HeardOfMouse(const char* event, const DISPPARAMS& arguments) {
    // The array holds the arguments in reverse order.
    const auto number = [&](UINT at) {
        _variant_t value;
        VariantChangeType(&value, &arguments.rgvarg[3 - at], 0, VT_I4);
        return std::to_string(value.lVal);
    };
    Heard(event + (" " + number(0)) + " " + number(1) + " " + number(2) + " " + number(3));
}

void Form::HeardOfLabel(DISPID event, const DISPPARAMS& arguments) {
    switch (event) {
        case 1:
            return Heard("label.Click");
        case 2:
            return Heard("label.DblClick");
        case 3:
            return HeardOfMouse("label.MouseDown", arguments);
        case 5:
            return HeardOfMouse("label.MouseUp", arguments);
        default:
            return;
    }
}

void Form::WriteState() {
    _bstr_t text;
    _bstr_t value;
    _bstr_t caption;
    short index = 0;
    short indent = 0;
    VARIANT_BOOL wraps = VARIANT_FALSE;
    ControlIn<_VMemo>(memo_)->get_Text(text.GetAddress());
    const auto options = ControlIn<_VOptList>(options_);
    options->get_Value(value.GetAddress());
    options->get_ListIndex(&index);
    const auto label = ControlIn<_VLabel>(label_);
    label->get_Caption(caption.GetAddress());
    label->get_BulletIndent(&indent);
    label->get_WordWrap(&wraps);
    const auto quoted = [](const _bstr_t& string) {
        return Quoted(std::wstring(string, string.length()));
    };
    HWND const page = page_ == nullptr ? nullptr : page_->Window();
    HWND const dialog = FindWindowW(L"#32770", nullptr);
    std::printf(
        "{\"memo\":%s,\"index\":%d,\"value\":%s,\"caption\":%s,\"indent\":%d,\"wraps\":%d,"
        "\"events\":[%s],"
        "\"form\":%s,\"page\":%s,\"dialog\":%s}\n",
        quoted(text).c_str(), index, quoted(value).c_str(), quoted(caption).c_str(), indent, wraps,
        events_.c_str(), WindowsIn(window_).c_str(), WindowsIn(page).c_str(),
        WindowsIn(dialog).c_str());
    std::fflush(stdout);
    events_.clear();
}

void Form::OpenPage() {
    page_ = std::make_unique<PageFrame>(window_, __uuidof(VLabelCaption),
                                        *ControlIn<IUnknown>(label_).Get());
}

void Form::OpenSystemFrame() {
    const auto label = ControlIn<IUnknown>(label_);
    IUnknown* control = label.Get();
    CLSID page = __uuidof(VLabelCaption);
    OleCreatePropertyFrame(window_, 500, 200, L"label", 1, &control, 1, &page, 0, 0, nullptr);
}

void ContrastColors() {
    constexpr COLORREF black = RGB(0, 0, 0);
    constexpr COLORREF yellow = RGB(255, 255, 0);
    constexpr std::array elements = {COLOR_WINDOW,     COLOR_WINDOWTEXT,   COLOR_BTNFACE,
                                     COLOR_BTNTEXT,    COLOR_BTNSHADOW,    COLOR_BTNHIGHLIGHT,
                                     COLOR_3DDKSHADOW, COLOR_3DLIGHT,      COLOR_HIGHLIGHT,
                                     COLOR_GRAYTEXT,   COLOR_HIGHLIGHTTEXT};
    constexpr std::array colors = {black,  yellow, black, yellow,           yellow,
                                   yellow, yellow, black, RGB(0, 255, 255), RGB(0, 255, 0),
                                   black};
    static_assert(elements.size() == colors.size());
    SetSysColors(static_cast<int>(elements.size()), elements.data(), colors.data());
}

bool Form::Watch(WPARAM key) {
    switch (key) {
        case VK_F12:
            WriteState();
            return true;
        case VK_F9:
            OpenPage();
            return true;
        case VK_F8:
            OpenSystemFrame();
            return true;
        case VK_F7:
            ContrastColors();
            return true;
        default:
            return false;
    }
}

// Modal loops belong to the system, so the keys are caught when they leave the queue.
LRESULT CALLBACK WatchQueue(int code, WPARAM wParam, LPARAM lParam) {
    auto& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && message.message == WM_KEYDOWN &&
        shownForm->Watch(message.wParam)) {
        message.message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void Run() {
    Form form;
    shownForm = &form;
    SetWindowsHookExW(WH_GETMESSAGE, WatchQueue, nullptr, GetCurrentThreadId());
    std::puts("ready");
    std::fflush(stdout);
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!form.TranslateKey(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

}  // namespace

}  // namespace lumenkit::person

int main() {
    if (FAILED(OleInitialize(nullptr))) {
        return 1;
    }
    try {
        lumenkit::person::Run();
    } catch (const std::exception& error) {
        std::printf("failed: %s\n", error.what());
        return 1;
    }
    OleUninitialize();
    return 0;
}
