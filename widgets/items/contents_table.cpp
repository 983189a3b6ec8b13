#include "widgets/items/contents_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>
#include <QValidator>
#include <algorithm>
#include <functional>
#include <utility>

namespace lumenkit::widgets {

namespace {

using Say = std::function<void(const QString&)>;

// Refuses a text that the cell cannot have, and says why.
class CellValidator final : public QValidator {
 public:
    CellValidator(int column, Say say, QObject* parent)
        : QValidator(parent), column_(column), say_(std::move(say)) {}

    State validate(QString& text, int& /*at*/) const override {
        const QString why = ContentsModel::WhyNot(column_, text);
        say_(why);
        return why.isEmpty() ? Acceptable : Invalid;
    }

 private:
    int column_;
    Say say_;
};

class CellDelegate final : public QStyledItemDelegate {
 public:
    CellDelegate(Say say, QObject* parent) : QStyledItemDelegate(parent), say_(std::move(say)) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& index) const override {
        auto* const line = new QLineEdit(parent);
        line->setValidator(new CellValidator(index.column(), say_, line));
        line->setAccessibleName(
            index.model()->headerData(index.column(), Qt::Horizontal).toString());
        return line;
    }

 private:
    Say say_;
};

}  // namespace

ContentsTable::ContentsTable(ContentsModel& model, QWidget* parent)
    : QTableView(parent), model_(model) {
    setAccessibleName(tr("Items"));
    setModel(&model);
    setItemDelegate(new CellDelegate([this](const QString& why) { Q_EMIT Refused(why); }, this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropOverwriteMode(false);
    setDefaultDropAction(Qt::MoveAction);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    constexpr int padding = 8;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + padding);
    connect(&model, &QAbstractItemModel::rowsMoved, this, [this] { scrollTo(currentIndex()); });
    setCurrentIndex(model.index(0, ContentsModel::CaptionColumn));
}

void ContentsTable::AddRow() {
    model_.Add();
    const QModelIndex added = model_.index(model_.rowCount() - 1, ContentsModel::CaptionColumn);
    setCurrentIndex(added);
    setFocus();
    edit(added);
}

void ContentsTable::RemoveRow() {
    const int row = CurrentRow();
    model_.Remove(row);
    setCurrentIndex(
        model_.index(std::min(row, model_.rowCount() - 1), ContentsModel::CaptionColumn));
}

void ContentsTable::MoveRow(int step) {
    model_.Move(CurrentRow(), CurrentRow() + step);
}

void ContentsTable::keyPressEvent(QKeyEvent* event) {
    const bool isAlt = event->modifiers().testFlag(Qt::AltModifier);
    if (isAlt && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        MoveRow(event->key() == Qt::Key_Up ? -1 : 1);
    } else {
        QTableView::keyPressEvent(event);
    }
}

}  // namespace lumenkit::widgets
