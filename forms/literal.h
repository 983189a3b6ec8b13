// The values that stand in form files.
#pragma once

#include <cstdint>
#include <variant>

#include "frame/text.h"

namespace lumenkit::forms {

/// &H80000005&, as colours are written.
struct HexNumber {
    std::uint32_t bits = 0;
    friend bool operator==(HexNumber, HexNumber) = default;
};

/// A menu's key, as it stands: ^N, +^{F1}, {DEL}.
struct Shortcut {
    Text keys;
    friend bool operator==(const Shortcut&, const Shortcut&) = default;
};

/// {0BE35203-8F91-11CE-9DE3-00AA004BB851}, braces included.
struct Guid {
    Text text;
    friend bool operator==(const Guid&, const Guid&) = default;
};

/// "x.frx":0000 or, marked as a string, $"x.frx":0000: a place in the binary companion.
struct Reference {
    Text file;
    std::uint32_t offset = 0;
    bool marked = false;
    friend bool operator==(const Reference&, const Reference&) = default;
};

/// A text that goes into the binary companion when the form is written.
struct CompanionText {
    Text text;
    friend bool operator==(const CompanionText&, const CompanionText&) = default;
};

/// A value by the way it is written: "text", -1 'True, 12, &H8000000F&, 8.25, ...
/// A whole number beyond 32 bits is a double.
using Literal = std::variant<Text, bool, std::int32_t, HexNumber, double, Shortcut, Guid, Reference,
                             CompanionText>;

/// The longest text that is written into the form itself, in UTF-16 units.
inline constexpr std::size_t longestInlineText = 128;

/// A text where designers keep it: in the companion when it holds a line break or another control
/// character, or is longer than longestInlineText; in the form otherwise.
Literal TextLiteral(TextView text);

/// A number as designers write it: without a fraction where it is whole.
Literal NumberLiteral(double number);
/// With the fewest digits that read back as the same single-precision number.
Literal NumberLiteral(float number);

/// As designers write it, the comment behind a Boolean included. Not for a CompanionText, whose
/// place is not known before the form is written.
Text SourceOf(const Literal& literal);

}  // namespace lumenkit::forms
