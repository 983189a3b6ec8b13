#pragma once

#include <vector>

#include "apps/lumenform/design/model/drag_start.h"
#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/live_control.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The classes that can be added to any form: those of this library first, then the plain ones.
std::vector<Text> NewControlClasses(const ClassTable& classes);

/// The other classes of the controls on the form, by their short names: controls of other libraries
/// and user controls.
std::vector<Text> ClassesOnForm(const FormDesign& design);

/// The default size of a control of the class, in twips. Left and top are 0. Another class than
/// those of NewControlClasses has the size of its first control on the form.
host::Placement UsualPlace(const FormDesign& design, TextView className);

/// Whether controls of the class are drawn from one end to the other.
bool IsDrawnAsLine(TextView className);

/// Adds a new control in front of all others in `container` (null: the form) and selects it. A
/// class of this library initializes its new controls itself. A control that is not seen when the
/// form runs has no size. A line begins at `start`. One step of the history.
void AddNewControl(FormDesign& design, TextView className, const LiveControl* container,
                   const host::Placement& place, DragStart start = {});

}  // namespace lumenkit::lumenform
