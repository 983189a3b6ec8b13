#pragma once

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/form_view/form_size.h"

namespace lumenkit::form {

/// As the document says now.
FormSize ClientSizeOf(const Design& design);

/// Makes the form so large inside, at least a pixel. Its lines change for it: ClientWidth and
/// ClientHeight, and where the form has them Width and Height, which count the borders, and
/// ScaleWidth and ScaleHeight, which count in its units. The units stay as large as they are. One
/// step of the history. Throws as Design::Restructure does.
void ResizeForm(Design& design, FormSize size);

}  // namespace lumenkit::form
