#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "apps/lumenform/design/properties/property_groups.h"
#include "apps/lumenform/design/properties/property_list.h"

namespace lumenkit::lumenform {

/// A table model of the property list: names in the first column, values in the second. Each line
/// is a property, or the heading of a group, which has no value.
class PropertyModel final : public QAbstractTableModel {
    Q_OBJECT

 public:
    enum Column { NameColumn, ValueColumn, ColumnCount };
    enum class Order { Names, Groups };
    /// Whether the line is the heading of a group.
    static constexpr int headingRole = Qt::UserRole;
    /// Whether the property has another value than the default and can be reset.
    static constexpr int resettableRole = Qt::UserRole + 1;

    explicit PropertyModel(PropertyList& list);

    /// Reads the list again.
    void Refresh();
    void SetOrder(Order order);
    Order GetOrder() const { return order_; }
    /// Shows only the properties whose names contain the text, without regard to case.
    void SetFilter(const QString& text);

    bool IsHeading(int line) const;
    /// The property in a line that is no heading, and its index in the list.
    const PropertyRow& Row(int line) const;
    std::size_t IndexOf(int line) const;
    /// Returns the line of the property with this name, or -1.
    int Find(TextView name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
    struct Line {
        PropertyGroup group = PropertyGroup::Misc;
        std::optional<std::size_t> property = {};  // none for a heading

        friend bool operator==(const Line&, const Line&) = default;
    };

    static QVariant HeadingData(const Line& line, int column, int role);
    std::vector<Line> LinesOf(const std::vector<PropertyRow>& rows) const;
    void LayOut();

    PropertyList& list_;
    Order order_ = Order::Names;
    QString filter_;
    std::vector<Line> lines_;
};

}  // namespace lumenkit::lumenform
