#pragma once

#include <QTableView>

namespace lumenkit::lumenform {

/// The list of properties. One row is current, and typed text goes to its value.
class PropertyTable final : public QTableView {
    Q_OBJECT

 public:
    explicit PropertyTable(QWidget* parent);

    void setModel(QAbstractItemModel* model) override;
    /// Makes a row current. A number beyond the ends selects the first or last row. At a heading,
    /// goes on to the next property.
    void GoTo(int row);
    /// Starts editing the value of the current row, if it can be edited.
    void EditCurrent();

 Q_SIGNALS:
    /// F4 or Alt+Down was pressed.
    void MoreWanted(int row);
    /// Ctrl+Del was pressed, or chosen in the context menu.
    void ResetWanted(int row);
    /// Esc was pressed.
    void Escaped();

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
    void FitRows();
    void SpanHeadings();
    bool IsHeading(int row) const;
    QModelIndex NearestProperty(int row, int step) const;
    void OpenMenu(const QPoint& at);
};

}  // namespace lumenkit::lumenform
