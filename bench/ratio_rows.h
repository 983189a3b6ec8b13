// Prints the rows of the table in Markdown.
#pragma once

#include "bench/comparison.h"

namespace lumenkit::bench {

void PrintHeading();
void PrintRow(const Comparison& comparison, const Outcome& outcome);

}  // namespace lumenkit::bench
