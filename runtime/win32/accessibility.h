// The answers of a control's window to screen readers, which read its text and its kind.
#pragma once

#include <cstddef>
#include <optional>

#include "frame/text.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Answers WM_GETOBJECT. Without a result the platform's default answer applies.
std::optional<LRESULT> AccessibleKind(HWND window, LPARAM object);

/// Answers WM_GETTEXT: copies as much of `text` as fits into `room` units with the terminating
/// zero, and returns the number of units before the zero. If `target` is null, returns the length
/// of the whole text.
LRESULT CopyText(TextView text, std::size_t room, wchar_t* target);

}  // namespace lumenkit::win32
