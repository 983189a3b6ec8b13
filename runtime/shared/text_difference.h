// Where two texts differ. Positions are in UTF-16 units from 0.
#pragma once

#include <cstddef>

#include "frame/text.h"

namespace lumenkit::shared {

/// The parts of two texts, both from `start`, in which alone the texts differ.
struct TextDifference {
    std::size_t start = 0;
    std::size_t oldEnd = 0;
    std::size_t newEnd = 0;

    bool IsEmpty() const { return oldEnd == start && newEnd == start; }
};

/// Returns the shortest difference that splits no CR LF of either text.
TextDifference DifferenceOf(TextView old, TextView text);

/// Returns the difference that an edit made which left the caret at `caret`, behind what it
/// inserted. Among equal units, it is the place of the caret that tells where the edit was.
TextDifference EditedPart(TextView old, TextView text, std::size_t caret);

}  // namespace lumenkit::shared
