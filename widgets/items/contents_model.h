#pragma once

#include <QAbstractTableModel>

#include "widgets/items/option_rows.h"

namespace lumenkit::widgets {

/// A table model of an option list: values in the first column, captions in the second. Rows can be
/// dragged to other places.
class ContentsModel final : public QAbstractTableModel {
    Q_OBJECT

 public:
    enum Column { ValueColumn, CaptionColumn, ColumnCount };

    ContentsModel(TextView contents, QObject* parent);

    const OptionRows& Rows() const { return rows_; }
    /// Returns why a cell cannot have this text, or an empty text.
    static QString WhyNot(int column, const QString& text);

    void Add();
    /// The last row cannot be removed.
    void Remove(int row);
    void Move(int from, int to);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

 Q_SIGNALS:
    /// The rows have changed in any way.
    void Changed();
    /// A text was refused.
    void Refused(const QString& why);

 private:
    OptionRows rows_;
};

}  // namespace lumenkit::widgets
