#include "tests/apps/lumenform/property_user.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <stdexcept>

#include "frame/utf8.h"

namespace lumenkit::testing {

int PropertyUser::Row(TextView property) const {
    const int row = browser_->Model().Find(property);
    if (row < 0) {
        throw std::out_of_range("no property " + ToUtf8(property));
    }
    return row;
}

std::string PropertyUser::Shown(TextView property) const {
    const lumenform::PropertyModel& model = browser_->Model();
    return model.index(Row(property), lumenform::PropertyModel::ValueColumn)
        .data()
        .toString()
        .toStdString();
}

bool PropertyUser::CanEdit(TextView property) const {
    return browser_->Model()
        .index(Row(property), lumenform::PropertyModel::ValueColumn)
        .flags()
        .testFlag(Qt::ItemIsEditable);
}

void PropertyUser::Type(TextView property, const std::string& text) {
    lumenform::PropertyTable& table = browser_->Table();
    table.setFocus();
    table.GoTo(Row(property));
    QTest::keyClick(&table, Qt::Key_F2);
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (line == nullptr) {
        throw std::logic_error("no line to type into for " + ToUtf8(property));
    }
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(line, Qt::Key_Delete);
    QTest::keyClicks(line, QString::fromStdString(text));
    QTest::keyClick(line, Qt::Key_Return);
}

void PropertyUser::Choose(TextView property, const std::string& label) {
    lumenform::PropertyTable& table = browser_->Table();
    table.setFocus();
    table.GoTo(Row(property));
    QTest::keyClick(&table, Qt::Key_F2);
    auto* const box = qobject_cast<QComboBox*>(QApplication::focusWidget());
    if (box == nullptr) {
        throw std::logic_error("no box to choose from for " + ToUtf8(property));
    }
    QTest::keyClicks(box, QString::fromStdString(label));
    QTest::keyClick(box, Qt::Key_Return);
    QApplication::processEvents();  // the box reports the choice in the event loop
}

void PropertyUser::PressMore(TextView property) const {
    lumenform::PropertyTable& table = browser_->Table();
    table.setFocus();
    table.GoTo(Row(property));
    QTest::keyClick(&table, Qt::Key_F4);
    QApplication::processEvents();
}

}  // namespace lumenkit::testing
