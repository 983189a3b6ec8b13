#pragma once

#include <vector>

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/form_view/live_control.h"
#include "frame/host/constituent.h"
#include "frame/text.h"

namespace lumenkit::form {

/// The classes that can be put on a form: ours first, then the plain ones.
std::vector<Text> NewControlClasses(const ClassTable& classes);

/// How large a control of the class is unless it is drawn otherwise; left and top are 0. In twips.
host::Placement UsualPlace(const ClassTable& classes, TextView className);

/// Puts a new control in front of all others in `container` (null: the form) and selects it. A
/// control of ours is set up as its class sets up new ones. One step of the history.
void AddNewControl(Design& design, TextView className, const LiveControl* container,
                   const host::Placement& place);

}  // namespace lumenkit::form
