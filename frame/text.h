// Text as the controls use it: UTF-16 units, with positions counted from 1.
//
// Each function behaves as the platform's string function of the same name. A function that returns
// a view returns a part of its argument. Only functions that return or append to a Text allocate
// memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lumenkit {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr char16_t blank = u' ';
inline constexpr TextView crLf = u"\r\n";

/// How to compare two texts: unit by unit, or without regard to case (see LowerUnit).
enum class Compare { Binary, IgnoreCase };

/// Returns the number of UTF-16 units. Raises 6 (overflow) beyond 2,147,483,647.
std::int32_t Len(TextView text);

/// Returns the position of the first `sought` that begins at `start` or later. Returns 0 when there
/// is none, when `text` is empty and when `start` is beyond its end. An empty `sought` is found at
/// `start`. Raises 5 when `start` is below 1.
std::int32_t InStr(std::int32_t start, TextView text, TextView sought,
                   Compare compare = Compare::Binary);

/// Returns the position of the last `sought` that ends at `start` or earlier. Returns 0 when there
/// is none and when `start` is 0 or beyond the end of `text`. An empty `sought` is found at
/// `start`. Raises 5 when `start` is negative.
std::int32_t InStrRev(TextView text, TextView sought, std::int32_t start);

/// Return the first / last `count` units, or all of them when there are fewer. Raise 5 when `count`
/// is negative.
TextView Left(TextView text, std::int32_t count);
TextView Right(TextView text, std::int32_t count);

/// Return the units from position `start` on, at most `count` of them; empty when `start` is beyond
/// the end. Raise 5 when `start` is below 1 or `count` is below 0.
TextView Mid(TextView text, std::int32_t start);
TextView Mid(TextView text, std::int32_t start, std::int32_t count);

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
Text LCase(TextView text);
/// Appends LCase(mixed). `mixed` must not be a part of `text`.
void AppendLCase(Text& text, TextView mixed);

/// Returns whether both texts have the same length and the same units or, with IgnoreCase, the same
/// lower-case forms.
bool SameText(TextView left, TextView right, Compare compare = Compare::Binary);

}  // namespace lumenkit
