#include "voptlist/contents.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "frame/text_positions.h"

namespace lumenkit {

namespace {

constexpr char16_t separator = u'|';
constexpr std::size_t longest = 32'766;

std::size_t CountBars(TextView text) {
    return static_cast<std::size_t>(std::ranges::count(text, separator));
}

// Returns the number of units that both texts have in common at the start.
std::size_t CommonBeginning(TextView left, TextView right) {
    constexpr std::size_t block = 64;
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t same = 0;
    while (same + block <= shorter &&
           std::memcmp(left.data() + same, right.data() + same, block * sizeof(char16_t)) == 0) {
        same += block;
    }
    while (same < shorter && left[same] == right[same]) {
        ++same;
    }
    return same;
}

std::size_t CommonEnd(TextView left, TextView right) {
    constexpr std::size_t block = 64;
    const std::size_t shorter = std::min(left.size(), right.size());
    const char16_t* const leftEnd = left.data() + left.size();
    const char16_t* const rightEnd = right.data() + right.size();
    std::size_t same = 0;
    while (same + block <= shorter && std::memcmp(leftEnd - same - block, rightEnd - same - block,
                                                  block * sizeof(char16_t)) == 0) {
        same += block;
    }
    while (same < shorter && *(leftEnd - same - 1) == *(rightEnd - same - 1)) {
        ++same;
    }
    return same;
}

ContentsItem SplitItem(TextView item) {
    const std::int32_t semicolon = InStr(1, item, u";");
    if (semicolon == 0) {
        return {.value = item, .caption = item};
    }
    return {.value = Left(item, semicolon - 1), .caption = Mid(item, semicolon + 1)};
}

}  // namespace

std::optional<ContentsItem> ContentsWalk::Next() {
    const std::int32_t length = Len(contents_);
    if (end_.Value() > length) {
        return std::nullopt;
    }
    const Int16 start = end_ + 1;
    const bool first = start == 1;
    if (!first && start.Value() > length) {
        return std::nullopt;
    }
    const std::int32_t bar = InStr(start.Value(), contents_, u"|");
    end_ = bar > 0 ? Int16(bar) : Int16(length) + 1;
    return SplitItem(Mid(contents_, start.Value(), end_.Value() - start.Value()));
}

ContentsChange FindChange(TextView former, TextView contents) {
    const TextView beginning = contents.substr(0, CommonBeginning(former, contents));
    ContentsChange change{.firstItem = static_cast<std::int16_t>(CountBars(beginning)),
                          .begin = beginning.rfind(separator) + 1,
                          .end = contents.size()};
    const TextView formerRest = former.substr(beginning.size());
    const TextView rest = contents.substr(beginning.size());
    const std::size_t ending = CommonEnd(formerRest, rest);
    const std::size_t lastBegun = contents.find(separator, contents.size() - ending);
    // The walk over a longer text must reach the overflow, so none of its items are skipped.
    if (lastBegun == TextView::npos || contents.size() > longest ||
        CountBars(formerRest.substr(0, formerRest.size() - ending)) !=
            CountBars(rest.substr(0, rest.size() - ending))) {
        return change;
    }
    change.end = lastBegun + 1;
    change.sameCount = true;
    return change;
}

}  // namespace lumenkit
