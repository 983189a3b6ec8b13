#pragma once

#include <QWidget>

#include "frame/text.h"

namespace lumenkit::testing {

/// Presses and releases the key of each unit in turn, as a keyboard does. Letters need no Shift, as
/// under Caps Lock; control characters are letters with Ctrl, CR is Enter and 8 is Backspace.
void TypeKeys(QWidget& widget, TextView text);

}  // namespace lumenkit::testing
