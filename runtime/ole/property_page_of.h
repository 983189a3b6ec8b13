// Which property page edits what.
#pragma once

#include "frame/class_table.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// The page that edits controls of the class; null when there is none.
const ClassDescriptor* PropertyPageOf(const ClassTable& classes, const ClassDescriptor& type);

/// Whether that page edits this property.
bool IsOnPage(const ClassDescriptor& type, DISPID property);

}  // namespace lumenkit::ole
