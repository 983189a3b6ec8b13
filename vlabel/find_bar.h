// Finding the next bar, which is most of what compiling a caption costs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/text.h"

namespace lumenkit {

inline constexpr char16_t bar = u'|';

/// Offset (from 0) of the first bar at `from` or later; the text's size when there is none.
/// `from` is at most the text's size.
inline std::size_t FindBar(TextView text, std::size_t from) {
    // Four units at a time: subtracting one borrows into the high bit of exactly the lanes that are
    // zero, or that lie above one.
    constexpr std::uint64_t ones = 0x0001'0001'0001'0001;
    constexpr std::uint64_t highBits = ones << 15;
    for (; from + 4 <= text.size(); from += 4) {
        std::uint64_t units = 0;
        std::memcpy(&units, text.data() + from, sizeof units);
        units ^= ones * bar;
        if (((units - ones) & ~units & highBits) != 0) {
            break;
        }
    }
    while (from < text.size() && text[from] != bar) {
        ++from;
    }
    return from;
}

}  // namespace lumenkit
