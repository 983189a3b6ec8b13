#pragma once

#include "runtime/qt/context.h"

namespace lumenkit::widgets {

/// Returns what all controls of the program share. Their messages go to the handler of the program.
const qt::Context& Program();

}  // namespace lumenkit::widgets
