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
        Begin().append(text);
        End();
    }

    /// Begins the next entry: what is appended to the text behind its size at this call is part of
    /// it. The entry is in the list once it is ended; one that is not ended is forgotten.
    Text& Begin() {
        buffer_.erase(EndOfLast());
        return buffer_;
    }
    void End() { ends_.push_back(buffer_.size()); }

    /// Empties the list and keeps its memory.
    void Clear();

 private:
    std::size_t EndOfLast() const { return ends_.empty() ? 0 : ends_.back(); }

    Text buffer_;
    std::vector<std::size_t> ends_;
};

}  // namespace lumenkit
