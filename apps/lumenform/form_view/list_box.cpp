#include "apps/lumenform/form_view/list_box.h"

#include <QEvent>
#include <algorithm>

namespace lumenkit::lumenform {

void ListBox::SetColumns(int columns) {
    columns_ = std::max(columns, 0);
    setWrapping(columns_ > 0);
    setResizeMode(columns_ > 0 ? QListView::Adjust : QListView::Fixed);
    setVerticalScrollBarPolicy(columns_ > 0 ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    FitColumns();
}

void ListBox::AddCheckBoxes() {
    for (int row = 0; row < count(); ++row) {
        item(row)->setCheckState(Qt::Unchecked);
    }
}

void ListBox::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FitColumns();
    }
}

void ListBox::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    FitColumns();
}

void ListBox::FitColumns() {
    if (columns_ == 0 || count() == 0) {
        return;
    }
    const QSize cell(std::max(viewport()->width() / columns_, 1), sizeHintForRow(0));
    if (cell != gridSize()) {
        setGridSize(cell);
    }
}

}  // namespace lumenkit::lumenform
