#include "tests/apps/lumenform/browsed_form.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <stdexcept>

#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

BrowsedForm::BrowsedForm(forms::Document document)
    : messages(interaction),
      application(lumenkitClasses),
      context{.classes = lumenkitClasses,
              .application = application,
              .interaction = messages,
              .errors = [this](const RuntimeError& error) { errors.push_back(error); }},
      design(context, std::move(document)),
      browser(new lumenform::PropertyBrowser(design, messages)) {
    window.setCentralWidget(browser);
    window.resize(360, 600);
    ShowActive(window);
    browser->setFocus();
}

int BrowsedForm::Row(TextView property) const {
    const int row = browser->Model().Find(property);
    if (row < 0) {
        throw std::out_of_range("no property " + ToUtf8(property));
    }
    return row;
}

std::string BrowsedForm::Shown(TextView property) const {
    const lumenform::PropertyModel& model = browser->Model();
    return model.index(Row(property), lumenform::PropertyModel::ValueColumn)
        .data()
        .toString()
        .toStdString();
}

bool BrowsedForm::CanEdit(TextView property) const {
    return browser->Model()
        .index(Row(property), lumenform::PropertyModel::ValueColumn)
        .flags()
        .testFlag(Qt::ItemIsEditable);
}

void BrowsedForm::Type(TextView property, const std::string& text) {
    lumenform::PropertyTable& table = browser->Table();
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

void BrowsedForm::Choose(TextView property, const std::string& label) {
    lumenform::PropertyTable& table = browser->Table();
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

void BrowsedForm::PressMore(TextView property) const {
    lumenform::PropertyTable& table = browser->Table();
    table.setFocus();
    table.GoTo(Row(property));
    QTest::keyClick(&table, Qt::Key_F4);
    QApplication::processEvents();
}

Object& BrowsedForm::Automation(TextView control) const {
    return design.View().Find(control)->Hosted()->Automation();
}

}  // namespace lumenkit::testing
