#include "forms/ascii.h"

#include <algorithm>

#include "frame/utf8.h"

namespace lumenkit::forms {

std::string LowerAscii(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower) {
        letter = LowerAscii(letter);
    }
    return lower;
}

bool IsAscii(std::string_view bytes) {
    return std::ranges::none_of(bytes, [](char byte) { return (byte & 0x80) != 0; });
}

bool IsUtf8(std::string_view bytes) {
    try {
        FromUtf8(bytes);
        return true;
    } catch (const MalformedUtf8&) {
        return false;
    }
}

}  // namespace lumenkit::forms
