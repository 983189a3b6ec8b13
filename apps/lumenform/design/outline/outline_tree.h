#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>
#include <functional>

namespace lumenkit::lumenform {

/// The side of a row at which other rows are dropped.
enum class DropSide { Above, Onto, Below };

/// The view of an outline. It reports what the user wants to do with the selected rows.
class OutlineTree final : public QTreeView {
    Q_OBJECT

 public:
    /// Whether the selected rows can be dropped at a row, which is invalid below the last one.
    using CanDrop = std::function<bool(const QModelIndex& row, DropSide side)>;
    using Drop = std::function<void(const QModelIndex& row, DropSide side)>;

    explicit OutlineTree(QWidget* parent = nullptr);

    /// `token` is the data of drags of this tree; `format` is its MIME type. `drop` is called after
    /// the drag.
    void SetDrops(const QString& format, const QByteArray& token, CanDrop canDrop, Drop drop);

 Q_SIGNALS:
    void MoveWanted(bool up);
    void DeleteWanted();
    void PropertiesWanted();

 protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    bool IsOwn(const QDropEvent& event) const;
    DropSide SideOfDrop() const;

    QString format_;
    QByteArray token_;
    CanDrop canDrop_;
    Drop drop_;
};

}  // namespace lumenkit::lumenform
