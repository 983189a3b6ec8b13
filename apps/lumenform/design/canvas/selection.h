// Who is selected next.
#pragma once

#include "apps/lumenform/design/canvas/form_map.h"
#include "apps/lumenform/design/model/design.h"

namespace lumenkit::form {

/// Adds the control to what is selected, or takes it out.
void Toggle(Design& design, LiveControl& control);
/// The others are aligned with this one of the selected controls from now on.
void MakeLast(Design& design, LiveControl& control);
/// The control behind the last selected one in the tab order, or before it, and around.
void SelectNext(Design& design, const FormMap& map, bool forward);
/// What the last selected control lies in.
void SelectContainer(Design& design);
void SelectAll(Design& design);

}  // namespace lumenkit::form
