#include "apps/lumenform/design/window/menu_keys.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QShortcut>

namespace lumenkit::lumenform {

namespace {

// Returns the place of the current row, or else of the caret.
QPoint PlaceOfMenu(const QWidget& widget) {
    if (const auto* const list = qobject_cast<const QAbstractItemView*>(&widget)) {
        const QRect row = list->visualRect(list->currentIndex());
        return list->viewport()->mapTo(list, row.center());
    }
    return widget.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
}

void OpenContextMenu() {
    if (QWidget* const focus = QApplication::focusWidget()) {
        const QPoint at = PlaceOfMenu(*focus);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, at, focus->mapToGlobal(at));
        QApplication::sendEvent(focus, &event);
    }
}

}  // namespace

void AddMenuKeys(QMainWindow& window, QMenuBar& bar) {
    auto* const menus = new QShortcut(Qt::Key_F10, &window);
    QObject::connect(menus, &QShortcut::activated, &bar, [&bar] {
        if (bar.isVisible()) {
            bar.setActiveAction(bar.actions().value(0));
        }
    });
    auto* const context = new QShortcut(Qt::SHIFT | Qt::Key_F10, &window);
    QObject::connect(context, &QShortcut::activated, &window, OpenContextMenu);
}

}  // namespace lumenkit::lumenform
