#include "widgets/designer/text_dialog.h"

#include <QDialogButtonBox>
#include <QTextDocument>
#include <QVBoxLayout>

namespace lumenkit::designer {

TextDialog::TextDialog(const QString& title, const QString& text, QWidget* parent)
    : QDialog(parent), edit_(new QPlainTextEdit(this)) {
    setWindowTitle(title);
    edit_->setAccessibleName(title);
    edit_->setTabChangesFocus(true);
    edit_->setPlainText(text);
    edit_->moveCursor(QTextCursor::End);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(edit_);
    layout->addWidget(buttons);
    constexpr int columns = 60;
    constexpr int rows = 14;
    resize(fontMetrics().averageCharWidth() * columns, fontMetrics().height() * rows);
}

std::optional<QString> TextDialog::Result() const {
    if (!edit_->document()->isModified()) {
        return std::nullopt;
    }
    // The raw text keeps no-break spaces, which the plain text replaces.
    return edit_->document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

std::optional<QString> EditText(QWidget* parent, const QString& title, const QString& text) {
    TextDialog dialog(title, text, parent);
    return dialog.exec() == QDialog::Accepted ? dialog.Result() : std::nullopt;
}

}  // namespace lumenkit::designer
