// Changes to the selection.
#pragma once

#include "apps/lumenform/design/canvas/form_map.h"
#include "apps/lumenform/design/model/design.h"

namespace lumenkit::lumenform {

/// Adds the control to the selection, or removes it.
void Toggle(Design& design, LiveControl& control);
/// Makes this control the last selected one, with which the others are aligned.
void MakeLast(Design& design, LiveControl& control);
/// Selects the control after or before the last selected one in the tab order, and wraps around.
void SelectNext(Design& design, const FormMap& map, bool forward);
/// Selects the container of the last selected control.
void SelectContainer(Design& design);
void SelectAll(Design& design);

}  // namespace lumenkit::lumenform
