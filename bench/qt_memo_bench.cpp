// Benchmarks of a keystroke in a memo on Qt that restricts its text to limits, against a
// QPlainTextEdit with a slot that reads the text and checks it against the limits. Both sides
// include the check and the repaint.
#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>

#include "bench/memo_lines.h"
#include "bench/qt_stage.h"
#include "bench/ratio_table.h"
#include "bench/require.h"
#include "frame/text.h"
#include "runtime/qt/text_box.h"

namespace {

using lumenkit::Text;
using lumenkit::bench::AddComparison;
using lumenkit::bench::MemoLines;
using lumenkit::bench::QtStage;
using lumenkit::bench::Ratio;
using lumenkit::bench::Require;
using lumenkit::bench::Side;
using lumenkit::bench::StageWindow;
namespace host = lumenkit::host;
namespace qt = lumenkit::qt;

constexpr host::Placement place = {.left = 0, .top = 0, .width = 9000, .height = 6000};
constexpr std::int16_t mostCharacters = 100;
constexpr std::int16_t mostLines = 32'000;
constexpr int strokes = 2;  // a letter and Backspace

void Press(QWidget& widget, int key, const QString& entered) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, {}, entered);
        QApplication::sendEvent(&widget, &event);
    }
    QApplication::processEvents();
}

void TypeAndTakeBack(QWidget& widget) {
    Press(widget, Qt::Key_A, QStringLiteral("a"));
    Press(widget, Qt::Key_Backspace, QStringLiteral("\b"));
}

void PutCaretInTheMiddle(QPlainTextEdit& edit) {
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(edit.document()->findBlockByNumber(edit.blockCount() / 2).position());
    edit.setTextCursor(cursor);
    edit.ensureCursorVisible();
}

class Memo {
 public:
    Memo(QtStage& stage, const Text& text) : memo_(stage.Place(u"VMemo", place, window_)) {
        memo_->Automation().Let(u"ScrollBars", std::int32_t{2});
        memo_->Automation().Let(u"MaxCharsPerLine", mostCharacters);
        memo_->Automation().Let(u"MaxLines", mostLines);
        memo_->Automation().Let(u"Text", text);
        PutCaretInTheMiddle(edit_);
    }
    void Type() { TypeAndTakeBack(edit_); }

 private:
    StageWindow window_;
    std::unique_ptr<qt::HostedControl> memo_;
    qt::TextEdit& edit_ = dynamic_cast<qt::TextBox&>(*memo_->Parts().Find(u"Text1", 2)).Edit();
};

// Checks the limits in the way that is usual with Qt.
bool IsWithinLimits(const QString& text) {
    int lines = 0;
    for (qsizetype start = 0; start <= text.size(); ++lines) {
        const qsizetype found = text.indexOf(QLatin1Char('\n'), start);
        const qsizetype end = found < 0 ? text.size() : found;
        if (end - start > mostCharacters) {
            return false;
        }
        start = end + 1;
    }
    return lines <= mostLines;
}

class PlainEdit {
 public:
    PlainEdit(QtStage& /*stage*/, const Text& text) : edit_(&window_) {
        QString lines = QString::fromStdU16String(text);
        edit_.setPlainText(lines.replace(QLatin1String("\r\n"), QLatin1String("\n")));
        edit_.setFont(QFont(QStringLiteral("Courier"), 10));
        edit_.setGeometry(qt::ToPixels(place));
        edit_.show();
        PutCaretInTheMiddle(edit_);
        QObject::connect(&edit_, &QPlainTextEdit::textChanged, [this] {
            Require(IsWithinLimits(edit_.toPlainText()), "the text does not fit");
        });
    }
    void Type() { TypeAndTakeBack(edit_); }

 private:
    StageWindow window_;
    QPlainTextEdit edit_;
};

template <typename Box>
Side Typing(QtStage& stage, const Text& text) {
    return {[box = std::make_shared<Box>(stage, text)] { box->Type(); }, strokes};
}

}  // namespace

int main(int argc, char** argv) {
    QtStage stage;
    const auto against = [&](const std::string& name, std::size_t units, const char* aim) {
        const Text text = MemoLines(units);
        AddComparison({"Qt: keystroke in " + name + ", against QPlainTextEdit", "key",
                       Typing<Memo>(stage, text), Typing<PlainEdit>(stage, text),
                       Ratio::TimesFaster, aim});
    };
    against("1,000 units", 1'000, ">= 1x");
    against("30,000 units", 30'000, ">= 2x");
    against("1,000,000 units", 1'000'000, ">= 10x");
    return lumenkit::bench::RunComparisons(argc, argv);
}
