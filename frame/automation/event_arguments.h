#pragma once

#include <span>

#include "frame/automation/value.h"

namespace lumenkit {

/// Converts each argument back to the type that it had when the event was raised; a container may
/// have assigned a value of any type. An argument that does not convert gets its original value.
/// Both spans have the same number of elements.
void RestoreTypes(std::span<Value> arguments, std::span<const Value> originals);

}  // namespace lumenkit
