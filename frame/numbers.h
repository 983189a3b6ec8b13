// Numbers in texts: reading them as the platform's Val and CDbl do, writing them as Str does.
#pragma once

#include <cstdint>
#include <optional>

#include "frame/text.h"

namespace lumenkit {

/// The number that `text` begins with, 0 when there is none; the platform's `Val`.
///
/// Blanks, tabs and line feeds are skipped anywhere; a sign, a decimal point, an exponent (E or D)
/// and the prefixes &H and &O are understood; the first other unit ends the number. A radix number
/// of up to 16 bits is a 16-bit signed integer ("&HFFFF" is -1) unless "&" follows it ("&HFFFF&" is
/// 65535); one of up to 32 bits is a 32-bit signed integer.
/// Raises 6 for a number beyond double precision and for a radix number of more than 32 bits.
double ParseNumber(TextView text);

/// The number that the whole of `text` is, or nothing where `text` is not numeric: the platform's
/// conversion of a string to a number (IsNumeric, CDbl). Blanks, tabs and line feeds may stand
/// around the number, but not inside it. Raises 6 as ParseNumber does.
std::optional<double> NumericValue(TextView text);

/// Appends `number` in the form of the platform's `Str`: a blank or a minus sign, no zero before a
/// leading decimal point, the fewest digits that read back as the same number in its precision.
/// Below 0.0001 and from 1E+15 (single precision: 1E+07) up there is an exponent of at least two
/// digits (" 1.5E+20"). `number` must be finite.
void AppendStr(Text& text, double number);
void AppendStr(Text& text, float number);
Text Str(double number);
Text Str(float number);

/// `number` as the platform shows it in texts (CStr): rounded to 15 digits, single precision to 7,
/// in the form of Str, but with a zero before a leading decimal point and without a leading blank.
/// Raises 6 when `number` is not finite.
Text NumberText(double number);
Text NumberText(float number);

/// Decimal digits without a leading blank.
void AppendDecimal(Text& text, std::int32_t number);
Text Decimal(std::int32_t number);

}  // namespace lumenkit
