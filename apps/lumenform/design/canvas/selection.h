// Changes to the selection.
#pragma once

#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// Adds the control to the selection, or removes it.
void Toggle(FormDesign& design, LiveControl& control);
/// Makes this control the last selected one, with which the others are aligned.
void MakeLast(FormDesign& design, LiveControl& control);
/// Selects the control after or before the last selected one in the tab order, and wraps around.
void SelectNext(FormDesign& design, bool forward);
/// Selects the container of the last selected control.
void SelectContainer(FormDesign& design);
void SelectAll(FormDesign& design);

}  // namespace lumenkit::lumenform
