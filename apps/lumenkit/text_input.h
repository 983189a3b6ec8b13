#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "frame/text.h"

namespace lumenkit::cli {

/// Input that cannot be used; what() names it and gives the reason.
class UnusableInput : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// The contents of a UTF-8 file with one text.
struct TextFile {
    Text text;              ///< without the line break at the end
    std::string lineBreak;  ///< one line break (LF or CR LF) at the end, because editors and echo
                            ///< add one; else empty
};

/// Whether a path names the standard input: "-", "/dev/stdin" and the like.
bool IsStandardInput(const std::string& path);

/// Throws UnusableInput for bytes that are not UTF-8. `path` names them in errors.
TextFile TextFileOf(const std::string& path, std::string_view bytes);

/// Reads a text from a file or from the standard input. Throws UnusableInput, also for a named
/// pipe, whose reader would wait for a writer.
Text ReadText(const std::string& path);

/// Reads a file or the standard input. Throws UnusableInput as ReadText does.
std::string ReadBytes(const std::string& path);

}  // namespace lumenkit::cli
