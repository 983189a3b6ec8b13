// Properties in Qt's types.
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>
#include <cstdint>

#include "frame/color.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/qt_text.h"
#include "widgets/core/control_core.h"
#include "widgets/core/conversions.h"

namespace lumenkit::widgets {

inline QString StringOf(ControlCore& core, TextView property) {
    return qt::ToQString(core.Get<Text>(property));
}
inline void PutString(ControlCore& core, TextView property, const QString& text) {
    core.Write(property, qt::ToText(text));
}

inline uint ColorValueOf(ControlCore& core, TextView property) {
    return static_cast<uint>(core.Get<Color>(property));
}
inline QColor ColorOf(const QWidget& widget, ControlCore& core, TextView property) {
    return qt::ToQColor(core.Get<Color>(property), widget.palette());
}
inline void PutColor(ControlCore& core, TextView property, Color color) {
    core.Write(property, FromColor(color));
}

/// Numbers of 16 bits are checked by the control, or by the core before the start.
inline void PutNumber(ControlCore& core, TextView property, int number) {
    core.Write(property, std::int32_t{number});
}

}  // namespace lumenkit::widgets
