// The automation interface of VMemo.
#pragma once

#include <cstdint>

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"

namespace lumenkit {

/// Identifiers of the events in the class's event table.
enum class VMemoEvent : std::int32_t {
    Click = 1,
    DblClick = 2,
    KeyDown = 3,
    KeyPress = 4,
    KeyUp = 5,
    MouseDown = 6,
    MouseMove = 7,
    MouseUp = 8,
    Change = 9,
    Validate = 10,  ///< never raised
};

extern const InterfaceTable vmemoInterface;
extern const EventTable vmemoEvents;
extern const ClassDescriptor vmemoClass;

}  // namespace lumenkit
