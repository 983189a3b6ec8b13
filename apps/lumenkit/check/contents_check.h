#pragma once

#include <cstdint>

#include "apps/lumenkit/check/finding.h"
#include "frame/text.h"

namespace lumenkit::check {

struct ContentsCheck {
    Remarks remarks;
    std::int16_t itemCount = 0;  ///< number of items of the option list after loading
};

/// Checks the contents of an option list. The remarks are in the order of the text.
ContentsCheck CheckContents(TextView contents);

/// Checks a saved ListIndex of a list with `itemCount` items. The remarks have offset 0.
Remarks CheckListIndex(std::int16_t listIndex, std::int16_t itemCount);

}  // namespace lumenkit::check
