// Characters of the code pages with two bytes per character, from the system.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit::forms {

/// Converts single characters between a code page and UTF-16: with iconv, on Windows with the
/// functions of the system.
class SystemCodePage {
 public:
    /// Throws std::invalid_argument if the system does not have the page.
    explicit SystemCodePage(int number);
    ~SystemCodePage();
    SystemCodePage(const SystemCodePage&) = delete;
    SystemCodePage& operator=(const SystemCodePage&) = delete;

    /// Returns nullopt unless the bytes are exactly one character of the Basic Multilingual Plane.
    std::optional<char16_t> Decode(std::string_view bytes) const;
    /// Returns nullopt for a unit that the page does not contain.
    std::optional<std::string> Encode(char16_t unit) const;

 private:
    struct Converters;

    int number_;
    std::unique_ptr<Converters> converters_;  // those of iconv
};

}  // namespace lumenkit::forms
