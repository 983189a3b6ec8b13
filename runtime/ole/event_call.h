// Raising an event with listeners.
#pragma once

#include <span>

#include "frame/automation/interface_table.h"
#include "runtime/ole/connection_point.h"

namespace lumenkit::ole {

/// Calls the event on every listener. Arguments go by reference: what a listener assigns is seen by
/// the next one and is in `arguments` afterwards, in the event's types. Failures of listeners do
/// not come back.
void RaiseEvent(const ConnectionPoint& point, const Event& event, std::span<Value> arguments);

}  // namespace lumenkit::ole
