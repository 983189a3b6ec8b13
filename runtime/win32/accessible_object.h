// The objects through which screen readers read windows.
#pragma once

#include <optional>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Answers WM_GETOBJECT of a window that describes itself; see Described. Without a result the
/// platform's default answer applies.
///
/// The client gets an IAccessible. It gives the window's own description where there is one, and
/// passes all other questions on to the platform's description of such a window. Hidden child
/// windows do not exist in it. A position in a group is offered as the properties PositionInSet and
/// SizeOfSet of an IAccessibleEx.
std::optional<LRESULT> AnswerObjectRequest(HWND window, WPARAM wParam, LPARAM lParam);

}  // namespace lumenkit::win32
