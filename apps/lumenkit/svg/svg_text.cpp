#include "apps/lumenkit/svg/svg_text.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

#include "frame/utf8.h"

namespace lumenkit::svg {

namespace {

constexpr char16_t replacement = 0xFFFD;
constexpr char16_t firstNonCharacter = 0xFFFE;

// ToUtf8 replaces the single surrogates.
char16_t Writable(char16_t unit) {
    if (IsControl(unit)) {
        return blank;
    }
    return unit >= firstNonCharacter ? replacement : unit;
}

std::string_view ReferenceTo(char letter) {
    switch (letter) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        default:
            return {};
    }
}

}  // namespace

void AppendText(std::string& xml, TextView text) {
    Text writable(text);
    for (char16_t& unit : writable) {
        unit = Writable(unit);
    }
    for (const char letter : ToUtf8(writable)) {
        const std::string_view reference = ReferenceTo(letter);
        if (reference.empty()) {
            xml += letter;
        } else {
            xml += reference;
        }
    }
}

void AppendNumber(std::string& xml, double number) {
    constexpr int places = 3;
    std::array<char, 64> digits{};  // the largest single has 39 digits before the point
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                       std::chars_format::fixed, places);
    std::string_view shortest(digits.data(), static_cast<std::size_t>(written.ptr - digits.data()));
    shortest.remove_suffix(shortest.size() - 1 - shortest.find_last_not_of('0'));
    if (shortest.ends_with('.')) {
        shortest.remove_suffix(1);
    }
    xml += shortest;
}

}  // namespace lumenkit::svg
