// Finds the line breaks of a text, which takes most of the time of restricting it.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// Finds the CR LF pairs of a text from front to back. It scans one block of units at a time and
/// remembers the line breaks that begin in it, so that a block with many short lines is scanned
/// only once.
class LineBreakScanner {
 public:
    /// The text must outlive the scanner.
    explicit LineBreakScanner(TextView text) : text_(text) {}

    /// Returns the offset (from 0) of the first CR LF at `from` or later, the size of the text when
    /// there is none. `from` must not be less than in the previous call.
    std::size_t Next(std::size_t from) {
        while (true) {
            if (from < blockEnd_) {
                if (const std::uint64_t ahead = breaks_ >> (from - block_); ahead != 0) {
                    return from + static_cast<std::size_t>(std::countr_zero(ahead));
                }
                from = blockEnd_;
            }
            if (from + 1 >= text_.size()) {
                return text_.size();
            }
            EnterBlock(from);
            from = block_;
        }
    }

 private:
    /// Scans forward from `from` to the first block in which line breaks begin, or to the last
    /// block.
    void EnterBlock(std::size_t from);

    TextView text_;
    std::size_t block_ = 0;  // offsets of the block's start and end
    std::size_t blockEnd_ = 0;
    std::uint64_t breaks_ = 0;  // bit i is set when a line break begins at block_ + i
};

}  // namespace lumenkit
