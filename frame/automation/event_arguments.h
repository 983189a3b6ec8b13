#pragma once

#include <span>

#include "frame/automation/value.h"

namespace lumenkit {

/// Gives each argument the type back in which it went out to a container, which may have assigned
/// any value. What does not convert gets its old value. Both have the same number of elements.
void RestoreTypes(std::span<Value> arguments, std::span<const Value> originals);

}  // namespace lumenkit
