#include "tests/apps/lumenform/outline_user.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <memory>
#include <stdexcept>

namespace lumenkit::testing {

namespace {

// Calls `visit` for each row that is shown, with its level.
template <typename Visit>
void ForEachRow(const lumenform::OutlineTree& tree, const QModelIndex& parent, int level,
                const Visit& visit) {
    for (int row = 0; row < tree.model()->rowCount(parent); ++row) {
        const QModelIndex index = tree.model()->index(row, 0, parent);
        visit(index, level);
        if (tree.isExpanded(index)) {
            ForEachRow(tree, index, level + 1, visit);
        }
    }
}

}  // namespace

std::vector<std::string> OutlineUser::Rows() const {
    std::vector<std::string> rows;
    ForEachRow(Tree(), {}, 0, [&](const QModelIndex& index, int level) {
        rows.push_back(std::string(2 * static_cast<std::size_t>(level), '.') +
                       index.data().toString().toStdString());
    });
    return rows;
}

std::vector<std::string> OutlineUser::SelectedRows() const {
    std::vector<std::string> rows;
    ForEachRow(Tree(), {}, 0, [&](const QModelIndex& index, int /*level*/) {
        if (Tree().selectionModel()->isSelected(index)) {
            rows.push_back(index.data().toString().toStdString());
        }
    });
    return rows;
}

QModelIndex OutlineUser::Row(const std::string& name) const {
    QModelIndex found;
    ForEachRow(Tree(), {}, 0, [&](const QModelIndex& index, int /*level*/) {
        if (!found.isValid() && index.data().toString().toStdString() == name) {
            found = index;
        }
    });
    if (!found.isValid()) {
        throw std::out_of_range("no row " + name);
    }
    return found;
}

void OutlineUser::Click(const std::string& row, Qt::KeyboardModifiers held) {
    const QRect rect = Tree().visualRect(Row(row));
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, held, rect.center());
}

void OutlineUser::Key(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(&Tree(), key, held);
}

void OutlineUser::Rename(const std::string& name) {
    Key(Qt::Key_F2);
    const QPointer<QWidget> line = QApplication::focusWidget();
    QTest::keyClicks(line, QString::fromStdString(name));
    QTest::keyClick(line, Qt::Key_Return);
    if (!QTest::qWaitFor([&] { return line == nullptr; })) {
        throw std::runtime_error("the editor stays open");
    }
    QApplication::processEvents();
}

bool OutlineUser::DragTo(const std::string& row, int side) {
    const QRect rect = Tree().visualRect(Row(row));
    const int y = side < 0 ? rect.top() : side > 0 ? rect.bottom() : rect.center().y();
    const QPoint at(rect.center().x(), y);
    const std::unique_ptr<QMimeData> data(
        Tree().model()->mimeData(Tree().selectionModel()->selectedIndexes()));
    QWidget* const viewport = Tree().viewport();
    QDragEnterEvent enter(at, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(at, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &move);
    if (!enter.isAccepted() || !move.isAccepted()) {
        QDragLeaveEvent leave;
        QApplication::sendEvent(viewport, &leave);
        return false;
    }
    QDropEvent drop(at, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(viewport, &drop);
    QApplication::processEvents();
    return drop.isAccepted();
}

}  // namespace lumenkit::testing
