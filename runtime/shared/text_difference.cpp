#include "runtime/shared/text_difference.h"

#include <algorithm>
#include <cstring>

namespace lumenkit::shared {

namespace {

// Blocks are compared as memory, which is many times faster than unit by unit.
constexpr std::size_t block = 2048;

bool AreEqual(const char16_t* one, const char16_t* other, std::size_t length) {
    return std::memcmp(one, other, length * sizeof(char16_t)) == 0;
}

// Returns the number of units, at most `most`, with which both texts begin.
std::size_t CommonStart(TextView one, TextView other, std::size_t most) {
    std::size_t same = 0;
    while (most - same >= block && AreEqual(one.data() + same, other.data() + same, block)) {
        same += block;
    }
    while (same < most && one[same] == other[same]) {
        ++same;
    }
    return same;
}

// Returns the number of units, at most `most`, with which both texts end.
std::size_t CommonEnd(TextView one, TextView other, std::size_t most) {
    const char16_t* const oneEnd = one.data() + one.size();
    const char16_t* const otherEnd = other.data() + other.size();
    std::size_t same = 0;
    while (most - same >= block &&
           AreEqual(oneEnd - same - block, otherEnd - same - block, block)) {
        same += block;
    }
    while (same < most && one[one.size() - same - 1] == other[other.size() - same - 1]) {
        ++same;
    }
    return same;
}

// Whether a position is between CR and LF.
bool SplitsBreak(TextView text, std::size_t at) {
    return at > 0 && text.substr(at - 1, 2) == crLf;
}

}  // namespace

TextDifference DifferenceOf(TextView old, TextView text) {
    const std::size_t shorter = std::min(old.size(), text.size());
    std::size_t same = CommonStart(old, text, shorter);
    if (SplitsBreak(old, same) || SplitsBreak(text, same)) {
        --same;
    }
    std::size_t tail = CommonEnd(old, text, shorter - same);
    if (tail > 0 &&
        (SplitsBreak(old, old.size() - tail) || SplitsBreak(text, text.size() - tail))) {
        --tail;
    }
    return {.start = same, .oldEnd = old.size() - tail, .newEnd = text.size() - tail};
}

TextDifference EditedPart(TextView old, TextView text, std::size_t caret) {
    const std::size_t tail = text.size() - std::min(caret, text.size());
    if (tail > old.size() || CommonEnd(old, text, tail) < tail) {
        return DifferenceOf(old, text);  // the caret is elsewhere
    }
    const std::size_t oldEnd = old.size() - tail;
    const std::size_t newEnd = text.size() - tail;
    return {.start = CommonStart(old, text, std::min(oldEnd, newEnd)),
            .oldEnd = oldEnd,
            .newEnd = newEnd};
}

}  // namespace lumenkit::shared
