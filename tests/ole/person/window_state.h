// What a person sees of windows, as JSON.
#pragma once

#include <string>

#include <windows.h>

namespace lumenkit::person {

/// A JSON string.
std::string Quoted(const std::wstring& text);

/// A JSON array of all visible windows in `top`, which may be null, in tab order.
std::string WindowsIn(HWND top);

}  // namespace lumenkit::person
