// The automation interface of VOptList.
#pragma once

#include <cstdint>

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"

namespace lumenkit {

/// Identifiers of the events in the class's event table.
enum class VOptListEvent : std::int32_t {
    Click = 1,
};

extern const InterfaceTable voptlistInterface;
extern const EventTable voptlistEvents;
extern const ClassDescriptor voptlistClass;

}  // namespace lumenkit
