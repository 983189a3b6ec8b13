#pragma once

#include <string>

#include "frame/text.h"

namespace lumenkit::svg {

/// Appends a text in UTF-8 for an element or a quoted attribute. A control character becomes a
/// blank, as labels draw it. A unit that XML cannot hold becomes U+FFFD.
void AppendText(std::string& xml, TextView text);

/// Appends `number`, rounded to three decimal places, without an exponent and without zeros at the
/// end. `number` must be finite and in the range of single precision.
void AppendNumber(std::string& xml, double number);

}  // namespace lumenkit::svg
