#pragma once

#include "forms/document.h"

namespace lumenkit::lumenform {

/// Writes the warnings of a form to the standard error stream, one per line, and before them the
/// guessed code page.
void PrintWarnings(const forms::Document& document);

}  // namespace lumenkit::lumenform
