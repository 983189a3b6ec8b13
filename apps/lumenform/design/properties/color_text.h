#pragma once

#include <span>

#include "frame/automation/value.h"
#include "frame/color.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns the colour as "&H8000000F&".
Text ColorText(Color color);

/// Returns the name of a system colour, and any other colour as ColorText.
Text ColorName(Color color);

/// Converts a typed colour to a value that can be assigned. The name of a system colour counts
/// without regard to case and blanks. "&H" and hexadecimal digits are a colour with or without a
/// final &. Any other text is returned unchanged, for the property to
/// convert.
Value ColorFromText(TextView text);

/// Whether it is red, green and blue, or one of the system colours.
bool IsColor(Color color);

struct NamedColor {
    TextView name;
    Color color;
};

/// The names of the system colours, in the order of their numbers.
std::span<const NamedColor> SystemColors();

/// Five rows of eight colours from light to dark, each row of one brightness.
std::span<const Color> PaletteColors();

}  // namespace lumenkit::lumenform
