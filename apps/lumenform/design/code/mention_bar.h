#pragma once

#include <QLabel>
#include <QPushButton>

#include "apps/lumenform/design/look/bar.h"

namespace lumenkit::lumenform {

/// A line below a form that says where its code mentions controls that are gone. It takes no
/// keyboard by itself.
class MentionBar final : public Bar {
    Q_OBJECT

 public:
    explicit MentionBar(QWidget* parent = nullptr);

    /// Shows the message, or hides the line if it is empty.
    void Show(const QString& message);
    QString Message() const { return text_->text(); }
    QPushButton& CodeButton() const { return *code_; }

 Q_SIGNALS:
    void CodeWanted();
    void Dismissed();

 private:
    QLabel* text_;
    QPushButton* code_;
};

}  // namespace lumenkit::lumenform
