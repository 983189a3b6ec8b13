#pragma once

#include <QStyledItemDelegate>

#include "apps/lumenform/design/properties/property_model.h"

class QKeyEvent;

namespace lumenkit::form {

class ChoiceBox;
class ValueEditor;

/// Whether the property is also edited in a window of its own.
bool HasMore(const PropertyRow& row);

/// Draws and edits the values of a property model.
class PropertyDelegate final : public QStyledItemDelegate {
    Q_OBJECT

 public:
    PropertyDelegate(const PropertyModel& model, QObject* parent);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    /// Takes an editor away; what was typed is lost.
    void Close(QWidget* editor) const;
    /// Takes an editor away; what was typed is told by Changed.
    void Finish(QWidget* editor) const;

 Q_SIGNALS:
    /// Another value was typed or chosen.
    void Changed(int row, const lumenkit::Value& value) const;
    void MoreWanted(int row) const;
    /// The person goes on to the row above (-1) or below (1).
    void StepWanted(int rows);

 protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
    PropertyDelegate& Self() const;
    QWidget* NewChoiceBox(QWidget* parent, const PropertyRow& row) const;
    QWidget* NewValueEditor(QWidget* parent, const PropertyRow& row, int index) const;
    bool HandleKey(ValueEditor& editor, const QKeyEvent& event);

    const PropertyModel& model_;
};

}  // namespace lumenkit::form
