#include "forms/hexadecimal.h"

#include <string_view>

namespace lumenkit::forms {

std::string Hexadecimal(std::uint64_t number, std::size_t digits) {
    constexpr std::string_view allDigits = "0123456789ABCDEF";
    constexpr unsigned bitsOfADigit = 4;
    std::string reversed;
    for (; number != 0 || reversed.size() < digits; number >>= bitsOfADigit) {
        reversed += allDigits[number & 0xF];
    }
    return {reversed.rbegin(), reversed.rend()};
}

std::string UnitName(char16_t unit) {
    return "U+" + Hexadecimal(unit, 4);
}

}  // namespace lumenkit::forms
