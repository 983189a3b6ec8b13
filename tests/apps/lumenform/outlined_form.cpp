#include "tests/apps/lumenform/outlined_form.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <memory>
#include <stdexcept>

#include "apps/lumenform/design/window/class_icon.h"
#include "frame/utf8.h"
#include "tests/support/qt_windows.h"

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

OutlinedForm::OutlinedForm(forms::Document document)
    : design(surface.context, std::move(document)),
      outline(new lumenform::Outline(design, lumenform::ClassIcon)) {
    QObject::connect(outline, &lumenform::Outline::Refused,
                     [this](const QString& why) { refused.push_back(why.toStdString()); });
    window.setCentralWidget(outline);
    window.resize(400, 500);
    ShowActive(window);
    Tree().setFocus();
}

std::vector<std::string> OutlinedForm::Rows() const {
    std::vector<std::string> rows;
    ForEachRow(Tree(), {}, 0, [&](const QModelIndex& index, int level) {
        rows.push_back(std::string(2 * static_cast<std::size_t>(level), '.') +
                       index.data().toString().toStdString());
    });
    return rows;
}

std::vector<std::string> OutlinedForm::SelectedRows() const {
    std::vector<std::string> rows;
    ForEachRow(Tree(), {}, 0, [&](const QModelIndex& index, int /*level*/) {
        if (Tree().selectionModel()->isSelected(index)) {
            rows.push_back(index.data().toString().toStdString());
        }
    });
    return rows;
}

std::vector<std::string> OutlinedForm::Selected() const {
    std::vector<std::string> names;
    for (const Text& name : design.SelectedNames()) {
        names.push_back(ToUtf8(name));
    }
    return names;
}

QModelIndex OutlinedForm::Row(const std::string& name) const {
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

void OutlinedForm::Click(const std::string& row, Qt::KeyboardModifiers held) {
    const QRect rect = Tree().visualRect(Row(row));
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, held, rect.center());
}

void OutlinedForm::Key(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(&Tree(), key, held);
}

void OutlinedForm::Rename(const std::string& name) {
    Key(Qt::Key_F2);
    const QPointer<QWidget> line = QApplication::focusWidget();
    QTest::keyClicks(line, QString::fromStdString(name));
    QTest::keyClick(line, Qt::Key_Return);
    if (!QTest::qWaitFor([&] { return line == nullptr; })) {
        throw std::runtime_error("the editor stays open");
    }
    QApplication::processEvents();
}

bool OutlinedForm::DragTo(const std::string& row, int side) {
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
