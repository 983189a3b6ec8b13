// Globally unique identifiers of libraries, classes and interfaces.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lumenkit {

/// A 128-bit identifier with the field layout of the platform's identifiers. The default value is
/// the null identifier, which means "none".
struct UniqueIdentifier {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::array<std::uint8_t, 8> data4 = {};

    constexpr UniqueIdentifier() = default;
    /// Parses the usual form, "8e90c363-d415-47aa-afdf-c215c3c33f77"; anything else does not
    /// compile.
    // NOLINTNEXTLINE(google-explicit-constructor): tables read better with a plain string.
    consteval UniqueIdentifier(const char* text) : UniqueIdentifier(std::string_view(text)) {}

    friend bool operator==(const UniqueIdentifier&, const UniqueIdentifier&) = default;

 private:
    static constexpr std::string_view pattern = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

    consteval explicit UniqueIdentifier(std::string_view text) {
        if (text.size() != pattern.size()) {
            throw std::invalid_argument("an identifier has 36 characters");
        }
        data1 = HexNumber(text, 0, 8);
        data2 = static_cast<std::uint16_t>(HexNumber(text, 9, 4));
        data3 = static_cast<std::uint16_t>(HexNumber(text, 14, 4));
        for (std::size_t i = 0; i < data4.size(); ++i) {
            data4[i] = static_cast<std::uint8_t>(HexNumber(text, (i < 2 ? 19 : 20) + 2 * i, 2));
        }
        for (std::size_t i = 0; i < pattern.size(); ++i) {
            if ((pattern[i] == '-') != (text[i] == '-')) {
                throw std::invalid_argument("an identifier has hyphens in four places");
            }
        }
    }

    static consteval std::uint32_t HexNumber(std::string_view text, std::size_t start,
                                             std::size_t length) {
        std::uint32_t number = 0;
        for (const char digit : text.substr(start, length)) {
            number = number * 16 + HexDigit(digit);
        }
        return number;
    }

    static consteval std::uint32_t HexDigit(char digit) {
        if (digit >= '0' && digit <= '9') {
            return static_cast<std::uint32_t>(digit) - '0';
        }
        if (digit >= 'a' && digit <= 'f') {
            return static_cast<std::uint32_t>(digit) - 'a' + 10;
        }
        throw std::invalid_argument("an identifier is written in lower-case hexadecimal digits");
    }
};

/// Returns the usual form: "8e90c363-d415-47aa-afdf-c215c3c33f77".
std::string ToString(const UniqueIdentifier& identifier);

}  // namespace lumenkit
