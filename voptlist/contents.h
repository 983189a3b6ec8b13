// The text that defines an option list: "Value1;Caption1|Value2;Caption2 ... etc".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "frame/checked_integer.h"
#include "frame/text.h"

namespace lumenkit {

/// One item; both are views into the text walked over.
struct ContentsItem {
    TextView value;
    TextView caption;
};

/// A walk over the items of a contents text, in order.
///
/// Bars separate items; the first semicolon of an item separates its value from its caption. An
/// item without one is its own value and caption. Nothing is trimmed, nothing escaped. An empty
/// text is one empty item; a bar at the very end adds none.
///
/// Positions are 16-bit: of a text of more than 32,766 units the walk gives the items that it
/// reaches before a position overflows.
class ContentsWalk {
 public:
    /// `contents` must outlive the walk and the items it gives. The walk begins with the item that
    /// begins at offset `begin` (from 0, at most 32,767), which is where a bar ends or 0.
    explicit ContentsWalk(TextView contents, std::size_t begin = 0)
        : contents_(contents), end_(static_cast<std::int16_t>(begin)) {}

    /// The next item; nothing behind the last one. Raises 6 where a position passes 32,767.
    std::optional<ContentsItem> Next();

 private:
    TextView contents_;
    Int16 end_;  ///< position of the bar behind the item last given, or just past the text
};

/// Which part of a contents text has other items than a former one, which is of at most 32,766
/// units. Offsets are from 0.
struct ContentsChange {
    std::int16_t firstItem = 0;  ///< those before it are the same
    std::size_t begin = 0;       ///< where it begins
    std::size_t end = 0;         ///< where the items begin that are again the same as before
    bool sameCount = false;      ///< those behind `end` are as many as before, with the same index
};
ContentsChange FindChange(TextView former, TextView contents);

}  // namespace lumenkit
