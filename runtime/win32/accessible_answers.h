// What the objects that screen readers read have in common.
#pragma once

#include <optional>

#include <oleacc.h>

#include "frame/text.h"
#include "runtime/win32/accessibility.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Returns the description of a window. Without a result the window does not describe itself, or it
/// no longer exists: a client may ask later than that.
std::optional<Description> DescriptionOf(HWND handle) noexcept;

/// Returns S_FALSE and no string for an empty text.
HRESULT Give(TextView text, BSTR* target) noexcept;
HRESULT Give(LONG number, VARIANT* target) noexcept;

}  // namespace lumenkit::win32
