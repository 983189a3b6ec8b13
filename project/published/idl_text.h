// Pieces of interface definitions.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/text.h"

namespace lumenkit::idl {

/// Attributes in the order in which they were added, written "[a, b]".
class Attributes {
 public:
    Attributes& Add(std::string attribute);
    Attributes& AddIf(bool condition, std::string_view attribute);
    /// Adds nothing where `help` is empty.
    Attributes& AddHelp(TextView help);

    /// Nothing at all without attributes.
    std::string Written() const;

 private:
    std::vector<std::string> attributes_;
};

/// A literal, quoted and escaped.
std::string Quoted(TextView text);

/// "a, b, c".
std::string Listed(const std::vector<std::string>& items);

}  // namespace lumenkit::idl
