// Text as the controls know it: UTF-16 units, positions counted from 1.
//
// These functions have the meaning that the platform's string functions of the same names have.
// They return views into their argument and allocate nothing unless they return a Text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lumenkit {

using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr char16_t blank = u' ';
inline constexpr TextView crLf = u"\r\n";

/// How two texts are compared: unit by unit, or without regard to case (see LowerUnit).
enum class Compare { Binary, IgnoreCase };

/// Number of UTF-16 units. Raises 6 (overflow) beyond 2,147,483,647.
std::int32_t Len(TextView text);

/// Position of the first `sought` that begins at `start` or later; 0 when there is none, when
/// `text` is empty and when `start` lies beyond its end. An empty `sought` is found at `start`.
/// Raises 5 when `start` is below 1.
std::int32_t InStr(std::int32_t start, TextView text, TextView sought,
                   Compare compare = Compare::Binary);

/// Position of the last `sought` that ends at `start` or earlier; 0 when there is none and when
/// `start` is 0 or lies beyond the end of `text`. An empty `sought` is found at `start`.
/// Raises 5 when `start` is negative.
std::int32_t InStrRev(TextView text, TextView sought, std::int32_t start);

/// The first / last `count` units, or all of them when there are fewer. Raise 5 when negative.
TextView Left(TextView text, std::int32_t count);
TextView Right(TextView text, std::int32_t count);

/// The units from position `start` (at most `count` of them); empty beyond the end.
/// Raise 5 when `start` is below 1 or `count` below 0.
TextView Mid(TextView text, std::int32_t start);
TextView Mid(TextView text, std::int32_t start, std::int32_t count);

/// Without leading / trailing / leading and trailing blanks (unit 32 only, no other white space).
TextView LTrim(TextView text);
TextView RTrim(TextView text);
TextView Trim(TextView text);

/// LowerUnit for units that are not ASCII.
char16_t LowerBeyondAscii(char16_t unit);
/// The lower-case form of one unit by Unicode's simple mapping. Units without one, surrogates
/// among them, are their own: a text never changes its length.
inline char16_t LowerUnit(char16_t unit) {
    if (unit >= 0x80) {
        return LowerBeyondAscii(unit);
    }
    const bool isCapital = unit >= u'A' && unit <= u'Z';  // the common case, and quick
    return static_cast<char16_t>(unit + (isCapital ? 0x20 : 0));
}
Text LCase(TextView text);
/// Appends LCase(mixed), which must be no part of `text`.
void AppendLCase(Text& text, TextView mixed);

/// Same length and same units; with IgnoreCase, same lower-case forms.
bool SameText(TextView left, TextView right, Compare compare = Compare::Binary);

}  // namespace lumenkit
