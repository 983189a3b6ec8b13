// Raising events from typed variables.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "frame/automation/value_type.h"
#include "frame/host/container.h"

namespace lumenkit {

/// Raises the event with `arguments` by reference: what the container assigns to them is there when
/// the call returns.
template <typename... Arguments>
void RaiseEvent(host::Container& container, std::int32_t event, Arguments&... arguments) {
    std::array<Value, sizeof...(Arguments)> values{Automation<Arguments>::To(arguments)...};
    container.RaiseEvent(event, values);
    std::size_t index = 0;
    ((arguments = Automation<Arguments>::From(values[index++])), ...);
}

}  // namespace lumenkit
