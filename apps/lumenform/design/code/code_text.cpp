#include "apps/lumenform/design/code/code_text.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "apps/lumenform/design/look/contrast.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Returns the text with "\n" after each line but the last one. Units at which an editor would begin
// another line become blanks: the numbers count the lines of the file.
QString EditorText(TextView code) {
    QString text;
    text.reserve(static_cast<qsizetype>(code.size()));
    for (std::size_t at = 0; at < code.size(); ++at) {
        const char16_t unit = code[at];
        const bool endsLine = unit == u'\r' && code.substr(at + 1).starts_with(u'\n');
        const bool breaks =
            unit == u'\r' || (unit >= 0x2028 && unit <= 0x2029) || unit == 0xFDD0 || unit == 0xFDD1;
        if (!endsLine) {
            text.append(breaks ? QChar(u' ') : QChar(unit));
        }
    }
    if (text.endsWith(u'\n')) {
        text.chop(1);
    }
    return text;
}

}  // namespace

class CodeText::NumberArea final : public QWidget {
 public:
    explicit NumberArea(CodeText& text) : QWidget(&text), text_(text) {}
    QSize sizeHint() const override { return {text_.NumberWidth(), 0}; }

 protected:
    void paintEvent(QPaintEvent* event) override { text_.PaintNumbers(*event); }

 private:
    CodeText& text_;
};

CodeText::CodeText(QWidget* parent)
    : QPlainTextEdit(parent),
      numbers_(new NumberArea(*this)),
      look_(new CodeLook(*document(), palette())) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    setAccessibleName(tr("Code"));
    setPlaceholderText(tr("This form has no code."));
    numbers_->setAccessibleName(tr("Line numbers"));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    SetLook();
    connect(this, &QPlainTextEdit::updateRequest, numbers_,
            [this](const QRect& rect, int scrolled) {
                if (scrolled != 0) {
                    numbers_->scroll(0, scrolled);
                } else {
                    numbers_->update(0, rect.y(), numbers_->width(), rect.height());
                }
            });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeText::MarkLine);
    PlaceNumbers();
}

bool CodeText::Show(TextView code, std::size_t firstLine) {
    firstLine_ = firstLine;
    const QString text = EditorText(code);
    const bool isOther = text != toPlainText();
    if (isOther) {
        const std::size_t line = CurrentLine();
        setPlainText(text);
        GoToLine(line);
    }
    PlaceNumbers();
    numbers_->update();
    return isOther;
}

void CodeText::GoToLine(std::size_t line) {
    const int last = document()->blockCount() - 1;
    const int block = static_cast<int>(std::min(line, static_cast<std::size_t>(last)));
    QTextCursor cursor(document()->findBlockByNumber(block));
    setTextCursor(cursor);
    verticalScrollBar()->setValue(block);  // without wrapping, a step is a line
    horizontalScrollBar()->setValue(0);
}

int CodeText::NumberWidth() const {
    constexpr int leastDigits = 3;
    const std::size_t last = firstLine_ + static_cast<std::size_t>(document()->blockCount()) - 1;
    const auto digits = static_cast<int>(QString::number(last).size());
    return (std::max(digits, leastDigits) + 2) * fontMetrics().horizontalAdvance(u'9');
}

void CodeText::PlaceNumbers() {
    const int width = NumberWidth();
    setViewportMargins(width, 0, 0, 0);
    const QRect inside = contentsRect();
    numbers_->setGeometry(inside.left(), inside.top(), width, viewport()->height());
}

void CodeText::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    PlaceNumbers();
}

void CodeText::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && look_ != nullptr) {
        SetLook();
    } else if (event->type() == QEvent::FontChange && numbers_ != nullptr) {
        SetLook();
        PlaceNumbers();
    }
}

void CodeText::SetLook() {
    constexpr int tabColumns = 4;
    setTabStopDistance(tabColumns * fontMetrics().horizontalAdvance(u' '));
    look_->SetPalette(palette());
    MarkLine();
    numbers_->update();
}

// Tints the line with the caret.
void CodeText::MarkLine() {
    constexpr int tint = 12;  // of 255
    QTextEdit::ExtraSelection line;
    QColor color = palette().color(QPalette::Text);
    color.setAlpha(tint);
    line.format.setBackground(color);
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    setExtraSelections({line});
    numbers_->update();
}

void CodeText::PaintNumbers(QPaintEvent& event) {
    if (document()->isEmpty()) {
        return;
    }
    QPainter painter(numbers_);
    painter.setFont(font());
    const QColor dimmed = DimmedText(palette());
    const QColor plain = palette().color(QPalette::Text);
    const int current = textCursor().blockNumber();
    const int right = numbers_->width() - fontMetrics().horizontalAdvance(u'9');
    QTextBlock block = firstVisibleBlock();
    double top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= event.rect().bottom()) {
        const double height = blockBoundingRect(block).height();
        if (top + height >= event.rect().top()) {
            const std::size_t number = firstLine_ + static_cast<std::size_t>(block.blockNumber());
            painter.setPen(block.blockNumber() == current ? plain : dimmed);
            painter.drawText(QRectF(0, top, right, fontMetrics().height()), Qt::AlignRight,
                             QString::number(number));
        }
        top += height;
        block = block.next();
    }
}

}  // namespace lumenkit::lumenform
