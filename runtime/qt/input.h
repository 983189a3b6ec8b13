// The mouse and the keyboard as the controls know them.
#pragma once

#include <QWidget>
#include <Qt>
#include <cstdint>

#include "frame/host/enumerations.h"
#include "frame/host/mouse.h"

class QKeyEvent;
class QMouseEvent;

namespace lumenkit::qt {

/// 1 Shift, 2 Ctrl, 4 Alt.
std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers);

/// The place is relative to the widget that the event is for. A movement has all buttons held.
host::MouseArguments MouseArgumentsOf(const QMouseEvent& event);

/// The platform-independent code of a key, as Windows numbers them; what has none is the packet key
/// (231).
std::int16_t KeyCodeOf(const QKeyEvent& event);
/// The key of a code that moves or edits; 0 for any other.
int EditingKeyOf(std::int16_t keyCode);

void ShowPointer(QWidget& widget, host::MousePointer pointer,
                 Qt::CursorShape usual = Qt::ArrowCursor);

}  // namespace lumenkit::qt
