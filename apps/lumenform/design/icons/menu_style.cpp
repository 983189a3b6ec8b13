#include "apps/lumenform/design/icons/menu_style.h"

#include <QApplication>
#include <QMenu>
#include <QStyleOptionMenuItem>

namespace lumenkit::lumenform {

namespace {

QIcon HighlightedIcon(const QIcon& icon, int side, double scale) {
    return icon.pixmap({side, side}, scale, QIcon::Selected);
}

}  // namespace

MenuStyle::MenuStyle() : QProxyStyle(QApplication::style()->name()) {}

void MenuStyle::UseFor(QMenu& menu) {
    auto* const style = new MenuStyle;
    style->setParent(&menu);
    menu.setStyle(style);
    for (QMenu* const below : menu.findChildren<QMenu*>()) {
        below->setStyle(style);
    }
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    constexpr State highlighted = State_Enabled | State_Selected;
    if (element != CE_MenuItem || item == nullptr || item->icon.isNull() || widget == nullptr ||
        (item->state & highlighted) != highlighted) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionMenuItem changed(*item);
    changed.icon = HighlightedIcon(item->icon, pixelMetric(PM_SmallIconSize, option, widget),
                                   widget->devicePixelRatioF());
    QProxyStyle::drawControl(element, &changed, painter, widget);
}

}  // namespace lumenkit::lumenform
