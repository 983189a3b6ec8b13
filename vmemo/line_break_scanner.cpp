#include "vmemo/line_break_scanner.h"

#include <cstring>

namespace lumenkit {

namespace {

constexpr std::size_t blockSize = 32;

// 1 where a break begins, else 0. Without a branch: compilers make vector instructions of the loop
// over a block.
std::uint16_t BreakAt(const char16_t* units) {
    const int differs = (units[0] ^ u'\r') | (units[1] ^ u'\n');
    return differs == 0 ? 1 : 0;
}

bool HasBreak(const char16_t* units) {
    std::uint16_t found = 0;
    for (std::size_t i = 0; i < blockSize; ++i) {
        found = static_cast<std::uint16_t>(found | BreakAt(units + i));
    }
    return found != 0;
}

// Bit i of the results says that a break begins at unit i.

// Of four units, which are the lanes of one word.
std::uint32_t BreaksOfWord(const char16_t* units) {
    static_assert(std::endian::native == std::endian::little, "the first unit is the low lane");
    constexpr std::uint64_t ones = 0x0001'0001'0001'0001;
    constexpr std::uint64_t lowBits = ones * 0x7FFF;
    std::uint64_t first = 0;
    std::uint64_t second = 0;
    std::memcpy(&first, units, sizeof first);
    std::memcpy(&second, units + 1, sizeof second);
    const std::uint64_t differs = (first ^ ones * u'\r') | (second ^ ones * u'\n');
    // The high bit of each lane that is zero, moved to the lane's low bit; the product then has the
    // four bits side by side at bit 48.
    const std::uint64_t zeros = ~(((differs & lowBits) + lowBits) | differs | lowBits) >> 15;
    return static_cast<std::uint32_t>(zeros * 0x0001'0002'0004'0008 >> 48 & 0xF);
}

std::uint32_t BreaksOfBlock(const char16_t* units) {
    std::uint32_t breaks = 0;
    for (std::size_t i = 0; i < blockSize; i += 4) {
        breaks |= BreaksOfWord(units + i) << i;
    }
    return breaks;
}

std::uint32_t BreaksOfTail(const char16_t* units, std::size_t count) {
    std::uint32_t breaks = 0;
    for (std::size_t i = 0; i < count; ++i) {
        breaks |= static_cast<std::uint32_t>(BreakAt(units + i)) << i;
    }
    return breaks;
}

}  // namespace

void LineBreakScanner::EnterBlock(std::size_t from) {
    const char16_t* const units = text_.data();
    // The last unit of a block is looked at together with the one behind the block.
    while (text_.size() - from > blockSize && !HasBreak(units + from)) {
        from += blockSize;
    }
    block_ = from;
    blockEnd_ = from + blockSize;
    const std::size_t left = text_.size() - from;
    breaks_ = left > blockSize ? BreaksOfBlock(units + from) : BreaksOfTail(units + from, left - 1);
}

}  // namespace lumenkit
