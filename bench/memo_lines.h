#pragma once

#include <cstddef>

#include "frame/text.h"

namespace lumenkit::bench {

/// A text of so many units for a memo: lines of 30 to 90 units, always the same ones.
Text MemoLines(std::size_t units);

}  // namespace lumenkit::bench
