#pragma once

#include <QFrame>
#include <QLabel>

namespace lumenkit::lumenform {

/// A line that shows an error with an icon. It is hidden if there is no error.
class Notice final : public QFrame {
    Q_OBJECT

 public:
    explicit Notice(QWidget* parent);

    /// Shows the text, or hides the line if the text is empty.
    void Say(const QString& text);
    QString Text() const { return text_->text(); }

 private:
    QLabel* text_;
};

}  // namespace lumenkit::lumenform
