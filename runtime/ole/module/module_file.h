// The module that this code is linked into: the component server, not the program.
#pragma once

#include <string>

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

HINSTANCE OwnModule();
/// Returns the full path of the module's file.
std::wstring OwnPath();

}  // namespace lumenkit::ole
