// VMemo and its text boxes, operated by a user.
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/qt_text.h"
#include "runtime/qt/text_box.h"
#include "tests/support/qt_form.h"
#include "tests/support/qt_keys.h"

namespace lumenkit::qt {
namespace {

using namespace std::string_literals;

using ::testing::ElementsAre;
using testing::TypeKeys;

class QtMemoTest : public ::testing::Test {
 protected:
    QtMemoTest() : memo_(form_.Place(u"VMemo", {0, 0, 4500, 1800})) {
        Let(u"Text", Text());
        Edit().setFocus();
        QTest::mouseMove(&form_.window, {600, 400});
        form_.events.clear();
    }

    void Let(TextView name, Value value) { memo_.Automation().Let(name, std::move(value)); }
    Text Contents() { return ToText(memo_.Automation().Get(u"Text")); }
    TextBox& Box(std::int16_t index = 0) {
        return dynamic_cast<TextBox&>(*memo_.Parts().Find(u"Text1", index));
    }
    TextEdit& Edit(std::int16_t index = 0) { return Box(index).Edit(); }
    void Limit(std::int16_t charsPerLine, std::int16_t lines) {
        Let(u"MaxCharsPerLine", charsPerLine);
        Let(u"MaxLines", lines);
    }
    std::ptrdiff_t Changes() { return std::ranges::count(form_.events, Text(u"Change")); }
    void Paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&Edit(), Qt::Key_V, Qt::ControlModifier);
    }

    testing::QtForm form_{lumenkitClasses};
    HostedControl& memo_;
};

TEST_F(QtMemoTest, AKeyTellsInOrder) {
    TypeKeys(Edit(), u"a");
    EXPECT_THAT(form_.events, ElementsAre(u"KeyDown", u"KeyPress", u"Change", u"KeyUp"));
    EXPECT_EQ(Contents(), u"a");
}

TEST_F(QtMemoTest, WhatDoesNotFitIsRefusedAndTheCaretStays) {
    Limit(3, 0);
    TypeKeys(Edit(), u"abcd");
    EXPECT_EQ(Contents(), u"abc");
    EXPECT_EQ(Box().SelStart(), 3);
    Box().SetSelStart(1);
    TypeKeys(Edit(), u"x");
    EXPECT_EQ(Contents(), u"abc");
    EXPECT_EQ(Box().SelStart(), 1);
    TypeKeys(Edit(), u" ");
    EXPECT_EQ(Contents(), u"abc") << "a letter would have been pushed out";
    Box().SetSelStart(3);
    TypeKeys(Edit(), u" ");
    EXPECT_EQ(Contents(), u"abc") << "a blank is cut";
    EXPECT_EQ(Box().SelStart(), 3);
}

TEST_F(QtMemoTest, LinesBeyondTheLastAreCut) {
    Limit(0, 2);
    TypeKeys(Edit(), u"ab\rcd\r");
    EXPECT_EQ(Contents(), u"ab\r\ncd");
    EXPECT_EQ(Box().SelStart(), 6);
    Box().SetSelStart(5);
    TypeKeys(Edit(), u"\r");
    EXPECT_EQ(Contents(), u"ab\r\nc") << "what followed the caret goes with it";
}

TEST_F(QtMemoTest, PastedTextIsOneChangeAndHeldToTheLimits) {
    Paste(QStringLiteral("one\ntwo\nthree"));
    EXPECT_EQ(Contents(), u"one\r\ntwo\r\nthree");
    EXPECT_EQ(Changes(), 1);
    Let(u"Text", Text());
    Limit(0, 2);
    Paste(QStringLiteral("one\r\ntwo\r\nthree"));
    EXPECT_EQ(Contents(), u"one\r\ntwo");
}

TEST_F(QtMemoTest, ComposedTextIsPressedAndChangesOnce) {
    QInputMethodEvent composing(QStringLiteral("ni"), {});
    QApplication::sendEvent(&Edit(), &composing);
    EXPECT_EQ(Contents(), u"");
    EXPECT_THAT(form_.events, ElementsAre());
    QInputMethodEvent committing;
    committing.setCommitString(QStringLiteral("\u4F60\u597D"));
    QApplication::sendEvent(&Edit(), &committing);
    EXPECT_EQ(Contents(), u"\u4F60\u597D");
    EXPECT_THAT(form_.events, ElementsAre(u"KeyPress", u"KeyPress", u"Change"));
    Let(u"MaxLength", std::int32_t{3});
    committing.setCommitString(QStringLiteral("\u4F60\u597D"));
    QApplication::sendEvent(&Edit(), &committing);
    EXPECT_EQ(Contents(), u"\u4F60\u597D\u4F60");
}

