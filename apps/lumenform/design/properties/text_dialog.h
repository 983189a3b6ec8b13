#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <functional>

#include "apps/lumenform/design/properties/notice.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// A dialog to edit a text with line breaks, a text with items separated by bars, one item per
/// line, or a list with an item in each line.
class TextDialog final : public QDialog {
    Q_OBJECT

 public:
    enum class Lines { Breaks, Items, List };

    TextDialog(const QString& title, Text text, Lines lines, QWidget* parent);

    /// Sets a function that returns why the form cannot hold a text, or an empty text. While it
    /// returns a reason, the dialog shows it and cannot be accepted.
    void CheckWith(std::function<QString(TextView)> whyNot);

    /// Returns the edited text, or the unchanged original.
    Text Result() const;
    QString Message() const { return notice_->Text(); }
    void accept() override;

 private:
    void Check();

    Text text_;
    Text divider_;
    std::function<QString(TextView)> whyNot_;
    QPlainTextEdit* edit_;
    Notice* notice_;
    QDialogButtonBox* buttons_;
};

}  // namespace lumenkit::lumenform
