#pragma once

#include <string>
#include <vector>

#include "frame/text.h"
#include "runtime/memory/log.h"

namespace lumenkit::testing {

/// What the container and the person at the screen saw, and empties the log: "changed Caption",
/// "event Click", "error 6 in SetIdealSize" (a beep, then the whole message of the module
/// `fileName` in its box), or whatever else was shown.
std::vector<std::string> TakeLogLines(memory::Log& log, TextView fileName);

}  // namespace lumenkit::testing
