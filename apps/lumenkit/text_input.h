#pragma once

#include <stdexcept>
#include <string>

#include "frame/text.h"

namespace lumenkit::cli {

/// Input that cannot be used; what() names it and gives the reason.
class UnusableInput : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Reads a UTF-8 file, or the standard input if `path` is "-". Removes one line break (LF or CR LF)
/// at the end, because editors and echo add one. Throws UnusableInput.
Text ReadText(const std::string& path);

/// Reads a file, or the standard input if `path` is "-". Throws UnusableInput.
std::string ReadBytes(const std::string& path);

}  // namespace lumenkit::cli
