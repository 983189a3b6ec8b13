// The module that this code is linked into: the component server, not the program.
#pragma once

#include <string>

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

HINSTANCE OwnModule();
/// Returns the full path of the module's file.
std::wstring OwnPath();
/// Whether two paths name the same file. Compares the paths without regard to case, in their long
/// form if the files exist.
bool IsSameFile(const std::wstring& one, const std::wstring& other);

}  // namespace lumenkit::ole
