#pragma once

#include <algorithm>

#include "frame/text.h"

namespace lumenkit::win32 {

/// Returns a text as it is measured and drawn: with blanks for control characters, for which fonts
/// have boxes. Returns `text` itself if it has none, otherwise a copy in `copy`.
inline TextView DrawnText(TextView text, Text& copy) {
    if (std::ranges::none_of(text, &IsControl)) {
        return text;
    }
    copy.assign(text);
    std::ranges::replace_if(copy, &IsControl, blank);
    return copy;
}

}  // namespace lumenkit::win32
