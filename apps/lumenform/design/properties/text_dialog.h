#pragma once

#include <QDialog>
#include <QPlainTextEdit>

#include "frame/text.h"

namespace lumenkit::form {

/// Edits a text with its line breaks, or the parts of one that bars divide, one a line.
class TextDialog final : public QDialog {
    Q_OBJECT

 public:
    enum class Lines { Breaks, Items };

    TextDialog(const QString& title, Text text, Lines lines, QWidget* parent);

    /// The text as it was, unless it was edited.
    Text Result() const;

 private:
    Text text_;
    Text divider_;
    QPlainTextEdit* edit_;
};

}  // namespace lumenkit::form
