#include "apps/lumenform/design/properties/property_model.h"

#include <algorithm>
#include <utility>

#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

bool HaveSameNames(const std::vector<PropertyRow>& one, const std::vector<PropertyRow>& other) {
    return std::ranges::equal(one, other, {}, &PropertyRow::name, &PropertyRow::name);
}

}  // namespace

void PropertyModel::Refresh() {
    std::vector<PropertyRow> now = list_.Read();
    if (HaveSameNames(now, list_.Rows())) {
        list_.Take(std::move(now));
        Q_EMIT dataChanged(index(0, NameColumn), index(rowCount() - 1, ValueColumn));
        return;
    }
    beginResetModel();
    list_.Take(std::move(now));
    endResetModel();
}

const PropertyRow& PropertyModel::Row(int row) const {
    return list_.Rows().at(static_cast<std::size_t>(row));
}

int PropertyModel::Find(TextView name) const {
    const auto found = std::ranges::find_if(list_.Rows(), [&](const PropertyRow& row) {
        return SameText(row.name, name, Compare::IgnoreCase);
    });
    return found == list_.Rows().end() ? -1 : static_cast<int>(found - list_.Rows().begin());
}

int PropertyModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(list_.Rows().size());
}

int PropertyModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const PropertyRow& row = Row(index.row());
    const bool isName = index.column() == NameColumn;
    switch (role) {
        case Qt::DisplayRole:
            return qt::ToQString(isName ? row.name : ShownValue(row));
        case Qt::AccessibleTextRole:
            return isName ? qt::ToQString(row.name)
                          : qt::ToQString(row.name) + u' ' + qt::ToQString(ShownValue(row));
        case Qt::AccessibleDescriptionRole:
            return qt::ToQString(row.help);
        default:
            return {};
    }
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == NameColumn ? tr("Property") : tr("Value");
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    if (index.column() == ValueColumn && Row(index.row()).canSet) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

}  // namespace lumenkit::lumenform
