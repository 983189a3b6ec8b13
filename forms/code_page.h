// The Windows code pages of form files.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "frame/text.h"

namespace lumenkit::forms {

/// One of the Windows code pages 1250 to 1258. Bytes and units are mapped one to one; a byte that
/// the page leaves undefined also has a separate unit.
class CodePage {
 public:
    /// Throws std::invalid_argument for an unknown page.
    explicit CodePage(int number);

    int Number() const { return number_; }
    Text Decode(std::string_view bytes) const;
    /// Returns nullopt for a unit that the page does not contain.
    std::optional<char> Encode(char16_t unit) const;

 private:
    using Half = std::array<char16_t, 128>;

    int number_;
    const Half* upper_;                                 // the units of the bytes from 128 on
    std::array<std::pair<char16_t, char>, 128> bytes_;  // the same, sorted by unit
};

}  // namespace lumenkit::forms
