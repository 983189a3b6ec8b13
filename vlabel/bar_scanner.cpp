#include "vlabel/bar_scanner.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace lumenkit {

namespace {

constexpr std::size_t blockSize = 64;

// Bit i of each result is set when unit i is a bar.

std::uint64_t BarsOfUnits(const char16_t* units, std::size_t count) {
    std::uint64_t found = 0;
    for (std::size_t i = 0; i < count; ++i) {
        found |= std::uint64_t{units[i] == bar ? 1U : 0U} << i;
    }
    return found;
}

#ifdef __SSE2__

std::uint64_t BarsOfBlock(const char16_t* units, std::size_t count) {
    constexpr std::size_t step = 8;
    const __m128i bars = _mm_set1_epi16(bar);
    std::uint64_t found = 0;
    std::size_t i = 0;
    for (; i + step <= count; i += step) {
        const void* const at = units + i;
        const __m128i equal =
            _mm_cmpeq_epi16(_mm_loadu_si128(static_cast<const __m128i*>(at)), bars);
        const int bits = _mm_movemask_epi8(_mm_packs_epi16(equal, _mm_setzero_si128()));
        found |= static_cast<std::uint64_t>(bits) << i;
    }
    return i == count ? found : found | BarsOfUnits(units + i, count - i) << i;
}

#else

std::uint64_t BarsOfBlock(const char16_t* units, std::size_t count) {
    return BarsOfUnits(units, count);
}

#endif

}  // namespace

void BarScanner::EnterBlock(std::size_t from) {
    block_ = from;
    blockEnd_ = std::min(from + blockSize, text_.size());
    bars_ = BarsOfBlock(text_.data() + from, blockEnd_ - block_);
}

}  // namespace lumenkit
