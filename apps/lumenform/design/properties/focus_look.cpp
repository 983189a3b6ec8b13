#include "apps/lumenform/design/properties/focus_look.h"

#include <QPainter>

namespace lumenkit::lumenform {

namespace {

QColor Mixed(const QColor& base, const QColor& text) {
    constexpr double share = 0.15;
    const auto mix = [](double one, double other) { return one + (other - one) * share; };
    return QColor::fromRgbF(static_cast<float>(mix(base.redF(), text.redF())),
                            static_cast<float>(mix(base.greenF(), text.greenF())),
                            static_cast<float>(mix(base.blueF(), text.blueF())));
}

}  // namespace

void DrawFocusFrame(QWidget& widget) {
    constexpr int width = 2;
    QPainter painter(&widget);
    const QColor color = widget.palette().color(QPalette::Highlight);
    const QRect all = widget.rect();
    painter.fillRect(0, 0, all.width(), width, color);
    painter.fillRect(0, all.height() - width, all.width(), width, color);
    painter.fillRect(0, 0, width, all.height(), color);
    painter.fillRect(all.width() - width, 0, width, all.height(), color);
}

void MuteSelection(QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor muted = Mixed(palette.color(QPalette::Active, QPalette::Base), text);
    palette.setColor(QPalette::All, QPalette::Highlight, muted);
    palette.setColor(QPalette::All, QPalette::HighlightedText, text);
}

}  // namespace lumenkit::lumenform
