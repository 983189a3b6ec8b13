// Fonts and colours of forms on plain widgets.
#pragma once

#include <QWidget>

#include "frame/color.h"
#include "runtime/qt/font.h"

namespace lumenkit::form {

/// A widget's colours. One that is the usual for its kind is left to the palette, which also greys.
struct Colors {
    Color fore = Color::ButtonText;
    Color back = Color::ButtonFace;

    friend bool operator==(Colors, Colors) = default;
};

/// Shows the widget in these colours under the application's palette as it is now.
void ApplyColors(QWidget& widget, Colors colors, Colors usual);

void ApplyFont(QWidget& widget, const qt::Font& font);

}  // namespace lumenkit::form
