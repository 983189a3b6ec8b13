#pragma once

#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the text on the clipboard. Returns an empty text if there is none or if another program
/// holds the clipboard.
Text ClipboardText(HWND owner);

}  // namespace lumenkit::win32
