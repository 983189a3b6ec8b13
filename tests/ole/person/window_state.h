// The windows on the screen as JSON.
#pragma once

#include <string>

#include <windows.h>

namespace lumenkit::person {

/// Returns a JSON string.
std::string Quoted(const std::wstring& text);

/// Returns a JSON array of all visible windows in `top`, which may be null, in tab order.
std::string WindowsIn(HWND top);

}  // namespace lumenkit::person
