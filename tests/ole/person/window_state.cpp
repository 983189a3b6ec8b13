#include "tests/ole/person/window_state.h"

#include <array>
#include <cstdio>

namespace lumenkit::person {

namespace {

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1,
                      L'\0');
    const LRESULT length =
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 128> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::string Selection(HWND edit) {
    DWORD begin = 0;
    DWORD end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    return "[" + std::to_string(begin) + "," + std::to_string(end) + "]";
}

std::string Place(HWND window) {
    RECT place = {};
    GetWindowRect(window, &place);
    return "[" + std::to_string(place.left) + "," + std::to_string(place.top) + "," +
           std::to_string(place.right) + "," + std::to_string(place.bottom) + "]";
}

std::string State(HWND window) {
    const std::wstring kind = ClassOf(window);
    std::string state = "{\"kind\":" + Quoted(kind) + ",\"text\":" + Quoted(TextOf(window)) +
                        ",\"place\":" + Place(window);
    if (kind == L"Edit") {
        state += ",\"selection\":" + Selection(window);
    }
    if (SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED && kind == L"Button") {
        state += ",\"checked\":true";
    }
    if (IsWindowEnabled(window) == FALSE) {
        state += ",\"disabled\":true";
    }
    if (GetFocus() == window) {
        state += ",\"focus\":true";
    }
    return state + "}";
}

void Add(HWND parent, std::string& list) {
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsWindowVisible(child) != FALSE) {
            list += (list.empty() ? "" : ",") + State(child);
            Add(child, list);
        }
    }
}

}  // namespace

std::string Quoted(const std::wstring& text) {
    std::string quoted = "\"";
    for (const wchar_t unit : text) {
        const auto code = static_cast<unsigned>(unit);
        if (code >= 0x20 && code < 0x7F && unit != L'"' && unit != L'\\') {
            quoted += static_cast<char>(unit);
        } else {
            std::array<char, 8> escape{};
            std::snprintf(escape.data(), escape.size(), "\\u%04x", code & 0xFFFFU);
            quoted += escape.data();
        }
    }
    return quoted + "\"";
}

std::string WindowsIn(HWND top) {
    std::string list;
    if (top != nullptr) {
        Add(top, list);
    }
    return "[" + list + "]";
}

}  // namespace lumenkit::person
