// The automation interface of VLabel.
#pragma once

#include <cstdint>

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"

namespace lumenkit {

/// Identifiers of the events in the class's event table.
enum class VLabelEvent : std::int32_t {
    Click = 1,
    DblClick = 2,
    MouseDown = 3,
    MouseMove = 4,
    MouseUp = 5,
};

extern const InterfaceTable vlabelInterface;
extern const EventTable vlabelEvents;
extern const ClassDescriptor vlabelClass;

}  // namespace lumenkit
