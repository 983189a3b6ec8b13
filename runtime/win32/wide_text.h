// Conversion between texts and the strings of platform functions. Both are UTF-16; only the types
// differ.
#pragma once

#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// For functions that need a terminating zero.
inline std::wstring ToWide(TextView text) {
    return {text.begin(), text.end()};
}

/// Returns the same memory without a copy.
inline const wchar_t* AsWide(const char16_t* text) {
    return reinterpret_cast<const wchar_t*>(text);
}
inline wchar_t* AsWide(char16_t* text) {
    return reinterpret_cast<wchar_t*>(text);
}
inline TextView AsText(std::wstring_view text) {
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

}  // namespace lumenkit::win32
