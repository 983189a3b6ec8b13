// Conversion between numbers and text: reads numbers as the platform's Val and CDbl do, writes them
// as Str does.
#pragma once

#include <cstdint>
#include <optional>

#include "frame/text.h"

namespace lumenkit {

/// Returns the number at the start of `text`, 0 when there is none; the platform's `Val`.
///
/// Skips blanks, tabs and line feeds anywhere. Accepts a sign, a decimal point, an exponent (E or
/// D) and the prefixes &H and &O. The first unit that does not belong to the number ends it. A
/// radix number of up to 16 bits is a 16-bit signed integer ("&HFFFF" is -1) unless "&" follows it
/// ("&HFFFF&" is 65535); one of up to 32 bits is a 32-bit signed integer. Raises 6 for a number
/// beyond the range of double precision and for a radix number of more than 32 bits.
double ParseNumber(TextView text);

/// Converts the whole of `text` to a number; returns nullopt when `text` is not numeric. This is
/// the platform's conversion of a string to a number (IsNumeric, CDbl). Blanks, tabs and line feeds
/// may surround the number, but may not occur inside it. Raises 6 as ParseNumber does.
std::optional<double> NumericValue(TextView text);

/// Append `number` in the format of the platform's `Str`: a leading blank or minus sign, no zero
/// before a leading decimal point, the fewest digits that read back as the same number in its
/// precision. Numbers below 0.0001 and from 1E+15 (single precision: 1E+07) are written with an
/// exponent of at least two digits (" 1.5E+20"). `number` must be finite.
void AppendStr(Text& text, double number);
void AppendStr(Text& text, float number);
Text Str(double number);
Text Str(float number);

/// Return `number` as the platform displays it (CStr): rounded to 15 digits, single precision to 7,
/// in the format of Str, but with a zero before a leading decimal point and without the leading
/// blank. Raise 6 when `number` is not finite.
Text NumberText(double number);
Text NumberText(float number);

/// Write `number` in decimal digits, with a minus sign when it is negative and without a leading
/// blank.
void AppendDecimal(Text& text, std::int32_t number);
Text Decimal(std::int32_t number);

}  // namespace lumenkit
