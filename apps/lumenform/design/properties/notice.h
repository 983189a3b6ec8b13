#pragma once

#include <QFrame>
#include <QLabel>

namespace lumenkit::form {

/// A line that says what went wrong, with a sign before it, and is not there when all is well.
class Notice final : public QFrame {
    Q_OBJECT

 public:
    explicit Notice(QWidget* parent);

    /// Empty: hides it.
    void Say(const QString& text);
    QString Text() const { return text_->text(); }

 private:
    QLabel* text_;
};

}  // namespace lumenkit::form
