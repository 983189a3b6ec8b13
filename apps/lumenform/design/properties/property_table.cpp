#include "apps/lumenform/design/properties/property_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>

#include "apps/lumenform/design/properties/property_model.h"

namespace lumenkit::lumenform {

PropertyTable::PropertyTable(QWidget* parent) : QTableView(parent) {
    setAccessibleName(tr("Properties"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
        GoTo(index.row());
        if (index.column() == PropertyModel::ValueColumn) {
            EditCurrent();
        }
    });
}

void PropertyTable::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    FitRows();  // needs the columns
}

void PropertyTable::FitRows() {
    constexpr int padding = 8;
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + padding);
    const int longestName = fontMetrics().horizontalAdvance(QStringLiteral("CausesValidation"));
    horizontalHeader()->resizeSection(PropertyModel::NameColumn, longestName + 2 * padding);
}

void PropertyTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitRows();
    }
}

void PropertyTable::GoTo(int row) {
    if (model() == nullptr || model()->rowCount() == 0) {
        return;
    }
    setCurrentIndex(
        model()->index(std::clamp(row, 0, model()->rowCount() - 1), PropertyModel::ValueColumn));
}

void PropertyTable::EditCurrent() {
    const QModelIndex index = currentIndex();
    if (index.isValid() && index.flags().testFlag(Qt::ItemIsEditable)) {
        edit(index);
    }
}

QModelIndex PropertyTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    switch (action) {
        case MoveLeft:
        case MoveRight:
            return currentIndex();
        case MoveHome:
            return model()->index(0, PropertyModel::ValueColumn);
        case MoveEnd:
            return model()->index(model()->rowCount() - 1, PropertyModel::ValueColumn);
        default:
            return QTableView::moveCursor(action, modifiers)
                .siblingAtColumn(PropertyModel::ValueColumn);
    }
}

// Overrides window shortcuts for the keys of the table: Delete edits the value.
bool PropertyTable::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_F4 || key.matches(QKeySequence::Delete)) {
            event->accept();
        }
    }
    return QTableView::event(event);
}

void PropertyTable::keyPressEvent(QKeyEvent* event) {
    const bool isAltDown =
        event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    if (event->key() == Qt::Key_F4 || isAltDown) {
        Q_EMIT MoreWanted(currentIndex().row());
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        EditCurrent();
    } else {
        QTableView::keyPressEvent(event);
    }
}

}  // namespace lumenkit::lumenform
