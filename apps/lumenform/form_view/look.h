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

/// Sets the colours of the widget for the present palette of the application.
void ApplyColors(QWidget& widget, WidgetColors colors, WidgetColors usual);

void ApplyFont(QWidget& widget, const qt::Font& font);

}  // namespace lumenkit::lumenform
