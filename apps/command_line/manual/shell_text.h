// Texts in scripts for shells.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lumenkit::cli {

/// The text in single quotes, for bash and zsh.
std::string PosixQuoted(std::string_view text);

/// The text in single quotes, for fish.
std::string FishQuoted(std::string_view text);

/// The words with `separator` between them.
std::string Joined(const std::vector<std::string>& words, std::string_view separator);

/// Returns the text with a backslash before each of these letters.
std::string WithBackslashes(std::string_view text, std::string_view letters);

/// "lumenkit-check" becomes "lumenkit_check", for names of functions.
std::string FunctionName(std::string_view text);

}  // namespace lumenkit::cli
