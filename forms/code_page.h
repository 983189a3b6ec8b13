// The Windows code pages that form files are written in.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "frame/text.h"

namespace lumenkit::forms {

/// One of the Windows code pages 1250 to 1258. Each byte is one unit and back again: also a byte
/// that the page leaves undefined has a unit of its own.
class CodePage {
 public:
    /// Throws std::invalid_argument for a page that is not known.
    explicit CodePage(int number);

    int Number() const { return number_; }
    Text Decode(std::string_view bytes) const;
    /// Nothing for a unit that the page does not have.
    std::optional<char> Encode(char16_t unit) const;

 private:
    using Half = std::array<char16_t, 128>;

    int number_;
    const Half* upper_;                                 // the units of the bytes from 128 on
    std::array<std::pair<char16_t, char>, 128> bytes_;  // the same by unit, in order
};

}  // namespace lumenkit::forms
