// Positions in a text and parts of it, in UTF-16 units counted from 1. Each function behaves as the
// platform's string function of the same name. The views that are returned are parts of `text`.
#pragma once

#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// Returns the number of UTF-16 units. Raises 6 (overflow) beyond 2,147,483,647.
std::int32_t Len(TextView text);

/// Returns the position of the first `sought` that begins at `start` or later. Returns 0 when there
/// is none, when `text` is empty and when `start` is beyond its end. An empty `sought` is found at
/// `start`. Raises 5 when `start` is below 1.
std::int32_t InStr(std::int32_t start, TextView text, TextView sought,
                   Compare compare = Compare::Binary);

/// Returns the position of the last `sought` that ends at `start` or earlier. Returns 0 when there
/// is none and when `start` is 0 or beyond the end of `text`. An empty `sought` is found at
/// `start`. Raises 5 when `start` is negative.
std::int32_t InStrRev(TextView text, TextView sought, std::int32_t start);

/// Return the first / last `count` units, or all of them when there are fewer. Raise 5 when `count`
/// is negative.
TextView Left(TextView text, std::int32_t count);
TextView Right(TextView text, std::int32_t count);

/// Return the units from position `start` on, at most `count` of them; empty when `start` is beyond
/// the end. Raise 5 when `start` is below 1 or `count` is below 0.
TextView Mid(TextView text, std::int32_t start);
TextView Mid(TextView text, std::int32_t start, std::int32_t count);

}  // namespace lumenkit
