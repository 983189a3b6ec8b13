#pragma once

#include <QPlainTextEdit>
#include <QTextBlock>
#include <cstddef>

#include "apps/lumenform/design/code/code_look.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Code with the numbers of its lines. It can be selected and copied but not changed.
class CodeText final : public QPlainTextEdit {
    Q_OBJECT

 public:
    explicit CodeText(QWidget* parent = nullptr);

    /// Shows code whose first line has this number. The caret keeps its line.
    /// Returns whether it is other code than before.
    bool Show(TextView code, std::size_t firstLine);
    std::size_t FirstLine() const { return firstLine_; }
    /// Moves the caret to the beginning of a line, from 0, and shows the lines that follow it.
    void GoToLine(std::size_t line);
    /// The line with the caret, from 0.
    std::size_t CurrentLine() const { return static_cast<std::size_t>(textCursor().blockNumber()); }
    /// The first line that is seen, from 0.
    std::size_t FirstVisibleLine() const {
        return static_cast<std::size_t>(firstVisibleBlock().blockNumber());
    }

    /// The area beside the text.
    QWidget& Numbers() const { return *numbers_; }

 protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    class NumberArea;

    int NumberWidth() const;
    void PlaceNumbers();
    void PaintNumbers(QPaintEvent& event);
    void MarkLine();
    void SetLook();

    QWidget* numbers_;
    CodeLook* look_;
    std::size_t firstLine_ = 1;
};

}  // namespace lumenkit::lumenform
