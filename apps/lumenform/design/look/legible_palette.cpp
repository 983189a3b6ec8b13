#include "apps/lumenform/design/look/legible_palette.h"

#include <QApplication>
#include <QEvent>

#include "apps/lumenform/design/look/contrast.h"

namespace lumenkit::lumenform {

QPalette Legible(QPalette palette) {
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const auto mend = [&](QPalette::ColorRole changed, QPalette::ColorRole other) {
            const QColor former = palette.color(group, changed);
            const QColor ground = palette.color(group, other);
            const QColor seen = Blend(ground, former, former.alphaF());
            if (Contrast(seen, ground) < textContrast) {
                palette.setColor(group, changed, Legible(seen, ground));
            }
        };
        mend(QPalette::Highlight, QPalette::HighlightedText);
        mend(QPalette::PlaceholderText, QPalette::Base);
        mend(QPalette::Link, QPalette::Base);
    }
    return palette;
}

LegiblePalette::LegiblePalette() : former_(QApplication::palette()) {
    Apply();
    qApp->installEventFilter(this);
}

// Leaves a palette that another one has set since.
LegiblePalette::~LegiblePalette() {
    qApp->removeEventFilter(this);
    if (own_ != former_ && QApplication::palette() == own_) {
        QApplication::setPalette(former_);
    }
}

void LegiblePalette::Apply() {
    own_ = Legible(QApplication::palette());
    if (own_ != QApplication::palette()) {
        QApplication::setPalette(own_);
    }
}

bool LegiblePalette::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange &&
        QApplication::palette() != own_) {
        former_ = QApplication::palette();
        Apply();
    }
    return false;
}

}  // namespace lumenkit::lumenform
