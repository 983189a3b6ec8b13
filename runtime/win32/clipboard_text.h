#pragma once

#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// The text on the clipboard; empty where there is none or another program holds the clipboard.
Text ClipboardText(HWND owner);

}  // namespace lumenkit::win32
