#include "apps/lumenform/design/properties/property_model.h"

#include <QFont>
#include <algorithm>
#include <utility>

#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

bool HaveSameNames(const std::vector<PropertyRow>& one, const std::vector<PropertyRow>& other) {
    return std::ranges::equal(one, other, {}, &PropertyRow::name, &PropertyRow::name);
}

QFont Bold() {
    QFont font;
    font.setBold(true);
    return font;
}

}  // namespace

PropertyModel::PropertyModel(PropertyList& list) : list_(list), lines_(LinesOf(list.Rows())) {}

std::vector<PropertyModel::Line> PropertyModel::LinesOf(
    const std::vector<PropertyRow>& rows) const {
    std::vector<Line> lines;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const PropertyRow& row = rows[index];
        if (qt::ToQString(row.name).contains(filter_, Qt::CaseInsensitive)) {
            lines.push_back({GroupOf(row.name, row.kind), index});
        }
    }
    if (order_ == Order::Names) {
        return lines;
    }
    std::ranges::stable_sort(lines, {}, &Line::group);
    std::vector<Line> grouped;
    for (const Line& line : lines) {
        if (grouped.empty() || grouped.back().group != line.group) {
            grouped.push_back({line.group});
        }
        grouped.push_back(line);
    }
    return grouped;
}

void PropertyModel::Refresh() {
    std::vector<PropertyRow> now = list_.Read();
    std::vector<Line> lines = LinesOf(now);
    if (lines == lines_ && HaveSameNames(now, list_.Rows())) {
        list_.Take(std::move(now));
        if (!lines_.empty()) {
            Q_EMIT dataChanged(index(0, NameColumn), index(rowCount() - 1, ValueColumn));
        }
        return;
    }
    beginResetModel();
    list_.Take(std::move(now));
    lines_ = std::move(lines);
    endResetModel();
}

void PropertyModel::LayOut() {
    beginResetModel();
    lines_ = LinesOf(list_.Rows());
    endResetModel();
}

void PropertyModel::SetOrder(Order order) {
    order_ = order;
    LayOut();
}

void PropertyModel::SetFilter(const QString& text) {
    filter_ = text;
    LayOut();
}

bool PropertyModel::IsHeading(int line) const {
    return !lines_.at(static_cast<std::size_t>(line)).property;
}

std::size_t PropertyModel::IndexOf(int line) const {
    return lines_.at(static_cast<std::size_t>(line)).property.value();
}

const PropertyRow& PropertyModel::Row(int line) const {
    return list_.Rows().at(IndexOf(line));
}

int PropertyModel::Find(TextView name) const {
    const auto found = std::ranges::find_if(lines_, [&](const Line& line) {
        return line.property &&
               SameText(list_.Rows()[*line.property].name, name, Compare::IgnoreCase);
    });
    return found == lines_.end() ? -1 : static_cast<int>(found - lines_.begin());
}

int PropertyModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int PropertyModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PropertyModel::HeadingData(const Line& line, int column, int role) {
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole:
            return column == NameColumn ? TitleOf(line.group) : QVariant();
        case Qt::FontRole:
            return Bold();
        case headingRole:
            return true;
        default:
            return {};
    }
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    if (IsHeading(index.row())) {
        return HeadingData(lines_[static_cast<std::size_t>(index.row())], index.column(), role);
    }
    const PropertyRow& row = Row(index.row());
    const bool isName = index.column() == NameColumn;
    switch (role) {
        case Qt::DisplayRole:
            return qt::ToQString(isName ? row.name : ShownValue(row));
        case Qt::FontRole:
            return row.isChanged ? Bold() : QVariant();
        case Qt::AccessibleTextRole:
            return isName ? qt::ToQString(row.name)
                          : qt::ToQString(row.name) + u' ' + qt::ToQString(ShownValue(row));
        case Qt::AccessibleDescriptionRole:
            return row.isChanged ? tr("Changed. %1").arg(qt::ToQString(row.help))
                                 : qt::ToQString(row.help);
        case resettableRole:
            return row.isChanged && row.canReset;
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
    if (!index.isValid() || IsHeading(index.row())) {
        return Qt::ItemNeverHasChildren;
    }
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    if (index.column() == ValueColumn && Row(index.row()).canSet) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

}  // namespace lumenkit::lumenform
