#pragma once

#include <QFrame>
#include <QLabel>

namespace lumenkit::lumenform {

/// A line that shows an error with an icon. It is hidden if there is no error.
class Notice final : public QFrame {
    Q_OBJECT

 public:
    explicit Notice(QWidget* parent);

    /// Shows the text, or hides the line if the text is empty. With `offersEncodings`, links below
    /// the text offer to write the form in another code page.
    void Say(const QString& text, bool offersEncodings = false);
    QString Text() const { return text_->text(); }
    /// The links, null while none is shown.
    QLabel* Links() const { return links_->isHidden() ? nullptr : links_; }

 Q_SIGNALS:
    void Utf8Wanted();
    void OtherPageWanted();

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void DrawSign();

    QLabel* sign_;
    QLabel* text_;
    QLabel* links_;
};

}  // namespace lumenkit::lumenform
