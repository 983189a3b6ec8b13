#pragma once

#include <cstddef>

#include "frame/text.h"

namespace lumenkit::forms {

/// A place in a text file: lines and columns from 1, columns in UTF-16 units.
/// Line 0: no place in the text, because the whole file is meant or the thing was added later.
struct Position {
    std::size_t line = 0;
    std::size_t column = 0;

    friend bool operator==(Position, Position) = default;
};

/// The place of what follows `text`.
Position PlaceBehind(TextView text);

}  // namespace lumenkit::forms
