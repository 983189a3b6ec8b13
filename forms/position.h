#pragma once

#include <cstddef>

#include "frame/text.h"

namespace lumenkit::forms {

/// A position in a text file: lines and columns from 1, columns in UTF-16 units. Line 0 means no
/// position, because the whole file is meant or the item was added later.
struct Position {
    std::size_t line = 0;
    std::size_t column = 0;

    friend bool operator==(Position, Position) = default;
};

/// Returns the position just after `text`.
Position PlaceBehind(TextView text);

}  // namespace lumenkit::forms
