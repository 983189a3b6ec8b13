#pragma once

#include <cstddef>

#include "frame/text.h"

namespace lumenkit::bench {

/// A text of `units` units for a memo: lines of 30 to 90 units, the same at every call.
Text MemoLines(std::size_t units);

}  // namespace lumenkit::bench
