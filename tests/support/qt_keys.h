#pragma once

#include <QWidget>

#include "frame/text.h"

namespace lumenkit::testing {

/// Presses and releases the key of each unit in turn. Letters are typed without Shift, as under
/// Caps Lock. Control characters are typed as letters with Ctrl, except CR (Enter), 8 (Backspace)
/// and 9 (Tab).
void TypeKeys(QWidget& widget, TextView text);

/// Turns the wheel over a widget by `turned`, an eighth of a degree each. As for a user, a parent
/// receives the event if the widget does not use it.
void TurnWheel(QWidget& widget, QPoint turned, Qt::KeyboardModifiers held = {});

}  // namespace lumenkit::testing
