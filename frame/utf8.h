// Conversion between UTF-8, used by files and terminals, and the controls' UTF-16.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit {

/// Thrown for bytes that are not well-formed UTF-8. `offset` is the byte offset, from 0, of the
/// start of the bad sequence.
class MalformedUtf8 : public std::runtime_error {
 public:
    explicit MalformedUtf8(std::size_t badOffset)
        : std::runtime_error("not valid UTF-8 at byte " + std::to_string(badOffset)),
          offset(badOffset) {}
    std::size_t offset;
};

/// Throws MalformedUtf8 on overlong forms, surrogates, values past U+10FFFF and truncated
/// sequences.
Text FromUtf8(std::string_view bytes);

/// Replaces an unpaired surrogate, which UTF-8 cannot represent, by U+FFFD.
std::string ToUtf8(TextView text);

}  // namespace lumenkit
