// Parses the text that defines an option list: "Value1;Caption1|Value2;Caption2 ... etc".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "frame/checked_integer.h"
#include "frame/text.h"

namespace lumenkit {

/// One item. Both fields are views of the text that is walked.
struct ContentsItem {
    TextView value;
    TextView caption;
};

/// Walks the items of a contents text, in order.
///
/// Bars separate items; the first semicolon of an item separates its value from its caption. The
/// text of an item without a semicolon is both its value and its caption. Nothing is trimmed or
/// escaped. An empty text is one empty item; a bar at the very end adds no item.
///
/// Positions are 16-bit: in a text of more than 32,766 units, the walk returns the items before the
/// position that overflows.
class ContentsWalk {
 public:
    /// `contents` must outlive the walk and the items that it returns. The walk starts with the
    /// item at offset `begin` (from 0, at most 32,767), which must be 0 or the offset after a bar.
    explicit ContentsWalk(TextView contents, std::size_t begin = 0)
        : contents_(contents), end_(static_cast<std::int16_t>(begin)) {}

    /// Returns the next item; nullopt after the last one. Raises 6 when a position exceeds 32,767.
    std::optional<ContentsItem> Next();

 private:
    TextView contents_;
    Int16 end_;  ///< position of the bar after the last returned item, or just past the text
};

/// The part of a contents text whose items differ from a former text of at most 32,766 units.
/// Offsets are from 0.
struct ContentsChange {
    std::int16_t firstItem = 0;  ///< the items before it are unchanged
    std::size_t begin = 0;       ///< start of the changed part
    std::size_t end = 0;         ///< start of the items that are unchanged again
    bool sameCount = false;  ///< the items after `end` are as many as before and keep their indices
};
ContentsChange FindChange(TextView former, TextView contents);

}  // namespace lumenkit
