#include "voptlist/contents.h"

#include <cstdint>

namespace lumenkit {

namespace {

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

}  // namespace lumenkit
