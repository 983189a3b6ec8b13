#include "apps/lumenform/design/outline/outline_tree.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTimer>
#include <utility>

#include "apps/lumenform/design/look/focus_look.h"

namespace lumenkit::lumenform {

namespace {

bool IsEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool IsDelete(const QKeyEvent& key) {
    return key.key() == Qt::Key_Delete && key.modifiers() == Qt::NoModifier;
}

// Whether the key moves the selected rows: Alt with an arrow.
bool IsMove(const QKeyEvent& key) {
    const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    return held == Qt::AltModifier && (key.key() == Qt::Key_Up || key.key() == Qt::Key_Down);
}

}  // namespace

OutlineTree::OutlineTree(QWidget* parent) : QTreeView(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setExpandsOnDoubleClick(false);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setFrameShape(QFrame::StyledPanel);
}

void OutlineTree::SetDrops(const QString& format, const QByteArray& token, CanDrop canDrop,
                           Drop drop) {
    format_ = format;
    token_ = token;
    canDrop_ = std::move(canDrop);
    drop_ = std::move(drop);
}

// Takes the keys before the shortcuts of menus do.
bool OutlineTree::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        if (IsDelete(key) || IsMove(key)) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

void OutlineTree::keyPressEvent(QKeyEvent* event) {
    const bool isCommand = state() != EditingState;
    if (isCommand && IsDelete(*event)) {
        Q_EMIT DeleteWanted();
    } else if (isCommand && IsMove(*event)) {
        Q_EMIT MoveWanted(event->key() == Qt::Key_Up);
    } else if (isCommand && IsEnter(*event)) {
        Q_EMIT PropertiesWanted();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void OutlineTree::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (hasFocus()) {
        DrawFocusFrame(*viewport());
    }
}

void OutlineTree::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        Q_EMIT PropertiesWanted();
    }
}

// ---- Dragging

bool OutlineTree::IsOwn(const QDropEvent& event) const {
    return event.mimeData()->data(format_) == token_;
}

DropSide OutlineTree::SideOfDrop() const {
    switch (dropIndicatorPosition()) {
        case AboveItem:
            return DropSide::Above;
        case BelowItem:
            return DropSide::Below;
        default:
            return DropSide::Onto;
    }
}

void OutlineTree::dragEnterEvent(QDragEnterEvent* event) {
    if (IsOwn(*event)) {
        QTreeView::dragEnterEvent(event);
    } else {
        event->ignore();
    }
}

void OutlineTree::dragMoveEvent(QDragMoveEvent* event) {
    if (!IsOwn(*event)) {
        event->ignore();
        return;
    }
    setDropIndicatorShown(true);  // without it, the base class finds no position
    QTreeView::dragMoveEvent(event);
    const bool isAllowed =
        event->isAccepted() && canDrop_(indexAt(event->position().toPoint()), SideOfDrop());
    setDropIndicatorShown(isAllowed);
    event->setAccepted(isAllowed);
}

// The form changes after the drag has ended: the change replaces all rows.
void OutlineTree::dropEvent(QDropEvent* event) {
    const QModelIndex row = indexAt(event->position().toPoint());
    const DropSide side = SideOfDrop();
    stopAutoScroll();
    setState(NoState);
    viewport()->update();
    if (!IsOwn(*event) || !canDrop_(row, side)) {
        event->ignore();
        return;
    }
    event->accept();
    QTimer::singleShot(0, this,
                       [this, kept = QPersistentModelIndex(row), side] { drop_(kept, side); });
}

}  // namespace lumenkit::lumenform
