// Colours in the host's format: red + green * 256 + blue * 65536, or a system colour with the high
// bit set.
#pragma once

#include <cstdint>

namespace lumenkit {

enum class Color : std::uint32_t {
    WindowBackground = 0x80000005,
    WindowText = 0x80000008,
    Highlight = 0x8000000D,
    HighlightText = 0x8000000E,
    ButtonFace = 0x8000000F,
    ButtonText = 0x80000012,
};

constexpr Color Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return static_cast<Color>(red + green * 256U + blue * 65536U);
}

constexpr bool IsSystemColor(Color color) {
    return (static_cast<std::uint32_t>(color) & 0x80000000U) != 0;
}

}  // namespace lumenkit
