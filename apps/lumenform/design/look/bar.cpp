#include "apps/lumenform/design/look/bar.h"

#include <QApplication>
#include <QEvent>

#include "apps/lumenform/design/look/contrast.h"

namespace lumenkit::lumenform {

Bar::Bar(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    Tint();
}

void Bar::Tint() {
    constexpr QColor amber(0xF6, 0xB7, 0x3C);
    constexpr double share = 0.3;
    QPalette palette = QApplication::palette();
    const QColor ground = Blend(palette.color(QPalette::Window), amber, share);
    const QColor text = Legible(palette.color(QPalette::WindowText), ground);
    QPalette own;
    own.setColor(QPalette::Window, ground);
    own.setColor(QPalette::WindowText, text);
    setPalette(own);
}

void Bar::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        Tint();
    }
}

}  // namespace lumenkit::lumenform
