#include "frame/unique_identifier.h"

namespace lumenkit {

namespace {

void AppendHex(std::string& text, std::uint32_t number, int digits) {
    constexpr std::string_view hexDigits = "0123456789abcdef";
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text += hexDigits[(number >> shift) & 0xF];
    }
}

}  // namespace

std::string ToString(const UniqueIdentifier& identifier) {
    std::string text;
    AppendHex(text, identifier.data1, 8);
    text += '-';
    AppendHex(text, identifier.data2, 4);
    text += '-';
    AppendHex(text, identifier.data3, 4);
    text += '-';
    for (std::size_t i = 0; i < identifier.data4.size(); ++i) {
        if (i == 2) {
            text += '-';
        }
        AppendHex(text, identifier.data4[i], 2);
    }
    return text;
}

}  // namespace lumenkit
