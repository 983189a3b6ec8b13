#include "tests/apps/lumenform/replies.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <utility>

#include <gtest/gtest.h>

#include "tests/apps/lumenform/answer.h"

namespace lumenkit::testing {

namespace {

template <typename Widget>
bool Is(const QWidget& shown) {
    return qobject_cast<const Widget*>(&shown) != nullptr;
}

void TypeName(QFileDialog& dialog, const QString& name) {
    auto* const line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(line, nullptr);
    line->setCompleter(nullptr);  // its list would take the click
    line->setFocus();
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    line->insert(name);  // at once: the dialog would select each folder of a path that is typed
    QTest::keyClick(line, Qt::Key_Return);
}

void ChooseIn(QMenu& menu, const QString& title) {
    for (QAction* const action : menu.actions()) {
        if (action->text().remove(u'&').contains(title)) {
            menu.setActiveAction(action);
            QTest::keyClick(&menu, Qt::Key_Return);
            return;
        }
    }
    ADD_FAILURE() << "no entry " << title.toStdString();
    menu.close();
}

}  // namespace

Replies::~Replies() {
    EXPECT_EQ(next_, replies_.size()) << "a dialog did not appear";
}

Replies& Replies::Press(const QString& button) {
    return Add({Is<QMessageBox>, [this, button](QWidget& shown) {
                    auto& box = dynamic_cast<QMessageBox&>(shown);
                    said.push_back(TextOf(box));
                    PressIn(box, button);
                }});
}

Replies& Replies::Enter() {
    return Add({Is<QMessageBox>, [this](QWidget& shown) {
                    said.push_back(TextOf(dynamic_cast<QMessageBox&>(shown)));
                    QTest::keyClick(&shown, Qt::Key_Return);
                }});
}

Replies& Replies::Name(const QString& name) {
    return Add({Is<QFileDialog>, [this, name](QWidget& shown) {
                    auto& dialog = dynamic_cast<QFileDialog&>(shown);
                    said.push_back(dialog.selectedNameFilter().toStdString());
                    TypeName(dialog, name);
                }});
}

Replies& Replies::Choose(const QString& title) {
    return Add(
        {Is<QMenu>, [title](QWidget& shown) { ChooseIn(dynamic_cast<QMenu&>(shown), title); }});
}

Replies& Replies::Look(const std::function<void(QWidget&)>& look) {
    return Add({Is<QDialog>, [look](QWidget& shown) {
                    const QPointer<QWidget> kept = &shown;
                    look(shown);
                    if (kept != nullptr && kept->isVisible()) {
                        kept->close();
                    }
                }});
}

Replies& Replies::Add(Reply reply) {
    replies_.push_back(std::move(reply));
    if (replies_.size() == 1) {
        Wait();
    }
    return *this;
}

void Replies::Wait() {
    constexpr int pause = 5;  // milliseconds
    QTimer::singleShot(pause, &context_, [this] { Step(); });
}

// A reply can lead to the next dialog before it returns.
void Replies::Step() {
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const shown = popup != nullptr ? popup : QApplication::activeModalWidget();
    if (shown == nullptr || !replies_[next_].fits(*shown)) {
        Wait();
        return;
    }
    const std::size_t present = next_++;
    if (next_ < replies_.size()) {
        Wait();
    }
    replies_[present].give(*shown);
}

}  // namespace lumenkit::testing
