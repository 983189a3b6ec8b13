#pragma once

#include <QWidget>

#include "frame/text.h"

namespace lumenkit::testing {

/// Presses and releases the key of each unit in turn. Letters are typed without Shift, as under
/// Caps Lock. Control characters are typed as letters with Ctrl, except CR (Enter), 8 (Backspace)
/// and 9 (Tab).
void TypeKeys(QWidget& widget, TextView text);

}  // namespace lumenkit::testing
