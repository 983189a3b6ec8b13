#pragma once

#include <span>

#include "frame/automation/value.h"
#include "frame/color.h"
#include "frame/text.h"

namespace lumenkit::form {

/// "&H8000000F&"
Text ColorText(Color color);

/// What a person typed for a colour, ready to be assigned: "&H" and hexadecimal digits are all of
/// the colour, whether or not an & follows; anything else is left to who converts it.
Value ColorFromText(TextView text);

struct NamedColor {
    TextView name;
    Color color;
};

/// The system's colours by name, in the order of their numbers.
std::span<const NamedColor> SystemColors();

/// Five rows of eight, each of one brightness, from white to black.
std::span<const Color> PaletteColors();

}  // namespace lumenkit::form
