// Finds the bars of a text, which takes most of the time of compiling a caption.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

inline constexpr char16_t bar = u'|';

/// Finds the bars of a text from front to back. It scans one block of units at a time and remembers
/// the bars in it, so that a block with many short runs is scanned only once.
class BarScanner {
 public:
    /// The text must outlive the scanner.
    explicit BarScanner(TextView text) : text_(text) {}

    /// Returns the offset (from 0) of the first bar at `from` or later, the size of the text when
    /// there is none. `from` must not be less than in the previous call.
    std::size_t Next(std::size_t from) {
        while (from >= blockEnd_ || bars_ >> (from - block_) == 0) {
            from = from < blockEnd_ ? blockEnd_ : from;
            if (from >= text_.size()) {
                return text_.size();
            }
            EnterBlock(from);
        }
        return from + static_cast<std::size_t>(std::countr_zero(bars_ >> (from - block_)));
    }

 private:
    void EnterBlock(std::size_t from);

    TextView text_;
    std::size_t block_ = 0;  // offsets of the block's start and end
    std::size_t blockEnd_ = 0;
    std::uint64_t bars_ = 0;  // bit i is set when a bar is at block_ + i
};

}  // namespace lumenkit
