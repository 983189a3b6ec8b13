#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <string>

#include <gtest/gtest.h>

namespace lumenkit::testing {

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
            said = (box->text() + u'|' + box->informativeText()).toStdString();
            for (QAbstractButton* choice : box->buttons()) {
                if (choice->text().remove(u'&') == button) {
                    choice->click();
                    return;
                }
            }
            ADD_FAILURE() << "no button " << button.toStdString();
            box->reject();
        });
        timer_.start();
    }

    std::string said;

 private:
    QTimer timer_;
};

}  // namespace lumenkit::testing
