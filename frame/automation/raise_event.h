// Raising events from typed variables.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "frame/automation/value_type.h"
#include "frame/host/container.h"

namespace lumenkit {

/// Raises the event and passes `arguments` by reference: when the call returns, they hold the
/// values that the container assigned.
template <typename... Arguments>
void RaiseEvent(host::Container& container, std::int32_t event, Arguments&... arguments) {
    std::array<Value, sizeof...(Arguments)> values{Automation<Arguments>::To(arguments)...};
    container.RaiseEvent(event, values);
    std::size_t index = 0;
    ((arguments = Automation<Arguments>::From(values[index++])), ...);
}

}  // namespace lumenkit
