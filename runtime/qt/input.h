// Conversion of Qt's mouse and keyboard events to the arguments of the controls' events.
#pragma once

#include <QWidget>
#include <Qt>
#include <cstdint>

#include "frame/host/enumerations.h"
#include "frame/host/mouse.h"

class QKeyEvent;
class QMouseEvent;

namespace lumenkit::qt {

/// Returns the sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers);

/// The position is in twips, relative to the widget that receives the event. A mouse move reports
/// all buttons that are held.
host::MouseArguments MouseArgumentsOf(const QMouseEvent& event);

/// Returns the Latin letter of a key, Qt::Key_A to Qt::Key_Z. In a layout without Latin letters, it
/// is the letter that an English keyboard has in this position. Returns 0 for other keys.
int LetterOf(const QKeyEvent& event);
/// Returns the key code of a key as Windows numbers them, or the packet key (231) for a key that
/// has no code.
std::int16_t KeyCodeOf(const QKeyEvent& event);
/// Returns the Qt key for the code of a moving or editing key, 0 for any other code.
int EditingKeyOf(std::int16_t keyCode);

void ShowPointer(QWidget& widget, host::MousePointer pointer,
                 Qt::CursorShape usual = Qt::ArrowCursor);

}  // namespace lumenkit::qt
