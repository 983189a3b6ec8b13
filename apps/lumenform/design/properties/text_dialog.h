#pragma once

#include <QDialog>
#include <QPlainTextEdit>

#include "frame/text.h"

namespace lumenkit::lumenform {

/// A dialog to edit a text with line breaks, a text with items separated by bars, one item per
/// line, or a list with an item in each line.
class TextDialog final : public QDialog {
    Q_OBJECT

 public:
    enum class Lines { Breaks, Items, List };

    TextDialog(const QString& title, Text text, Lines lines, QWidget* parent);

    /// Returns the edited text, or the unchanged original.
    Text Result() const;

 private:
    Text text_;
    Text divider_;
    QPlainTextEdit* edit_;
};

}  // namespace lumenkit::lumenform
