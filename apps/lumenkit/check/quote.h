// Texts from files as messages show them: nothing in them can command a terminal.
#pragma once

#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit::check {

/// In quotation marks, cut behind 40 units; what cannot be seen or turns the writing direction is
/// written as \uXXXX.
std::string Quote(TextView text);

/// UTF-8 with the same replaced, neither quoted nor cut. What is not UTF-8 becomes U+FFFD.
std::string Printable(std::string_view text);

}  // namespace lumenkit::check
