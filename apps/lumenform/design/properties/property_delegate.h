#pragma once

#include <QStyledItemDelegate>

#include "apps/lumenform/design/properties/property_model.h"

class QKeyEvent;

namespace lumenkit::lumenform {

class ChoiceBox;
class ValueEditor;

/// Whether the property also has an editor in a separate window.
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

    /// Closes an editor and discards the text.
    void Close(QWidget* editor) const;
    /// Closes an editor and emits Changed if the text was edited.
    void Finish(QWidget* editor) const;

 Q_SIGNALS:
    /// The user has typed or chosen another value.
    void Changed(int row, const lumenkit::Value& value) const;
    void MoreWanted(int row) const;
    /// The user moves to the row above (-1) or below (1).
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

}  // namespace lumenkit::lumenform
