#pragma once

#include <QAbstractTableModel>

#include "apps/lumenform/design/properties/property_list.h"

namespace lumenkit::lumenform {

/// A table model of the property list: names in the first column, values in the second.
class PropertyModel final : public QAbstractTableModel {
    Q_OBJECT

 public:
    enum Column { NameColumn, ValueColumn, ColumnCount };

    explicit PropertyModel(PropertyList& list) : list_(list) {}

    /// Reads the list again.
    void Refresh();
    const PropertyRow& Row(int row) const;
    /// Returns the row with this name, or -1.
    int Find(TextView name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
    PropertyList& list_;
};

}  // namespace lumenkit::lumenform
