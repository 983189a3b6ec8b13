#pragma once

namespace lumenkit::cli {

enum class Stream { Output, Errors };

/// When output is coloured. Auto: on terminals, if the environment does not say otherwise.
enum class Coloring { Auto, Always, Never };

/// Returns whether the stream is a terminal.
bool IsTerminal(Stream stream);

/// Returns whether output to the stream is coloured. The environment counts for Auto only: NO_COLOR
/// turns colours off, CLICOLOR_FORCE turns them on for any stream, and NO_COLOR is stronger. A
/// terminal whose TERM is "dumb" has no colours.
bool TakesColors(Stream stream, Coloring color);

}  // namespace lumenkit::cli
