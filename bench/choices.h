// The contents of the option lists that the benchmarks compare.
#pragma once

#include <functional>

#include "bench/comparison.h"
#include "frame/text.h"

namespace lumenkit::bench {

/// The number of items that a round handles.
constexpr int manyChoices = 1'000;

/// Returns "Choice 7".
Text Choice(int item, TextView caption = u"Choice ");

/// Returns "k0;Choice 0|k1;Choice 1 ...", about 16 units per item.
Text Choices(int items, TextView caption = u"Choice ");

/// Repeats what handles `items` items until the round has handled manyChoices.
Side RepeatedForMany(int items, std::function<void()> once);

}  // namespace lumenkit::bench
