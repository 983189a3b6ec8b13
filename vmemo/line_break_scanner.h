// Finding the line breaks of a text, which is most of what holding it to limits costs.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// Finds the CR LFs of a text from front to back. It looks at a block of units at a time and keeps
/// where in it line breaks begin, so that short lines do not make it look twice.
class LineBreakScanner {
 public:
    /// The text must outlive the scanner.
    explicit LineBreakScanner(TextView text) : text_(text) {}

    /// Offset (from 0) of the first CR LF at `from` or later, the text's size when there is none.
    /// `from` must not be less than in the call before.
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
    /// Looks at the units from `from` on until it has a block in which line breaks begin, or the
    /// text's last one.
    void EnterBlock(std::size_t from);

    TextView text_;
    std::size_t block_ = 0;  // where the block begins and ends
    std::size_t blockEnd_ = 0;
    std::uint64_t breaks_ = 0;  // bit i: a line break begins at block_ + i
};

}  // namespace lumenkit
