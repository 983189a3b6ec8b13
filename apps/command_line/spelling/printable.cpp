#include "apps/command_line/spelling/printable.h"

#include <array>
#include <cstdio>

#include "frame/utf8.h"

namespace lumenkit {

namespace {

bool IsBetween(char16_t unit, char16_t first, char16_t last) {
    return unit >= first && unit <= last;
}

// Whether the unit is a control character, a line separator or a mark of the writing direction.
bool IsUnseen(char16_t unit) {
    return unit < blank || IsBetween(unit, u'\x7F', u'\x9F') || unit == u'\u061C' ||
           IsBetween(unit, u'\u200B', u'\u200F') || IsBetween(unit, u'\u2028', u'\u202E') ||
           IsBetween(unit, u'\u2060', u'\u2069') || unit == u'\uFEFF';
}

void AppendEscaped(std::string& image, char16_t unit) {
    std::array<char, 8> digits{};
    static_cast<void>(
        std::snprintf(digits.data(), digits.size(), "\\u%04X", static_cast<unsigned>(unit)));
    image += digits.data();
}

// Replaces each malformed byte by U+FFFD and continues after it.
Text Decode(std::string_view bytes) {
    Text text;
    while (!bytes.empty()) {
        std::size_t good = bytes.size();
        try {
            return text += FromUtf8(bytes);
        } catch (const MalformedUtf8& malformed) {
            good = malformed.offset;
        }
        text += FromUtf8(bytes.substr(0, good));
        text += u'\uFFFD';
        bytes.remove_prefix(good + 1);
    }
    return text;
}

}  // namespace

std::string Printable(TextView text) {
    std::string image;
    while (!text.empty()) {
        std::size_t seen = 0;
        while (seen < text.size() && !IsUnseen(text[seen])) {
            ++seen;
        }
        image += ToUtf8(text.substr(0, seen));
        text.remove_prefix(seen);
        if (!text.empty()) {
            AppendEscaped(image, text.front());
            text.remove_prefix(1);
        }
    }
    return image;
}

std::string Printable(std::string_view text) {
    return Printable(Decode(text));
}

}  // namespace lumenkit
