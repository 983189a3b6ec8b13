#pragma once

#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit::testing {

/// Returns `count` copies of the text, one after another.
inline Text Repeated(TextView text, int count) {
    Text repeated;
    for (; count > 0; --count) {
        repeated += text;
    }
    return repeated;
}

inline std::string Repeated(std::string_view text, int count) {
    std::string repeated;
    for (; count > 0; --count) {
        repeated += text;
    }
    return repeated;
}

}  // namespace lumenkit::testing
