#pragma once

#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the text of the label that names a window, as in a dialog: the visible window directly
/// before it in the tab order, if that is a label. A window that is alone in its parent, as the
/// parts of a control and the controls of some containers are, is named by the label before the
/// parent. Empty if there is no such label.
Text LabelBefore(HWND window);

}  // namespace lumenkit::win32
