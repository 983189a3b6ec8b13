#pragma once

#include "frame/text.h"

namespace lumenkit::win32 {

constexpr bool IsHighSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}

constexpr bool IsLowSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xDC00;
}

/// Returns the beginning of `text` that has at most `room` units and splits no surrogate pair.
inline TextView WithoutHalfPair(TextView text, std::size_t room) {
    if (room >= text.size()) {
        return text;
    }
    const bool splits = room > 0 && IsHighSurrogate(text[room - 1]) && IsLowSurrogate(text[room]);
    return text.substr(0, splits ? room - 1 : room);
}

}  // namespace lumenkit::win32
