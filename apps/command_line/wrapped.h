// Lays out help for terminals.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lumenkit::cli {

inline constexpr std::size_t terminalWidth = 80;

/// Breaks a text without line breaks into lines of at most `width` bytes, at blanks. Lines after
/// the first begin with `indent` more blanks. A longer word has a line of its own.
std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent = 0);

/// Breaks the lines of a text that are wider than a terminal. In a row of a table, which begins
/// with a blank, the rest of the line continues in the last column.
std::string FittedToTerminal(std::string_view text);

}  // namespace lumenkit::cli
