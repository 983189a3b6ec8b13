// Finding the next bar, which is most of what compiling a caption costs.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/text.h"

namespace lumenkit {

inline constexpr char16_t bar = u'|';

/// Offset (from 0) of the first bar at `from` or later; the text's size when there is none.
/// `from` is at most the text's size.
inline std::size_t FindBar(TextView text, std::size_t from) {
    // Four units at a time. Where a lane is zero, taking one off sets its high bit; the borrow can
    // mislead only about the lanes above it.
    constexpr std::uint64_t ones = 0x0001'0001'0001'0001;
    constexpr std::uint64_t highBits = ones << 15;
    for (; from + 4 <= text.size(); from += 4) {
        std::uint64_t units = 0;
        std::memcpy(&units, text.data() + from, sizeof units);
        units ^= ones * bar;
        const std::uint64_t bars = (units - ones) & ~units & highBits;
        if (bars != 0) {
            if constexpr (std::endian::native == std::endian::little) {
                return from + static_cast<std::size_t>(std::countr_zero(bars)) / 16;
            }
            break;
        }
    }
    while (from < text.size() && text[from] != bar) {
        ++from;
    }
    return from;
}

}  // namespace lumenkit
