// Finding the line breaks of a text, which is most of what holding it to limits costs.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

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
                if (const std::uint32_t ahead = breaks_ >> (from - block_); ahead != 0) {
                    return from + static_cast<std::size_t>(std::countr_zero(ahead));
                }
                from = blockEnd_;
            }
            if (from + 1 >= text_.size()) {
                return text_.size();
            }
            EnterBlock(from);
        }
    }

 private:
    static constexpr std::size_t blockSize = 32;

    void EnterBlock(std::size_t from) {
        block_ = from;
        blockEnd_ = from + blockSize;
        const char16_t* units = text_.data() + from;
        // The last unit of a block is looked at together with the one behind the block.
        if (text_.size() - from > blockSize) {
            breaks_ = HasBreak(units) ? Breaks(units) : 0;
        } else {
            breaks_ = BreaksOfTail(units, text_.size() - from - 1);
        }
    }

    static bool IsBreak(const char16_t* units) { return (units[0] == u'\r') & (units[1] == u'\n'); }

    // Without a branch inside: compilers make vector instructions of it.
    static bool HasBreak(const char16_t* units) {
        std::uint16_t found = 0;
        for (std::size_t i = 0; i < blockSize; ++i) {
            found = static_cast<std::uint16_t>(found | IsBreak(units + i));
        }
        return found != 0;
    }

    static std::uint32_t BreaksOfTail(const char16_t* units, std::size_t count) {
        std::uint32_t breaks = 0;
        for (std::size_t i = 0; i < count; ++i) {
            breaks |= static_cast<std::uint32_t>(IsBreak(units + i)) << i;
        }
        return breaks;
    }

    static std::uint32_t Breaks(const char16_t* units) {
        std::uint32_t breaks = 0;
        for (std::size_t i = 0; i < blockSize; i += 4) {
            breaks |= BreaksOfWord(units + i) << i;
        }
        return breaks;
    }

    // Four units in the lanes of one word: bit i of the result says that a break begins at unit i.
    static std::uint32_t BreaksOfWord(const char16_t* units) {
        static_assert(std::endian::native == std::endian::little, "the first unit is the low lane");
        constexpr std::uint64_t ones = 0x0001'0001'0001'0001;
        constexpr std::uint64_t lowBits = ones * 0x7FFF;
        std::uint64_t first = 0;
        std::uint64_t second = 0;
        std::memcpy(&first, units, sizeof first);
        std::memcpy(&second, units + 1, sizeof second);
        const std::uint64_t differs = (first ^ ones * u'\r') | (second ^ ones * u'\n');
        // The high bit of each lane that is zero, moved to the lane's low bit, then the four lanes'
        // bits gathered side by side at the top of the product.
        const std::uint64_t zeros = ~(((differs & lowBits) + lowBits) | differs | lowBits) >> 15;
        return static_cast<std::uint32_t>(zeros * 0x0001'0002'0004'0008 >> 48 & 0xF);
    }

    TextView text_;
    std::size_t block_ = 0;
    std::size_t blockEnd_ = 0;
    std::uint32_t breaks_ = 0;  // bit i: a line break begins at block_ + i
};

}  // namespace lumenkit
