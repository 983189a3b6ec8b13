#pragma once

#include <string>

#include "frame/text.h"

namespace lumenkit::check {

/// Returns the text in quotation marks, cut after 40 UTF-16 units. Invisible characters and marks
/// of the writing direction become \uXXXX.
std::string Quote(TextView text);

}  // namespace lumenkit::check
