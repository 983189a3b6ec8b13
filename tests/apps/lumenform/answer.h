#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <string>

#include <gtest/gtest.h>

namespace lumenkit::testing {

/// Returns what a question says.
inline std::string TextOf(const QMessageBox& box) {
    return (box.text() + u'|' + box.informativeText()).toStdString();
}

/// Presses the button of a question with this title.
inline void PressIn(QMessageBox& box, const QString& button) {
    for (QAbstractButton* choice : box.buttons()) {
        if (choice->text().remove(u'&') == button) {
            choice->click();
            return;
        }
    }
    ADD_FAILURE() << "no button " << button.toStdString();
    box.reject();
}

/// Presses a button of the next question, and records its text.
class Answer {
 public:
    explicit Answer(const QString& button) {
        timer_.setInterval(5);
        QObject::connect(&timer_, &QTimer::timeout, [this, button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            timer_.stop();
            said = TextOf(*box);
            PressIn(*box, button);
        });
        timer_.start();
    }

    std::string said;

 private:
    QTimer timer_;
};

}  // namespace lumenkit::testing
