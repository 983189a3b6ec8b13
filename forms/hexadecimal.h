// Hexadecimal numbers as text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace lumenkit::forms {

/// Returns the number with upper-case digits, at least `digits` of them.
std::string Hexadecimal(std::uint64_t number, std::size_t digits);

/// Returns the name of a UTF-16 unit: "U+00E9".
std::string UnitName(char16_t unit);

}  // namespace lumenkit::forms
