#include "tests/apps/lumenform/sessions/session.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <fstream>

#include "frame/utf8.h"
#include "tests/support/file_bytes.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

UserSession::UserSession() {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    constexpr int pause = 50;  // milliseconds
    watch_.setInterval(pause);
    QObject::connect(&watch_, &QTimer::timeout, [this] { Watch(); });
    watch_.start();
}

// Closes a dialog that has been there for seconds.
void UserSession::Watch() {
    constexpr int most = 60;
    QWidget* const shown = QApplication::activePopupWidget() != nullptr
                               ? QApplication::activePopupWidget()
                               : QApplication::activeModalWidget();
    waits_ = shown != nullptr && shown == waiting_ ? waits_ + 1 : 0;
    waiting_ = shown;
    if (waits_ > most) {
        ADD_FAILURE() << "nobody answers \"" << shown->windowTitle().toStdString() << '"';
        waits_ = 0;
        shown->close();
    }
}

// Without a screen, no window becomes active when a dialog ends.
void UserSession::Activate() {
    if (QApplication::activeModalWidget() == nullptr && !window.isActiveWindow()) {
        window.activateWindow();
        ShowActive(window);
    }
}

lumenform::Workbench& UserSession::ActiveBench() {
    Activate();
    return *window.Bench();
}

void UserSession::Key(Qt::Key key, Qt::KeyboardModifiers held) {
    Activate();
    QWidget* const receiver = QApplication::focusWidget();
    QTest::keyClick(receiver == nullptr ? &window : receiver, key, held);
}

void UserSession::CloseForm() {
    const QKeyCombination keys = Command(QStringLiteral("Close the form")).shortcut()[0];
    Key(keys.key(), keys.keyboardModifiers());
}

void UserSession::Open(const QString& name) {
    Replies replies;
    replies.Name(Path(name));
    Key(Qt::Key_O, Qt::ControlModifier);
}

void UserSession::OpenWith(const QString& name, const std::string& inner, const std::string& code) {
    Write(name,
          "VERSION 5.00\r\nBegin VB.Form Form1 \r\n   ClientHeight = 4800\r\n"
          "   ClientWidth = 6000\r\n" +
              inner + "End\r\nAttribute VB_Name = \"Form1\"\r\n" + code);
    Open(name);
}

void UserSession::Leave() {
    ShowActive(other_);
}

void UserSession::ComeBack() {
    other_.hide();
    Activate();
}

void UserSession::PressIn(const QWidget& part, const QString& title) {
    for (QPushButton* const button : part.findChildren<QPushButton*>()) {
        if (button->text().remove(u'&') == title) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    FAIL() << "no button " << title.toStdString();
}

void UserSession::Write(const QString& name, const std::string& bytes) const {
    std::ofstream(File(name), std::ios::binary) << bytes;
}

std::string UserSession::Stored(const QString& name) const {
    return FileBytes(File(name));
}

QStringList UserSession::Files() const {
    return QDir(folder.path()).entryList({QStringLiteral("*.??[mlgbx]")}, QDir::Files, QDir::Name);
}

std::string UserSession::Status() const {
    return window.statusBar()->currentMessage().toStdString();
}

std::vector<std::string> UserSession::SelectedNames() const {
    std::vector<std::string> names;
    for (const lumenkit::Text& name : Design().SelectedNames()) {
        names.push_back(ToUtf8(name));
    }
    return names;
}

std::string ControlLines(const std::string& className, const std::string& name, int left, int top,
                         int width, int height, const std::string& more) {
    const auto line = [](const std::string& property, int value) {
        return "      " + property + " = " + std::to_string(value) + "\r\n";
    };
    return "   Begin " + className + " " + name + " \r\n" + line("Height", height) +
           line("Left", left) + line("Top", top) + line("Width", width) + more + "   End\r\n";
}

}  // namespace lumenkit::testing
