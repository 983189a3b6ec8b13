#include "apps/lumenform/design/look/focus_look.h"

#include <QPainter>

#include "apps/lumenform/design/look/contrast.h"

namespace lumenkit::lumenform {

void DrawFocusFrame(QWidget& widget) {
    DrawFocusFrame(widget, widget.palette().color(QPalette::Base));
}

void DrawFocusFrame(QWidget& widget, const QColor& ground) {
    constexpr int width = 2;
    QPainter painter(&widget);
    const QColor color = MarkOn(ground, widget.palette());
    const QRect all = widget.rect();
    painter.fillRect(0, 0, all.width(), width, color);
    painter.fillRect(0, all.height() - width, all.width(), width, color);
    painter.fillRect(0, 0, width, all.height(), color);
    painter.fillRect(all.width() - width, 0, width, all.height(), color);
}

void MuteSelection(QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    constexpr double share = 0.15;
    const QColor muted = Blend(palette.color(QPalette::Active, QPalette::Base), text, share);
    palette.setColor(QPalette::All, QPalette::Highlight, muted);
    palette.setColor(QPalette::All, QPalette::HighlightedText, text);
}

}  // namespace lumenkit::lumenform
