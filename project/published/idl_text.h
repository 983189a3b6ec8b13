// Helpers that format parts of an interface definition.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/text.h"

namespace lumenkit::idl {

/// A list of attributes in the order of addition, formatted as "[a, b]".
class Attributes {
 public:
    Attributes& Add(std::string attribute);
    Attributes& AddIf(bool condition, std::string_view attribute);
    /// Adds a help string. Adds nothing if `help` is empty.
    Attributes& AddHelp(TextView help);

    /// Returns the formatted list; an empty text if there are no attributes.
    std::string Written() const;

 private:
    std::vector<std::string> attributes_;
};

/// Returns `text` as a string literal in UTF-8, quoted and escaped.
std::string Quoted(TextView text);

/// Returns the items separated by commas: "a, b, c".
std::string Listed(const std::vector<std::string>& items);

}  // namespace lumenkit::idl
