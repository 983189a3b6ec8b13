// The automation interface of VLabelCaption, which has no members.
#pragma once

#include "frame/automation/interface_table.h"
#include "frame/class_table.h"

namespace lumenkit {

extern const InterfaceTable vlabelCaptionInterface;
extern const ClassDescriptor vlabelCaptionClass;

}  // namespace lumenkit