TEST_F(QtMemoTest, AContainerEntersAnotherUnit) {
    form_.onEvent = [](TextView name, std::span<Value> arguments) {
        if (name == u"KeyPress") {
            arguments[0] = std::int16_t{u'*'};
        }
    };
    TypeKeys(Edit(), u"ab");
    EXPECT_EQ(Contents(), u"**");
}

TEST_F(QtMemoTest, AContainerTurnsOneKeyIntoAnother) {
    TypeKeys(Edit(), u"abc");
    form_.onEvent = [](TextView name, std::span<Value> arguments) {
        if (name == u"KeyDown") {
            arguments[0] = std::int16_t{36};  // Home
        }
    };
    QTest::keyClick(&Edit(), Qt::Key_Left);
    EXPECT_EQ(Box().SelStart(), 0);
}

TEST_F(QtMemoTest, UndoAndCutAreChangesToo) {
    TypeKeys(Edit(), u"word");
    form_.events.clear();
    QTest::keyClick(&Edit(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Contents(), u"");
    EXPECT_EQ(Changes(), 1);
    QTest::keyClick(&Edit(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Contents(), u"word");
    EXPECT_EQ(Changes(), 2);
    QTest::keyClick(&Edit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Edit(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Contents(), u"");
    EXPECT_EQ(Changes(), 3);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("word"));
    Edit().undo();  // as the box's context menu does
    QApplication::processEvents();
    EXPECT_EQ(Contents(), u"word");
    EXPECT_EQ(Changes(), 4);
}

TEST_F(QtMemoTest, ATakenKeyIsNotACommandEither) {
    QApplication::clipboard()->setText(QStringLiteral("pasted"));
    form_.onEvent = [](TextView name, std::span<Value> arguments) {
        if (name == u"KeyPress") {
            arguments[0] = std::int16_t{0};
        }
    };
    QTest::keyClick(&Edit(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Contents(), u"");
}

TEST_F(QtMemoTest, NothingOfAnOddTextIsLost) {
    const Text odd =
        u"a\rb\nc\r\n\0d\te\u2028f\u2029g\xD83D\xDE00h\xD800i\uFFFCj\uFDD0k\uFDD3l\r\n\r"s;
    Let(u"Text", odd);
    EXPECT_EQ(Contents(), odd);
    // Edits before and after the text keep it, and so does the clipboard.
    Box().SetSelStart(0);
    TypeKeys(Edit(), u"X");
    EXPECT_EQ(Contents(), u"X" + odd);
    Box().SetSelStart(static_cast<std::int32_t>(odd.size() + 1));
    TypeKeys(Edit(), u"Y");
    EXPECT_EQ(Contents(), u"X" + odd + u"Y");
    Box().SetSelection(0, -1);
    QTest::keyClick(&Edit(), Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Contents(), u"");
    QTest::keyClick(&Edit(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Contents(), u"X" + odd + u"Y") << "by the clipboard";
}

TEST_F(QtMemoTest, UndoingGivesControlCharactersBack) {
    const Text text(u"a\rb\n\0c\u2028", 7);
    Let(u"Text", text);
    Box().SetSelection(0, -1);
    TypeKeys(Edit(), u"\b");
    EXPECT_EQ(Contents(), u"");
    QTest::keyClick(&Edit(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Contents(), text);
}

TEST_F(QtMemoTest, UndoingGivesNoncharactersBack) {
    const Text text = u"a\uFDD0\uFDEFb\uFFFD\uFDD3";
    Let(u"Text", text);
    Box().SetSelStart(2);
    TypeKeys(Edit(), u"x");
    Box().SetSelection(0, -1);
    TypeKeys(Edit(), u"y");
    QTest::keyClick(&Edit(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Contents(), u"a\uFDD0x\uFDEFb\uFFFD\uFDD3");
}

TEST_F(QtMemoTest, PositionsCountBothUnitsOfALineBreak) {
    Let(u"Text", Text(u"ab\r\ncd\r\n\r\nef"));
    for (std::int32_t position = 0; position <= 12; ++position) {
        Box().SetSelStart(position);
        EXPECT_EQ(Box().SelStart(), position);
    }
    Box().SetSelStart(4);
    QTest::keyClick(&Edit(), Qt::Key_Left);
    EXPECT_EQ(Box().SelStart(), 2);
    QTest::keyClick(&Edit(), Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Box().SelStart(), 2);
    EXPECT_EQ(Box().SelLength(), 10);
    TypeKeys(Edit(), u"!");
    EXPECT_EQ(Contents(), u"ab!");
}

TEST_F(QtMemoTest, DeletingTakesPairsWhole) {
    Let(u"Text", Text(u"a\xD83D\xDE00\r\nb"));
    Box().SetSelStart(5);
    TypeKeys(Edit(), u"\b");
    EXPECT_EQ(Contents(),
              u"a\xD83D\xDE00"
              u"b");
    TypeKeys(Edit(), u"\b");
    EXPECT_EQ(Contents(), u"ab");
    QTest::keyClick(&Edit(), Qt::Key_Delete);
    EXPECT_EQ(Contents(), u"a");
}

TEST_F(QtMemoTest, ALockedBoxTellsOfKeysAndCopies) {
    Let(u"Text", Text(u"abc"));
    Let(u"Locked", true);
    TypeKeys(Edit(), u"x\b\r");
    Paste(QStringLiteral("y"));
    QTest::keyClick(&Edit(), Qt::Key_Delete);
    EXPECT_EQ(Contents(), u"abc");
    EXPECT_EQ(Changes(), 0);
    QTest::keyClick(&Edit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Edit(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("abc"));
    QTest::keyClick(&Edit(), Qt::Key_Home);
    EXPECT_EQ(Box().SelStart(), 0) << "the caret still moves";
}

TEST_F(QtMemoTest, TextDroppedIntoItIsOneChange) {
    QMimeData data;
    data.setText(QStringLiteral("dropped\nhere"));
    const QPointF place(5, 5);
    QDragEnterEvent entering(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Edit().viewport(), &entering);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(Edit().viewport(), &drop);
    EXPECT_EQ(Contents(), u"dropped\r\nhere");
    EXPECT_EQ(Changes(), 1);
}

TEST_F(QtMemoTest, EachSettingShowsItsScrollBars) {
    for (std::int16_t bars = 0; bars < 4; ++bars) {
        Let(u"ScrollBars", std::int32_t{bars});
        EXPECT_TRUE(Edit(bars).isVisible());
        EXPECT_EQ(Edit(bars).horizontalScrollBarPolicy(),
                  bars % 2 == 1 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        EXPECT_EQ(Edit(bars).verticalScrollBarPolicy(),
                  bars >= 2 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        EXPECT_EQ(Edit(bars).lineWrapMode(),
                  bars % 2 == 1 ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    }
}

TEST_F(QtMemoTest, TabLeavesTheBoxAndCtrlTabDoesNot) {
    HostedControl& other = form_.Place(u"VMemo", {0, 1800, 4500, 1800});
    Edit().setFocus();
    QTest::keyClick(&Edit(), Qt::Key_Tab);
    EXPECT_FALSE(Edit().hasFocus());
    EXPECT_TRUE(dynamic_cast<TextBox&>(*other.Parts().Find(u"Text1", 0)).Edit().hasFocus());
}

TEST_F(QtMemoTest, AWheelScrollsIt) {
    Let(u"ScrollBars", std::int32_t{2});
    Text lines;
    for (int line = 0; line < 100; ++line) {
        lines += u"line\r\n";
    }
    Let(u"Text", lines);
    TextEdit& edit = Edit(2);
    const QPointF place(20, 20);
    QWheelEvent wheel(place, edit.viewport()->mapToGlobal(place), {}, {0, -240}, {}, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(edit.viewport(), &wheel);
    EXPECT_GT(edit.verticalScrollBar()->value(), 0);
}

TEST_F(QtMemoTest, AMillionUnitsAreTypedInto) {
    Text large;
    while (large.size() < 1'000'000) {
        large += u"a line of text that is about as long as lines of text usually are\r\n";
    }
    Let(u"Text", large);
    Box().SetSelStart(static_cast<std::int32_t>(large.size() / 2));
    const std::int32_t at = Box().SelStart();
    constexpr int strokes = 50;
    TypeKeys(Edit(), Text(strokes, u'x'));
    large.insert(static_cast<std::size_t>(at), Text(strokes, u'x'));
    EXPECT_EQ(Contents(), large);
    Limit(100, 0);
    Let(u"Text", large);
    Box().SetSelStart(at);
    const Text held = Contents();
    TypeKeys(Edit(), Text(strokes, u'y'));  // into a full line
    EXPECT_EQ(Contents(), held);
}

TEST_F(QtMemoTest, AContainerThatSetsTheTextInItsEventIsObeyed) {
    form_.onEvent = [&](TextView name, std::span<Value>) {
        if (name == u"Change") {
            Let(u"Text", Text(u"mine"));
        }
    };
    TypeKeys(Edit(), u"yours");
    EXPECT_EQ(Contents(), u"mine");
}

TEST_F(QtMemoTest, InDesignModeItTakesNoKeysAndNoClicks) {
    testing::QtForm designer(lumenkitClasses, false);
    HostedControl& memo = designer.Place(u"VMemo", {0, 0, 4500, 1800});
    auto& edit = dynamic_cast<TextBox&>(*memo.Parts().Find(u"Text1", 0)).Edit();
    EXPECT_EQ(edit.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(designer.window.childAt(20, 20), nullptr) << "the form itself is hit";
}

}  // namespace
}  // namespace lumenkit::qt
