// Applies fonts and colours of forms to plain widgets.
#pragma once

#include <QWidget>

#include "frame/color.h"
#include "runtime/qt/font.h"

namespace lumenkit::lumenform {

/// The colours of a widget. A colour that is usual for the kind of widget comes from the palette of
/// the application, whatever the colours of the container are. So does the text colour of a
/// disabled widget.
struct WidgetColors {
    Color fore = Color::ButtonText;
    Color back = Color::ButtonFace;

    friend bool operator==(WidgetColors, WidgetColors) = default;
};

/// Whether a text in one colour can be read on the other.
bool IsReadable(const QColor& text, const QColor& back);
/// Black or white.
QColor ReadableOn(const QColor& back);

/// Sets the colours of the widget for the present palette of the application. `ground` is the
/// colour behind its text. A system colour that is unreadable on a ground of the form's own, such
/// as white text of a dark desktop on a light form, is replaced.
void ApplyColors(QWidget& widget, WidgetColors colors, WidgetColors usual, Color ground);

void ApplyFont(QWidget& widget, const qt::Font& font);

}  // namespace lumenkit::lumenform
