// Maps classes and properties to the property pages that edit them.
#pragma once

#include "frame/class_table.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Returns the page that edits controls of the class, or null if there is none.
const ClassDescriptor* PropertyPageOf(const ClassTable& classes, const ClassDescriptor& type);

/// Whether that page edits this property.
bool IsOnPage(const ClassDescriptor& type, DISPID property);

}  // namespace lumenkit::ole
