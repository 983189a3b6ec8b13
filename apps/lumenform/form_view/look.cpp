#include "apps/lumenform/form_view/look.h"

#include <QApplication>
#include <array>
#include <cstdlib>

#include "runtime/qt/palette_color.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::array textRoles = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};

void SetText(QPalette& palette, QPalette::ColorRole role, const QColor& color) {
    palette.setColor(QPalette::Active, role, color);
    palette.setColor(QPalette::Inactive, role, color);
}

}  // namespace

bool IsReadable(const QColor& text, const QColor& back) {
    constexpr int contrast = 60;
    return std::abs(qGray(text.rgb()) - qGray(back.rgb())) >= contrast;
}

QColor ReadableOn(const QColor& back) {
    constexpr int middle = 128;
    return qGray(back.rgb()) >= middle ? Qt::black : Qt::white;
}

void ApplyColors(QWidget& widget, WidgetColors colors, WidgetColors usual, Color ground) {
    const QPalette base = QApplication::palette();
    QPalette palette = QApplication::palette(&widget);
    if (colors.fore != usual.fore) {
        const QColor fore = qt::ToQColor(colors.fore, base);
        for (const auto role : textRoles) {
            SetText(palette, role, fore);
        }
    }
    if (IsSystemColor(colors.fore) && !IsSystemColor(ground)) {
        const QColor behind = qt::ToQColor(ground, base);
        for (const auto role : textRoles) {
            if (!IsReadable(palette.color(QPalette::Active, role), behind)) {
                SetText(palette, role, ReadableOn(behind));
            }
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
