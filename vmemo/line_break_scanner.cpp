#include "vmemo/line_break_scanner.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace lumenkit {

namespace {

constexpr std::size_t blockSize = 64;

// Bit i of each result is set when a line break begins at unit i.

std::uint64_t BreaksOfTail(const char16_t* units, std::size_t count) {
    std::uint64_t breaks = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t begins = units[i] == u'\r' && units[i + 1] == u'\n' ? 1 : 0;
        breaks |= begins << i;
    }
    return breaks;
}

#ifdef __SSE2__

// Bit masks of the CR and LF units of a block.
struct BreakUnits {
    std::uint64_t returns = 0;
    std::uint64_t feeds = 0;
};

BreakUnits FindBreakUnits(const char16_t* units) {
    constexpr std::size_t step = 16;
    const __m128i carriageReturn = _mm_set1_epi8('\r');
    const __m128i lineFeed = _mm_set1_epi8('\n');
    const auto bits = [](__m128i bytes) {
        return std::uint64_t{static_cast<std::uint16_t>(_mm_movemask_epi8(bytes))};
    };
    BreakUnits found;
    for (std::size_t i = 0; i < blockSize; i += step) {
        const void* const start = units + i;
        const auto* const at = static_cast<const __m128i*>(start);
        // Saturates each unit to a byte: units that do not fit become 0 or 255.
        const __m128i bytes = _mm_packus_epi16(_mm_loadu_si128(at), _mm_loadu_si128(at + 1));
        found.returns |= bits(_mm_cmpeq_epi8(bytes, carriageReturn)) << i;
        found.feeds |= bits(_mm_cmpeq_epi8(bytes, lineFeed)) << i;
    }
    return found;
}

std::uint64_t BreaksOfBlock(const char16_t* units) {
    const BreakUnits found = FindBreakUnits(units);
    const std::uint64_t feedAfter = units[blockSize] == u'\n' ? 1 : 0;
    return found.returns & (found.feeds >> 1 | feedAfter << (blockSize - 1));
}

#else

std::uint64_t BreaksOfBlock(const char16_t* units) {
    return BreaksOfTail(units, blockSize);
}

#endif

}  // namespace

void LineBreakScanner::EnterBlock(std::size_t from) {
    // A block is scanned together with the unit after its last one.
    std::size_t left = text_.size() - from;
    std::uint64_t breaks = 0;
    while (left > blockSize) {
        breaks = BreaksOfBlock(text_.data() + from);
        if (breaks != 0) {
            break;
        }
        from += blockSize;
        left -= blockSize;
    }
    if (left <= blockSize) {
        breaks = BreaksOfTail(text_.data() + from, left - 1);
    }
    block_ = from;
    blockEnd_ = from + blockSize;
    breaks_ = breaks;
}

}  // namespace lumenkit
