#pragma once

#include "forms/document.h"

namespace lumenkit::lumenform {

/// Writes the warnings of a form to the standard error stream, one per line.
void PrintWarnings(const forms::Document& document);

}  // namespace lumenkit::lumenform
