#pragma once

#include <string>
#include <vector>

#include "frame/text.h"
#include "runtime/memory/log.h"

namespace lumenkit::testing {

/// Returns the log as lines and empties it: "changed Caption", "event Click", "message ..." for a
/// message box. A beep and an error box of the module `fileName` give "error 6 in SetIdealSize", or
/// the whole text if the box has an unexpected text.
std::vector<std::string> TakeLogLines(memory::Log& log, TextView fileName);

}  // namespace lumenkit::testing
