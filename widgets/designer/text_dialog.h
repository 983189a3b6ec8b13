#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <optional>

namespace lumenkit::designer {

/// A dialog to edit a text of several lines.
class TextDialog final : public QDialog {
    Q_OBJECT

 public:
    TextDialog(const QString& title, const QString& text, QWidget* parent);

    /// Returns the text, its lines separated by line feeds as in the files of Qt Designer; nullopt
    /// if it has not changed.
    std::optional<QString> Result() const;

 private:
    QPlainTextEdit* edit_;
};

/// Shows the dialog. Returns nullopt if the user cancels or changes nothing.
std::optional<QString> EditText(QWidget* parent, const QString& title, const QString& text);

}  // namespace lumenkit::designer
