#pragma once

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/object_property.h"

namespace lumenkit::lumenform {

/// Returns a property that refers to a picture in the companion. Its value is a picture as a text:
/// see TextOfBytes. An unreadable record makes it read-only, and its help says why. It must not
/// outlive the document of the design.
ObjectProperty PictureProperty(FormDesign& design, forms::Block& block, TextView name,
                               const char* help = "");

/// Whether the property refers to a record that is a picture.
bool HoldsPicture(const forms::Document& document, const forms::Property& property);

}  // namespace lumenkit::lumenform
