// Dumps a compiled caption as readable text, for tests and tools.
#pragma once

#include <string>

#include "vlabel/compiled_caption.h"

namespace lumenkit {

/// Returns each line of the caption, followed by the commands of its bars:
///
///     line "Hello |world|"
///       b = "1"
///       b = "0"
///
/// Names without a colon keep their closing bar, as in the list. Quotes, backslashes, control
/// characters and lone surrogates are escaped; the text is UTF-8. A bar without a command in the
/// list is written as "(missing)"; commands without a bar follow after "no line".
std::string DumpCaption(const CompiledCaption& compiled);

}  // namespace lumenkit
