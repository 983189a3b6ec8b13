#pragma once

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/form_size.h"

namespace lumenkit::lumenform {

/// Returns the present size in the document.
FormSize ClientSizeOf(const FormDesign& design);

/// Sets the size of the form's client area, at least one pixel. Changes ClientWidth and
/// ClientHeight. If the form has them, also changes Width and Height, which include the borders,
/// and ScaleWidth and ScaleHeight, which are in the form's units. The size of a unit does not
/// change. One step of the history. Throws as FormDesign::Restructure does.
void ResizeForm(FormDesign& design, FormSize size);

}  // namespace lumenkit::lumenform
