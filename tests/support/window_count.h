#pragma once

#include "runtime/win32/window.h"

namespace lumenkit::testing {

/// Returns the number of the library's windows on this thread.
inline int WindowCount() {
    const auto* const own = win32::ThreadShared<win32::OwnWindows>::IfAny();
    return own == nullptr ? 0 : static_cast<int>(own->size());
}

}  // namespace lumenkit::testing
