// The values in form files.
#pragma once

#include <cstdint>
#include <variant>

#include "frame/text.h"

namespace lumenkit::forms {

/// &H80000005&: the notation of colours.
struct HexNumber {
    std::uint32_t bits = 0;
    friend bool operator==(HexNumber, HexNumber) = default;
};

/// The key of a menu in form notation: ^N, +^{F1}, {DEL}.
struct Shortcut {
    Text keys;
    friend bool operator==(const Shortcut&, const Shortcut&) = default;
};

/// {0BE35203-8F91-11CE-9DE3-00AA004BB851}, including the braces.
struct Guid {
    Text text;
    friend bool operator==(const Guid&, const Guid&) = default;
};

/// "x.frx":0000 or, marked as a string, $"x.frx":0000: an offset in the binary companion.
struct Reference {
    Text file;
    std::uint32_t offset = 0;
    bool marked = false;
    friend bool operator==(const Reference&, const Reference&) = default;
};

/// A text that is moved to the binary companion when the form is written.
struct CompanionText {
    Text text;
    friend bool operator==(const CompanionText&, const CompanionText&) = default;
};

/// The rest of a line that no notation fits. It is kept and written unchanged.
struct UnreadValue {
    Text source;
    friend bool operator==(const UnreadValue&, const UnreadValue&) = default;
};

/// A value, with a type for each notation: "text", -1 'True, 12, &H8000000F&, 8.25, ... A whole
/// number beyond 32 bits is a double.
using Literal = std::variant<Text, bool, std::int32_t, HexNumber, double, Shortcut, Guid, Reference,
                             CompanionText, UnreadValue>;

/// The length of the longest text that is written in the form itself, in UTF-16 units.
inline constexpr std::size_t longestInlineText = 128;

/// Returns the literal of a text: a CompanionText if the text contains a line break or another
/// control character or is longer than longestInlineText, otherwise a Text.
Literal TextLiteral(TextView text);

/// Returns the literal of a number: an integer if it is whole and fits 32 bits. Raises 6 when it is
/// not finite.
Literal NumberLiteral(double number);
/// Uses the fewest digits that read back as the same single-precision number.
Literal NumberLiteral(float number);

/// Returns the literal in form notation, including the comment after a Boolean. Empty for a
/// CompanionText, whose offset is not known until the form is written.
Text SourceOf(const Literal& literal);

}  // namespace lumenkit::forms
