// Text as the controls use it: UTF-16 units.
//
// Each function behaves as the platform's string function of the same name. A function that returns
// a view returns a part of its argument. Only functions that return or append to a Text allocate
// memory.
#pragma once

#include <string>
#include <string_view>

namespace lumenkit {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr char16_t blank = u' ';
inline constexpr TextView crLf = u"\r\n";

/// How to compare two texts: unit by unit, or without regard to case (see LowerUnit).
enum class Compare { Binary, IgnoreCase };

/// Whether the unit is a control character or a line separator, for which no letter is drawn.
constexpr bool IsControl(char16_t unit) {
    return unit < blank || (unit >= 0x7F && unit <= 0x9F) || unit == 0x2028 || unit == 0x2029;
}

/// Remove leading / trailing / leading and trailing blanks (unit 32 only, no other white space).
TextView LTrim(TextView text);
TextView RTrim(TextView text);
TextView Trim(TextView text);

/// Does the work of LowerUnit for units that are not ASCII.
char16_t LowerBeyondAscii(char16_t unit);
/// Returns the lower-case form of one unit by Unicode's simple mapping. Returns units without a
/// mapping, including surrogates, unchanged; so lower-casing never changes the length of a text.
inline char16_t LowerUnit(char16_t unit) {
    if (unit >= 0x80) {
        return LowerBeyondAscii(unit);
    }
    const bool isCapital = unit >= u'A' && unit <= u'Z';  // fast path for the common case
    return static_cast<char16_t>(unit + (isCapital ? 0x20 : 0));
}
/// Returns whether two units are the same without regard to case.
inline bool SameLetter(char16_t left, char16_t right) {
    return left == right || LowerUnit(left) == LowerUnit(right);
}
Text LCase(TextView text);
/// Appends LCase(mixed). `mixed` must not be a part of `text`.
void AppendLCase(Text& text, TextView mixed);

/// Returns whether both texts have the same length and the same units or, with IgnoreCase, the same
/// lower-case forms.
bool SameText(TextView left, TextView right, Compare compare = Compare::Binary);

}  // namespace lumenkit
