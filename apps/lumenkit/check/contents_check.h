#pragma once

#include <cstdint>

#include "apps/lumenkit/check/finding.h"
#include "frame/text.h"

namespace lumenkit::check {

struct ContentsCheck {
    Remarks remarks;
    std::int16_t itemCount = 0;  ///< how many items an option list has once it is loaded
};

/// What is wrong with an option list's contents, from front to back.
ContentsCheck CheckContents(TextView contents);

/// What is wrong with a saved selection, of a list of so many items; at offset 0.
Remarks CheckListIndex(std::int16_t listIndex, std::int16_t itemCount);

}  // namespace lumenkit::check
