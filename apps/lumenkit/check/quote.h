// Prepares texts from files for messages, so that nothing in them can control a terminal.
#pragma once

#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit::check {

/// Returns the text in quotation marks, cut after 40 UTF-16 units. Invisible characters and marks
/// of the writing direction become \uXXXX.
std::string Quote(TextView text);

/// Returns the whole UTF-8 text with the same replacements, without quotation marks. Malformed
/// bytes become U+FFFD.
std::string Printable(std::string_view text);

}  // namespace lumenkit::check
