#pragma once

#include <stdexcept>
#include <string>

#include "frame/text.h"

namespace lumenkit::cli {

/// Input that cannot be used; what() says which and why.
class UnusableInput : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// The text of a UTF-8 file, or of the standard input where `path` is "-". One line break (LF or
/// CR LF) at its very end is left out: editors and echo put it there. Throws UnusableInput.
Text ReadText(const std::string& path);

}  // namespace lumenkit::cli
