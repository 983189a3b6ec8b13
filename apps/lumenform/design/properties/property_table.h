#pragma once

#include <QTableView>

namespace lumenkit::form {

/// The list of properties: one row is current, and what is typed goes into its value.
class PropertyTable final : public QTableView {
    Q_OBJECT

 public:
    explicit PropertyTable(QWidget* parent);

    void setModel(QAbstractItemModel* model) override;
    /// Makes a row the current one; one beyond the ends is the first or the last.
    void GoTo(int row);
    /// Starts editing the value of the current row, if it can be edited.
    void EditCurrent();

 Q_SIGNALS:
    /// F4 or Alt+Down.
    void MoreWanted(int row);

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
    void FitRows();
};

}  // namespace lumenkit::form
