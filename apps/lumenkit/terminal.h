#pragma once

namespace lumenkit::cli {

enum class Stream { Output, Errors };

/// Returns whether the stream is a terminal.
bool IsTerminal(Stream stream);

/// Returns whether output to the stream may be coloured: it is a terminal with colours, and
/// NO_COLOR is not set.
bool TakesColors(Stream stream);

}  // namespace lumenkit::cli
