#include "apps/lumenform/form_view/look.h"

#include <QApplication>

#include "runtime/qt/palette_color.h"

namespace lumenkit::lumenform {

void ApplyColors(QWidget& widget, WidgetColors colors, WidgetColors usual) {
    const QPalette base = QApplication::palette();
    QPalette palette = QApplication::palette(&widget);
    if (colors.fore != usual.fore) {
        const QColor fore = qt::ToQColor(colors.fore, base);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(QPalette::Active, role, fore);
            palette.setColor(QPalette::Inactive, role, fore);
        }
    }
    if (colors.back != usual.back) {
        const QColor back = qt::ToQColor(colors.back, base);
        palette.setColor(QPalette::Window, back);
        palette.setColor(QPalette::Base, back);
    }
    if (!(widget.palette() == palette)) {
        palette.setResolveMask(~QPalette::ResolveMask());  // inherits nothing from the container
        widget.setPalette(palette);
    }
}

void ApplyFont(QWidget& widget, const qt::Font& font) {
    widget.setFont(font.FaceAt(1)->WidgetFont());
}

}  // namespace lumenkit::lumenform
