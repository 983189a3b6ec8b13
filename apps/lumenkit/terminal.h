#pragma once

namespace lumenkit::cli {

enum class Stream { Output, Errors };

/// Whether a person looks at the stream.
bool IsTerminal(Stream stream);

/// Whether what goes there may be coloured: a terminal that knows how, and nobody has set NO_COLOR.
bool TakesColors(Stream stream);

}  // namespace lumenkit::cli
