#include "widgets/items/contents_model.h"

#include <QMimeData>
#include <cstddef>
#include <memory>

#include "runtime/qt/qt_text.h"

namespace lumenkit::widgets {

namespace {

QString RowFormat() {
    return QStringLiteral("application/x-lumenkit-option-row");
}

std::size_t IndexOf(int row) {
    return static_cast<std::size_t>(row);
}

}  // namespace

ContentsModel::ContentsModel(TextView contents, QObject* parent)
    : QAbstractTableModel(parent), rows_(contents) {}

QString ContentsModel::WhyNot(int column, const QString& text) {
    if (text.contains(u'|')) {
        return tr("| separates the items. A value or a caption cannot contain it.");
    }
    if (column == ValueColumn && text.contains(u';')) {
        return tr("; separates the value from the caption. A value cannot contain it.");
    }
    return {};
}

void ContentsModel::Add() {
    beginInsertRows({}, rowCount(), rowCount());
    rows_.Add();
    endInsertRows();
    Q_EMIT Changed();
}

void ContentsModel::Remove(int row) {
    if (row < 0 || row >= rowCount() || rowCount() == 1) {
        return;
    }
    beginRemoveRows({}, row, row);
    rows_.Remove(IndexOf(row));
    endRemoveRows();
    Q_EMIT Changed();
}

void ContentsModel::Move(int from, int to) {
    const bool isInside = from >= 0 && to >= 0 && from < rowCount() && to < rowCount();
    if (!isInside || from == to) {
        return;
    }
    beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
    rows_.Move(IndexOf(from), IndexOf(to));
    endMoveRows();
    Q_EMIT Changed();
}

int ContentsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.Count());
}

int ContentsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ContentsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole)) {
        return {};
    }
    const OptionRow& row = rows_.At(IndexOf(index.row()));
    return qt::ToQString(index.column() == ValueColumn ? row.value : row.caption);
}

bool ContentsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole) {
        return false;
    }
    const QString text = value.toString();
    if (const QString why = WhyNot(index.column(), text); !why.isEmpty()) {
        Q_EMIT Refused(why);
        return false;
    }
    const OptionRow row = rows_.At(IndexOf(index.row()));
    const bool isValue = index.column() == ValueColumn;
    rows_.Set(IndexOf(index.row()), isValue ? qt::ToText(text) : row.value,
              isValue ? row.caption : qt::ToText(text));
    Q_EMIT dataChanged(index, index);
    Q_EMIT Changed();
    return true;
}

QVariant ContentsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section;  // the list index counts from 0
    }
    return section == ValueColumn ? tr("Value") : tr("Caption");
}

Qt::ItemFlags ContentsModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return Qt::ItemIsDropEnabled;  // rows are dropped between others
    }
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

QStringList ContentsModel::mimeTypes() const {
    return {RowFormat()};
}

QMimeData* ContentsModel::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty()) {
        return nullptr;
    }
    auto data = std::make_unique<QMimeData>();
    data->setData(RowFormat(), QByteArray::number(indexes.front().row()));
    return data.release();
}

// Moves the row here and returns false, because the view would remove the row that it took.
bool ContentsModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                                 int /*column*/, const QModelIndex& parent) {
    if (action != Qt::MoveAction || data == nullptr || !data->hasFormat(RowFormat())) {
        return false;
    }
    const int from = data->data(RowFormat()).toInt();
    const int before = row >= 0 ? row : parent.isValid() ? parent.row() : rowCount();
    Move(from, before > from ? before - 1 : before);
    return false;
}

}  // namespace lumenkit::widgets
