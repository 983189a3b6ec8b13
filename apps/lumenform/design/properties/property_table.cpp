#include "apps/lumenform/design/properties/property_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/icons/menu_style.h"
#include "apps/lumenform/design/look/focus_look.h"
#include "apps/lumenform/design/properties/cell_editors.h"
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
        if (IsHeading(index.row())) {
            return;
        }
        GoTo(index.row());
        if (index.column() == PropertyModel::ValueColumn) {
            EditCurrent();
        }
    });
}

void PropertyTable::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    FitRows();  // needs the columns
    SpanHeadings();
    connect(model, &QAbstractItemModel::modelReset, this, &PropertyTable::SpanHeadings);
}

void PropertyTable::SpanHeadings() {
    clearSpans();
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (IsHeading(row)) {
            setSpan(row, 0, 1, model()->columnCount());
        }
    }
}

bool PropertyTable::IsHeading(int row) const {
    return model()->index(row, PropertyModel::NameColumn).data(PropertyModel::headingRole).toBool();
}

// Returns the value of the first property from a row on, upwards or downwards. If only headings
// follow, looks in the other direction.
QModelIndex PropertyTable::NearestProperty(int row, int step) const {
    const int count = model()->rowCount();
    for (const int direction : {step, -step}) {
        for (int near = std::clamp(row, 0, count - 1); near >= 0 && near < count;
             near += direction) {
            if (!IsHeading(near)) {
                return model()->index(near, PropertyModel::ValueColumn);
            }
        }
    }
    return {};
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

void PropertyTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (hasFocus()) {
        DrawFocusFrame(*viewport());
    }
}

void PropertyTable::GoTo(int row) {
    if (model() != nullptr && model()->rowCount() > 0) {
        const bool isBack = row < currentIndex().row();
        setCurrentIndex(NearestProperty(row, isBack ? -1 : 1));
    }
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
            return NearestProperty(0, 1);
        case MoveEnd:
            return NearestProperty(model()->rowCount() - 1, -1);
        default:
            break;
    }
    const int row = QTableView::moveCursor(action, modifiers).row();
    return NearestProperty(row, row < currentIndex().row() ? -1 : 1);
}

namespace {

bool IsReset(const QKeyEvent& key) {
    return key.key() == Qt::Key_Delete && key.modifiers() == Qt::ControlModifier;
}

}  // namespace

// Overrides window shortcuts for the keys of the table: Delete edits the value.
bool PropertyTable::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (IsMore(key) || key.matches(QKeySequence::Delete) || IsReset(key)) {
            event->accept();
        }
    }
    return QTableView::event(event);
}

void PropertyTable::keyPressEvent(QKeyEvent* event) {
    if (IsMore(*event)) {
        Q_EMIT MoreWanted(currentIndex().row());
    } else if (IsReset(*event)) {
        Q_EMIT ResetWanted(currentIndex().row());
    } else if (event->key() == Qt::Key_Escape) {
        Q_EMIT Escaped();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        EditCurrent();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void PropertyTable::contextMenuEvent(QContextMenuEvent* event) {
    const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = isByMouse ? indexAt(event->pos()) : currentIndex();
    if (!index.isValid() || IsHeading(index.row())) {
        return;
    }
    GoTo(index.row());
    OpenMenu(isByMouse ? event->globalPos()
                       : viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

void PropertyTable::OpenMenu(const QPoint& at) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QModelIndex current = currentIndex();
    QAction* const edit = menu->addAction(ThemeIcon(QStringLiteral("document-edit")), tr("&Edit"),
                                          this, &PropertyTable::EditCurrent);
    edit->setEnabled(current.flags().testFlag(Qt::ItemIsEditable));
    QAction* const reset =
        menu->addAction(ThemeIcon(QStringLiteral("edit-reset")), tr("&Reset to default\tCtrl+Del"),
                        this, [this, row = current.row()] { Q_EMIT ResetWanted(row); });
    reset->setEnabled(current.data(PropertyModel::resettableRole).toBool());
    MenuStyle::UseFor(*menu);
    menu->popup(at);
}

}  // namespace lumenkit::lumenform
