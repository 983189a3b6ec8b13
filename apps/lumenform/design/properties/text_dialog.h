#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <functional>
#include <utility>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/notice.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// A dialog to edit a text with line breaks, a text with items separated by bars, one item per
/// line, or a list with an item in each line.
class TextDialog final : public QDialog {
    Q_OBJECT

 public:
    enum class Lines { Breaks, Items, List };

    /// While the code page of the form cannot hold the text, the dialog tells why, offers others
    /// and cannot be accepted. `design` must outlive the dialog.
    TextDialog(FormDesign& design, const QString& title, Text text, Lines lines, QWidget* parent);

    /// Sets a function that takes the text when the dialog is accepted. It returns why it refuses
    /// the text; then the dialog stays open and tells that.
    void SetTaker(std::function<QString(const Text&)> taker) { taker_ = std::move(taker); }

    /// Returns the edited text, or the unchanged original.
    Text Result() const;
    QString Message() const { return notice_->Text(); }
    Notice& Refusal() const { return *notice_; }
    void accept() override;

 private:
    void Check();

    FormDesign& design_;
    Text text_;
    Text divider_;
    std::function<QString(const Text&)> taker_;
    QPlainTextEdit* edit_;
    Notice* notice_;
    QDialogButtonBox* buttons_;
};

}  // namespace lumenkit::lumenform
