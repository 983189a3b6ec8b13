#include "tests/ole/clients/support/boxes.h"

#include <array>
#include <utility>

namespace lumenkit::clients {

namespace {

constexpr DWORD searchPause = 10;  // milliseconds between two searches
constexpr UINT patience = 2000;    // milliseconds that a window may take to answer

std::wstring TextIn(HWND window) {
    std::array<wchar_t, 2048> text = {};
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                        SMTO_ABORTIFHUNG, patience, &length);
    return text.data();
}

bool HasClass(HWND window, const wchar_t* wanted) {
    std::array<wchar_t, 64> name = {};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return lstrcmpiW(name.data(), wanted) == 0;
}

struct BoxSearch {
    DWORD process;
    HWND found = nullptr;
};

// Finds a visible dialog box of the process that is not a property sheet.
BOOL CALLBACK FindBox(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<BoxSearch*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const bool isBox = process == search.process && HasClass(window, L"#32770") &&
                       IsWindowVisible(window) && GetWindow(window, GW_CHILD) != nullptr &&
                       FindWindowExW(window, nullptr, L"SysTabControl32", nullptr) == nullptr;
    if (isBox) {
        search.found = window;
    }
    return isBox ? FALSE : TRUE;
}

std::wstring LongestLabel(HWND box) {
    std::wstring longest;
    for (HWND label = nullptr;
         (label = FindWindowExW(box, label, L"Static", nullptr)) != nullptr;) {
        std::wstring text = TextIn(label);
        if (text.size() > longest.size()) {
            longest = std::move(text);
        }
    }
    return longest;
}

// Removes the first line if it begins with `prefix`, and returns the rest of it. Otherwise returns
// nothing.
std::optional<std::wstring> TakeLine(std::wstring& text, const std::wstring& prefix) {
    const std::size_t end = text.find(L"\r\n");
    if (!text.starts_with(prefix) || end == std::wstring::npos) {
        return std::nullopt;
    }
    std::wstring line = text.substr(prefix.size(), end - prefix.size());
    text.erase(0, end + 2);
    return line;
}

}  // namespace

std::optional<Box> CloseBox(DWORD process, const std::function<void(const Box&)>& note) {
    BoxSearch search{process};
    EnumWindows(&FindBox, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr) {
        return std::nullopt;
    }
    Box box = {TextIn(search.found), LongestLabel(search.found)};
    if (note) {
        note(box);
    }
    PostMessageW(search.found, WM_COMMAND, IDOK, 0);
    for (UINT waited = 0; IsWindow(search.found) && waited < patience; waited += searchPause) {
        Sleep(searchPause);
    }
    return box;
}

std::wstring ErrorIn(const Box& box) {
    std::wstring text = box.text;
    const auto file = TakeLine(text, L"Exe = ");
    const auto form = TakeLine(text, L"Form = ");
    const auto procedure = TakeLine(text, L"Proc = ");
    const auto line = TakeLine(text, L"Error Line =");
    const auto number = TakeLine(text, L"Error Code =");
    const bool complete = number && form && procedure && file == L"lumenkit" && line == L"0" &&
                          box.title == L"LUMENKIT ERROR" && text.starts_with(L"Message: ") &&
                          text.size() > std::wstring(L"Message: ").size() &&
                          text.find(L"\r\n") == std::wstring::npos;
    return complete ? *form + L" " + *procedure + L" " + *number : std::wstring();
}

BoxCloser::BoxCloser() : end_(CreateEventW(nullptr, TRUE, FALSE, nullptr)), lock_() {
    InitializeCriticalSection(&lock_);
    thread_ = CreateThread(nullptr, 0, &Run, this, 0, nullptr);
}

BoxCloser::~BoxCloser() {
    SetEvent(end_);
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
    CloseHandle(end_);
    DeleteCriticalSection(&lock_);
}

std::vector<std::wstring> BoxCloser::Errors() {
    EnterCriticalSection(&lock_);
    std::vector<std::wstring> errors = std::exchange(errors_, {});
    LeaveCriticalSection(&lock_);
    return errors;
}

DWORD BoxCloser::Run(void* self) {
    auto& closer = *static_cast<BoxCloser*>(self);
    while (WaitForSingleObject(closer.end_, searchPause) == WAIT_TIMEOUT) {
        CloseBox(GetCurrentProcessId(), [&](const Box& box) { closer.Note(box); });
    }
    return 0;
}

// Runs while the box is open, so that the error is there when the call returns.
void BoxCloser::Note(const Box& box) {
    const std::wstring error = ErrorIn(box);
    EnterCriticalSection(&lock_);
    errors_.push_back(error.empty() ? box.title + L": " + box.text : error);
    LeaveCriticalSection(&lock_);
}

}  // namespace lumenkit::clients
