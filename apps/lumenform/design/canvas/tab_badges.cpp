#include "apps/lumenform/design/canvas/tab_badges.h"

#include <algorithm>

#include "apps/lumenform/design/model/tab_order.h"

namespace lumenkit::lumenform {

void TabBadges::Number(const LiveControl& control) {
    if (!control.TabIndex()) {
        return;
    }
    design_.Restructure(QObject::tr("Tab order"), [&] {
        GiveTurn(design_.Document(), control.Block(), next_);
        return design_.SelectedNames();
    });
    ++next_;
}

void TabBadges::Paint(QPainter& painter) const {
    const QPalette& palette = desk_.palette();
    for (const auto& control : design_.View().Controls()) {
        if (!HasBadge(*control)) {
            continue;
        }
        const bool isNumbered = *control->TabIndex() < next_;
        const QRect badge = BadgeOf(*control);
        const QColor paper = palette.color(QPalette::Active, QPalette::HighlightedText);
        const QColor mark = palette.color(QPalette::Active, QPalette::Highlight);
        painter.fillRect(badge, isNumbered ? paper : mark);
        painter.fillRect(badge.adjusted(1, 1, -1, -1), isNumbered ? mark : paper);
        painter.setPen(isNumbered ? paper : mark);
        painter.drawText(badge, Qt::AlignCenter, QString::number(*control->TabIndex()));
    }
}

QRegion TabBadges::Region() const {
    QRegion region;
    for (const auto& control : design_.View().Controls()) {
        if (HasBadge(*control)) {
            region += BadgeOf(*control);
        }
    }
    return region;
}

// A control on a page that is not shown has none.
bool TabBadges::HasBadge(const LiveControl& control) const {
    return control.TabIndex() && control.Widget().isVisibleTo(&design_.View());
}

QRect TabBadges::BadgeOf(const LiveControl& control) const {
    constexpr int margin = 4;
    const QFontMetrics metrics = desk_.fontMetrics();
    const int height = metrics.height() + margin;
    const int text = metrics.horizontalAdvance(QString::number(*control.TabIndex()));
    return {map_.RectOf(control).topLeft(), QSize(std::max(text + 2 * margin, height), height)};
}

}  // namespace lumenkit::lumenform
