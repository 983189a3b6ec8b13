// Prepares texts from files and arguments for messages, so that nothing in them can control a
// terminal.
#pragma once

#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit {

/// Returns the text in UTF-8. Invisible characters and marks of the writing direction become
/// \uXXXX.
std::string Printable(TextView text);

/// The same for UTF-8. Malformed bytes become U+FFFD.
std::string Printable(std::string_view text);

}  // namespace lumenkit
