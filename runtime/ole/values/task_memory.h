// Memory that the client frees with CoTaskMemFree.
#pragma once

#include "frame/text.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Returns a zero-terminated copy of `text`. Throws std::bad_alloc.
LPOLESTR NewTaskText(TextView text);

/// Throws std::bad_alloc.
void* NewTaskMemory(std::size_t size);

}  // namespace lumenkit::ole
