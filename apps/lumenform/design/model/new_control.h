#pragma once

#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/live_control.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The classes that can be added to a form: those of this library first, then the plain ones.
std::vector<Text> NewControlClasses(const ClassTable& classes);

/// The default size of a control of the class, in twips. Left and top are 0.
host::Placement UsualPlace(const ClassTable& classes, TextView className);

/// Adds a new control in front of all others in `container` (null: the form) and selects it. A
/// class of this library initializes its new controls itself. One step of the history.
void AddNewControl(FormDesign& design, TextView className, const LiveControl* container,
                   const host::Placement& place);

}  // namespace lumenkit::lumenform
