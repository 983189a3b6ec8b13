#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/text.h"

namespace lumenkit {

/// An ordered list of texts, counted from 1. All of them share one buffer, so that a list that is
/// cleared and filled again allocates nothing once it has grown.
class TextList {
 public:
    std::int32_t Count() const { return static_cast<std::int32_t>(ends_.size()); }

    /// The entry at `index`, valid until the list changes. Raises 9 outside 1..Count().
    TextView Item(std::int32_t index) const;

    void Add(TextView text) {
        buffer_.append(text);
        ends_.push_back(buffer_.size());
    }

    /// Empties the list and keeps its memory.
    void Clear();

 private:
    Text buffer_;
    std::vector<std::size_t> ends_;
};

}  // namespace lumenkit
