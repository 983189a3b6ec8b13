#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/text.h"

namespace lumenkit {

/// An ordered list of texts, indexed from 1. All texts share one buffer, so that a list that is
/// cleared and filled again allocates nothing once the buffer has grown.
class TextList {
 public:
    std::int32_t Count() const { return static_cast<std::int32_t>(ends_.size()); }

    /// Returns the entry at `index`, valid until the list changes. Raises 9 outside 1..Count().
    TextView Item(std::int32_t index) const;

    void Add(TextView text) {
        Begin().append(text);
        End();
    }

    /// Begins the next entry: everything appended to the returned text belongs to it. The entry is
    /// added when End() is called; without that call it is discarded.
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
