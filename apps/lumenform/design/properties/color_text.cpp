#include "apps/lumenform/design/properties/color_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "forms/literal.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::uint32_t systemBit = 0x80000000U;

constexpr NamedColor Named(std::uint32_t number, TextView name) {
    return {name, static_cast<Color>(systemBit | number)};
}

constexpr std::array systemColors = {
    Named(0x00, u"Scroll bars"),
    Named(0x01, u"Desktop"),
    Named(0x02, u"Active title bar"),
    Named(0x03, u"Inactive title bar"),
    Named(0x04, u"Menu bar"),
    Named(0x05, u"Window background"),
    Named(0x06, u"Window frame"),
    Named(0x07, u"Menu text"),
    Named(0x08, u"Window text"),
    Named(0x09, u"Active title bar text"),
    Named(0x0A, u"Active border"),
    Named(0x0B, u"Inactive border"),
    Named(0x0C, u"Application workspace"),
    Named(0x0D, u"Highlight"),
    Named(0x0E, u"Highlight text"),
    Named(0x0F, u"Button face"),
    Named(0x10, u"Button shadow"),
    Named(0x11, u"Disabled text"),
    Named(0x12, u"Button text"),
    Named(0x13, u"Inactive title bar text"),
    Named(0x14, u"Button highlight"),
    Named(0x15, u"Button dark shadow"),
    Named(0x16, u"Button light shadow"),
    Named(0x17, u"Tool tip text"),
    Named(0x18, u"Tool tip"),
};

// The first column contains white, greys and black.
constexpr std::array paletteColors = {
    Rgb(255, 255, 255), Rgb(255, 192, 192), Rgb(255, 224, 192), Rgb(255, 255, 192),
    Rgb(192, 255, 192), Rgb(192, 255, 255), Rgb(192, 192, 255), Rgb(255, 192, 255),
    Rgb(192, 192, 192), Rgb(255, 0, 0),     Rgb(255, 128, 0),   Rgb(255, 255, 0),
    Rgb(0, 255, 0),     Rgb(0, 255, 255),   Rgb(0, 0, 255),     Rgb(255, 0, 255),
    Rgb(128, 128, 128), Rgb(192, 0, 0),     Rgb(192, 96, 0),    Rgb(192, 192, 0),
    Rgb(0, 192, 0),     Rgb(0, 192, 192),   Rgb(0, 0, 192),     Rgb(192, 0, 192),
    Rgb(64, 64, 64),    Rgb(128, 0, 0),     Rgb(128, 64, 0),    Rgb(128, 128, 0),
    Rgb(0, 128, 0),     Rgb(0, 128, 128),   Rgb(0, 0, 128),     Rgb(128, 0, 128),
    Rgb(0, 0, 0),       Rgb(64, 0, 0),      Rgb(64, 32, 0),     Rgb(64, 64, 0),
    Rgb(0, 64, 0),      Rgb(0, 64, 64),     Rgb(0, 0, 64),      Rgb(64, 0, 64),
};

bool IsHexDigit(char16_t unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'F') ||
           (unit >= u'a' && unit <= u'f');
}

Text WithoutBlanks(TextView text) {
    Text without(text);
    std::erase(without, blank);
    return without;
}

// Returns null if it is no name.
const NamedColor* FindSystemColor(TextView text) {
    const Text sought = WithoutBlanks(text);
    const auto* const found = std::ranges::find_if(systemColors, [&](const NamedColor& named) {
        return SameText(WithoutBlanks(named.name), sought, Compare::IgnoreCase);
    });
    return found == systemColors.end() ? nullptr : found;
}

}  // namespace

Text ColorText(Color color) {
    return forms::SourceOf(forms::HexNumber{static_cast<std::uint32_t>(color)});
}

Text ColorName(Color color) {
    const auto* const found = std::ranges::find(systemColors, color, &NamedColor::color);
    return found == systemColors.end() ? ColorText(color) : Text(found->name);
}

Value ColorFromText(TextView text) {
    if (const NamedColor* const named = FindSystemColor(text)) {
        return FromColor(named->color);
    }
    constexpr TextView prefix = u"&H";
    TextView digits = Trim(text);
    if (!SameText(digits.substr(0, prefix.size()), prefix, Compare::IgnoreCase)) {
        return Text(text);
    }
    digits.remove_prefix(prefix.size());
    if (digits.ends_with(u'&')) {
        digits.remove_suffix(1);
    }
    if (digits.empty() || !std::ranges::all_of(digits, IsHexDigit)) {
        return Text(text);
    }
    // Without the &, a number of up to 16 bits would be signed.
    return Text(prefix) + Text(digits) + u'&';
}

bool IsColor(Color color) {
    constexpr std::uint32_t white = 0xFFFFFF;
    return static_cast<std::uint32_t>(color) <= white ||
           std::ranges::find(systemColors, color, &NamedColor::color) != systemColors.end();
}

std::span<const NamedColor> SystemColors() {
    return systemColors;
}

std::span<const Color> PaletteColors() {
    return paletteColors;
}

}  // namespace lumenkit::lumenform
