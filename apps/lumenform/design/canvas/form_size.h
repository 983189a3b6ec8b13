#pragma once

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/form_view/form_size.h"

namespace lumenkit::lumenform {

/// Returns the present size in the document.
FormSize ClientSizeOf(const Design& design);

/// Sets the size of the form's client area, at least one pixel. Changes ClientWidth and
/// ClientHeight. If the form has them, also changes Width and Height, which include the borders,
/// and ScaleWidth and ScaleHeight, which are in the form's units. The size of a unit does not
/// change. One step of the history. Throws as Design::Restructure does.
void ResizeForm(Design& design, FormSize size);

}  // namespace lumenkit::lumenform
