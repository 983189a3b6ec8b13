// A compiled caption as text to read, for tests and tools.
#pragma once

#include <string>

#include "vlabel/compiled_caption.h"

namespace lumenkit {

/// Each line of the caption, and under it the commands that its bars stand for:
///
///     line "Hello |world|"
///       b = "1"
///       b = "0"
///
/// Names without a colon keep their closing bar, as they do in the list. Quotes, backslashes,
/// control characters and lone surrogates are escaped; the text is UTF-8. A bar whose command was
/// not kept is "(missing)"; commands whose line was not kept follow after "no line".
std::string DumpCaption(const CompiledCaption& compiled);

}  // namespace lumenkit
