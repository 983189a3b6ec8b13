// The text that defines an option list: "Value1;Caption1|Value2;Caption2 ... etc".
#pragma once

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
    /// `contents` must outlive the walk and the items it gives.
    explicit ContentsWalk(TextView contents) : contents_(contents) {}

    /// The next item; nothing behind the last one. Raises 6 where a position passes 32,767.
    std::optional<ContentsItem> Next();

 private:
    TextView contents_;
    Int16 end_ = 0;  ///< position of the bar behind the item last given, or just past the text
};

}  // namespace lumenkit
