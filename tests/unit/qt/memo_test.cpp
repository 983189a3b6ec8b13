// VMemo and its text boxes, operated by a user.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <functional>
#include <random>
#include <vector>

#include <gmock/gmock.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/qt_text.h"
#include "runtime/qt/text_box.h"
#include "tests/support/qt_form.h"
#include "tests/support/qt_keys.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::qt {
namespace {

using namespace std::string_literals;

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using testing::TypeKeys;

class QtMemoTest : public ::testing::Test {
 protected:
    QtMemoTest() : memo_(form_.Place(u"VMemo", {0, 0, 4500, 1800})) {
        Let(u"Text", Text());
        Edit().setFocus();
        QTest::mouseMove(&form_.window, {600, 400});
        form_.events.clear();
    }

    // Returns the descriptions of everything that a screen reader finds in the memo's area.
    std::vector<QAccessibleInterface*> Spoken() {
        QAccessibleInterface* const area =
            QAccessible::queryAccessibleInterface(&memo_.Drawing().Area());
        std::vector<QAccessibleInterface*> found;
        for (int index = 0; index < area->childCount(); ++index) {
            found.push_back(area->child(index));
        }
        return found;
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
    void Undo() { QTest::keyClick(&Edit(), Qt::Key_Z, Qt::ControlModifier); }
    void Redo() { QTest::keyClick(&Edit(), Qt::Key_Y, Qt::ControlModifier); }
    // Drops text of another program, in order to move it. Returns what the program does with it.
    Qt::DropAction Drop(const QString& text,
                        Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction) {
        QMimeData data;
        data.setText(text);
        const QPointF place(5, 5);
        QDragEnterEvent entering(place.toPoint(), offered, &data, Qt::LeftButton,
                                 Qt::ShiftModifier);
        QApplication::sendEvent(Edit().viewport(), &entering);
        QDropEvent drop(place, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(Edit().viewport(), &drop);
        return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
    }
    // What an input method sends.
    void Compose(const QString& text) {
        QInputMethodEvent composing(text, {});
        QApplication::sendEvent(&Edit(), &composing);
    }
    void Commit(const QString& text) {
        QInputMethodEvent committing;
        committing.setCommitString(text);
        QApplication::sendEvent(&Edit(), &committing);
    }
    void Paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&Edit(), Qt::Key_V, Qt::ControlModifier);
    }

    testing::QtForm form_{lumenkitClasses};
    HostedControl& memo_;
};

TEST_F(QtMemoTest, IsOneTextWithItsLimitsForScreenReaders) {
    Let(u"Text", Text(u"abc"));
    ASSERT_EQ(Spoken().size(), 1U) << "the hidden boxes do not exist";
    EXPECT_EQ(Spoken().front()->role(), QAccessible::EditableText);
    EXPECT_EQ(Spoken().front()->text(QAccessible::Value), QStringLiteral("abc"));
    EXPECT_EQ(Spoken().front()->text(QAccessible::Name), QString());
    memo_.SetSpokenName(QStringLiteral("Notes"));
    Limit(20, 3);
    const auto expectDescribed = [&] {
        ASSERT_EQ(Spoken().size(), 1U);
        EXPECT_EQ(Spoken().front()->text(QAccessible::Name), QStringLiteral("Notes"));
        EXPECT_EQ(Spoken().front()->text(QAccessible::Description),
                  QStringLiteral("up to 20 characters per line, up to 3 lines"));
    };
    expectDescribed();
    Let(u"ScrollBars", 3);
    EXPECT_EQ(Spoken().front()->object(), &Edit(3));
    expectDescribed();
    Limit(0, 0);
    EXPECT_EQ(Spoken().front()->text(QAccessible::Description), QString());
}

TEST_F(QtMemoTest, AssistiveTechnologiesEnterTextWithinItsLimits) {
    Limit(5, 2);
    Spoken().front()->editableTextInterface()->insertText(0, QStringLiteral("one\ntwo\nthree"));
    QApplication::processEvents();
    EXPECT_EQ(Contents(), u"one\r\ntwo");
}

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
    EXPECT_THAT(form_.events,
                ElementsAre(u"KeyDown", u"KeyPress", u"KeyPress", u"Change", u"KeyUp"));
    Let(u"MaxLength", std::int32_t{3});
    committing.setCommitString(QStringLiteral("\u4F60\u597D"));
    QApplication::sendEvent(&Edit(), &committing);
    EXPECT_EQ(Contents(), u"\u4F60\u597D\u4F60");
}

TEST_F(QtMemoTest, AComposedTextThatDoesNotFitIsRefused) {
    Limit(4, 0);
    TypeKeys(Edit(), u"abc");
    Box().SetSelStart(1);
    Compose(QStringLiteral("ni"));
    EXPECT_EQ(Contents(), u"abc");
    Commit(QStringLiteral("\u4F60\u597D"));
    EXPECT_EQ(Contents(), u"abc");
    EXPECT_EQ(Box().SelStart(), 1) << "where it was composed, wherever a key was pressed last";
    Commit(QStringLiteral("\u4F60"));
    EXPECT_EQ(Contents(), u"a\u4F60bc");
    Undo();
    EXPECT_EQ(Contents(), u"abc");
}

TEST_F(QtMemoTest, ACompositionKeepsTheSelectionUntilItIsCommitted) {
    Let(u"Text", Text(u"ab\r\ncd"));
    Box().SetSelection(1, 5);
    form_.events.clear();
    Compose(QStringLiteral("n"));
    Compose(QStringLiteral("ni"));
    EXPECT_EQ(Contents(), u"ab\r\ncd");
    EXPECT_EQ(Box().SelStart(), 1);
    EXPECT_EQ(Box().SelLength(), 4);
    Compose(QString());  // cancelled
    EXPECT_EQ(Contents(), u"ab\r\ncd");
    EXPECT_EQ(Box().SelLength(), 4);
    EXPECT_THAT(form_.events, ElementsAre()) << "no edit yet";
    Compose(QStringLiteral("ni"));
    Commit(QStringLiteral("\u4F60"));
    EXPECT_EQ(Contents(), u"a\u4F60d");
    EXPECT_EQ(Changes(), 1);
    Undo();
    EXPECT_EQ(Contents(), u"ab\r\ncd");
}

TEST_F(QtMemoTest, ACommitGoesOnComposing) {
    Limit(3, 0);
    QInputMethodEvent both(QStringLiteral("\u3131"), {});
    both.setCommitString(QStringLiteral("\uAC00"));
    for (int syllable = 0; syllable < 4; ++syllable) {
        QApplication::sendEvent(&Edit(), &both);
    }
    EXPECT_EQ(Contents(), u"\uAC00\uAC00\uAC00") << "the fourth is refused";
    Commit(QStringLiteral(" "));
    EXPECT_EQ(Contents(), u"\uAC00\uAC00\uAC00");
    EXPECT_EQ(Changes(), 5);
}

TEST_F(QtMemoTest, AHandlerTakesAComposedTextAway) {
    form_.onEvent = [](TextView name, std::span<Value> arguments) {
        if (name == u"KeyDown") {
            EXPECT_EQ(arguments[0], Value(std::int16_t{229}));
            arguments[0] = std::int16_t{0};
        }
    };
    Commit(QStringLiteral("x"));
    EXPECT_EQ(Contents(), u"");
    form_.onEvent = [](TextView name, std::span<Value> arguments) {
        if (name == u"KeyPress" && arguments[0] == Value(std::int16_t{u'x'})) {
            arguments[0] = std::int16_t{0};
        }
    };
    Commit(QStringLiteral("axb"));
    EXPECT_EQ(Contents(), u"ab");
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

TEST_F(QtMemoTest, TextThatIsDroppedWholeIsMoved) {
    EXPECT_EQ(Drop(QStringLiteral("one\ntwo ")), Qt::MoveAction);
    EXPECT_EQ(Contents(), u"one\r\ntwo ");
    Limit(8, 0);
    EXPECT_EQ(Drop(QStringLiteral("zero\n")), Qt::MoveAction) << "within the limits";
}

// Another program deletes its text if the answer to the last move of the mouse was a move.
TEST_F(QtMemoTest, AnotherProgramIsAskedForACopy) {
    QMimeData data;
    data.setText(QStringLiteral("hello"));
    const QPoint place(5, 5);
    const auto answer = [&](QDragMoveEvent&& event) {
        QApplication::sendEvent(Edit().viewport(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    };
    const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
    const Qt::KeyboardModifiers move = Qt::ShiftModifier;
    EXPECT_EQ(answer(QDragEnterEvent(place, both, &data, Qt::LeftButton, move)), Qt::CopyAction);
    EXPECT_EQ(answer(QDragMoveEvent(place, both, &data, Qt::LeftButton, move)), Qt::CopyAction);
    EXPECT_EQ(answer(QDragMoveEvent(place, Qt::MoveAction, &data, Qt::LeftButton, move)),
              Qt::IgnoreAction);
}

TEST_F(QtMemoTest, TextThatIsNotDroppedWholeIsCopied) {
    Let(u"Text", Text(u"abc"));
    Let(u"MaxLength", std::int32_t{5});
    EXPECT_EQ(Drop(QStringLiteral("hello ")), Qt::CopyAction) << "two units of it";
    EXPECT_EQ(Contents().size(), 5U);
    EXPECT_EQ(Drop(QStringLiteral("hello ")), Qt::CopyAction) << "nothing of it";
    Let(u"MaxLength", std::int32_t{0});
    Limit(3, 0);
    Let(u"Text", Text(u"abc"));
    EXPECT_EQ(Drop(QStringLiteral("hello ")), Qt::CopyAction) << "refused";
    EXPECT_EQ(Contents(), u"abc");
    EXPECT_EQ(Drop(QStringLiteral("hello "), Qt::MoveAction), Qt::IgnoreAction)
        << "refused, and not offered as a copy";
    EXPECT_EQ(Drop(QStringLiteral("   ")), Qt::CopyAction) << "cut";
    Let(u"Locked", true);
    EXPECT_EQ(Drop(QStringLiteral("hello ")), Qt::IgnoreAction);
    EXPECT_EQ(Contents(), u"abc");
}

TEST_F(QtMemoTest, AltTypesNothing) {
    QTest::keyClick(&Edit(), Qt::Key_A, Qt::AltModifier);
    QTest::keyClick(&Edit(), Qt::Key_A, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(Contents(), u"");
    EXPECT_THAT(form_.events, Contains(Text(u"KeyDown")));
    EXPECT_THAT(form_.events, Not(Contains(Text(u"KeyPress"))));
}

TEST_F(QtMemoTest, AltGrTypesThroughKeyPress) {
    form_.events.clear();
    for (const Qt::KeyboardModifiers held :
         {Qt::KeyboardModifiers(), Qt::ControlModifier | Qt::AltModifier,
          Qt::KeyboardModifiers(Qt::GroupSwitchModifier),
          Qt::AltModifier | Qt::GroupSwitchModifier}) {
        QKeyEvent pressing(QEvent::KeyPress, Qt::Key_At, held, QStringLiteral("@"));
        QApplication::sendEvent(&Edit(), &pressing);
    }
    EXPECT_EQ(Contents(), u"@@@@");
    EXPECT_EQ(std::ranges::count(form_.events, Text(u"KeyPress")), 4);
}

TEST_F(QtMemoTest, DeletingMovesACaretSetBeyondTheText) {
    Let(u"Text", Text(u"a\r\nb"));
    Box().SetSelStart(1);
    Box().SetSelLength(2);
    QTest::keyClick(&Edit(), Qt::Key_Delete);
    EXPECT_EQ(Contents(), u"ab");
    EXPECT_EQ(Box().SelLength(), 0);
    Let(u"Text", Text(u"ab\r\n"));
    Box().SetSelStart(3);
    QTest::keyClick(&Edit(), Qt::Key_Delete);
    EXPECT_EQ(Contents(), u"ab");
    EXPECT_EQ(Box().SelStart(), 2);
    Limit(2, 0);
    Let(u"Text", Text(u"ab"));
    Box().SetSelStart(2);
    TypeKeys(Edit(), u"c");
    EXPECT_EQ(Box().SelStart(), 2);
}

TEST_F(QtMemoTest, KeysActAsIfTheCaretStoodBeforeTheLineBreak) {
    Let(u"Text", Text(u"ab\r\ncd"));
    struct Case {
        Qt::Key key;
        std::int32_t expected;
    };
    for (const Case& one : {Case{Qt::Key_Left, 2}, Case{Qt::Key_Right, 4}, Case{Qt::Key_Home, 0},
                            Case{Qt::Key_End, 2}, Case{Qt::Key_Down, 6}}) {
        Box().SetSelStart(3);
        QTest::keyClick(&Edit(), one.key);
        EXPECT_EQ(Box().SelStart(), one.expected) << one.key;
    }
    Box().SetSelStart(3);
    QTest::keyClick(&Edit(), Qt::Key_Shift);
    EXPECT_EQ(Box().SelStart(), 3);
    QTest::keyClick(&Edit(), Qt::Key_Delete);
    EXPECT_EQ(Contents(), u"abcd");
    EXPECT_EQ(Box().SelStart(), 2);
}

TEST_F(QtMemoTest, UndoStepsThroughTheAcceptedEdits) {
    Limit(4, 0);
    TypeKeys(Edit(), u"ab\rcd");
    Box().SetSelStart(0);
    Paste(QStringLiteral("123"));  // refused
    EXPECT_EQ(Contents(), u"ab\r\ncd");
    TypeKeys(Edit(), u"xyz");  // z is refused
    const std::vector<Text> steps = {u"", u"ab", u"ab\r\n", u"ab\r\ncd", u"xyab\r\ncd"};
    EXPECT_EQ(Contents(), steps.back());
    for (std::size_t step = steps.size() - 1; step > 0; --step) {
        form_.events.clear();
        Undo();
        EXPECT_EQ(Contents(), steps[step - 1]);
        EXPECT_EQ(Changes(), 1);
    }
    Undo();
    EXPECT_EQ(Contents(), u"");
    for (std::size_t step = 1; step < steps.size(); ++step) {
        form_.events.clear();
        Redo();
        EXPECT_EQ(Contents(), steps[step]);
        EXPECT_EQ(Changes(), 1);
    }
}

TEST_F(QtMemoTest, RefusedEditsLeaveNoUndoStep) {
    Limit(3, 0);
    TypeKeys(Edit(), u"abc\rde");
    Box().SetSelStart(3);
    TypeKeys(Edit(), u"x");
    QTest::keyClick(&Edit(), Qt::Key_Delete);
    Paste(QStringLiteral("long"));
    Drop(QStringLiteral("long"));
    QInputMethodEvent committing;
    committing.setCommitString(QStringLiteral("\u4F60"));
    QApplication::sendEvent(&Edit(), &committing);
    Box().SetSelStart(5);
    TypeKeys(Edit(), u"\b");
    EXPECT_EQ(Contents(), u"abc\r\nde");
    EXPECT_EQ(Box().SelStart(), 5);
    Undo();
    EXPECT_EQ(Contents(), u"abc\r\n");
    Redo();
    EXPECT_EQ(Contents(), u"abc\r\nde");
    Undo();
    Undo();
    EXPECT_EQ(Contents(), u"abc");
}

TEST_F(QtMemoTest, RefusedDeletingLeavesTheDeletingBefore) {
    Limit(3, 0);
    TypeKeys(Edit(), u"abc\rde");
    Box().SetSelStart(1);
    for (int stroke = 0; stroke < 2; ++stroke) {
        QTest::keyClick(&Edit(), Qt::Key_Delete);
    }
    Limit(1, 0);
    EXPECT_EQ(Contents(), u"a\r\nde");
    QTest::keyClick(&Edit(), Qt::Key_Delete);  // joins the lines: refused
    EXPECT_EQ(Contents(), u"a\r\nde");
    Limit(3, 0);
    Undo();
    EXPECT_EQ(Contents(), u"abc\r\nde");
    Redo();
    EXPECT_EQ(Contents(), u"a\r\nde");
}

TEST_F(QtMemoTest, ARefusedUndoCanStillBeRedone) {
    TypeKeys(Edit(), u"abcdef");
    QTest::keyClick(&Edit(), Qt::Key_A, Qt::ControlModifier);
    TypeKeys(Edit(), u"\b");
    Limit(3, 0);
    TypeKeys(Edit(), u"xy");
    Undo();
    EXPECT_EQ(Contents(), u"");
    Undo();
    EXPECT_EQ(Contents(), u"") << "the six letters no longer fit";
    Redo();
    EXPECT_EQ(Contents(), u"xy");
}

TEST_F(QtMemoTest, ACutIsAPartOfTheEdit) {
    Limit(0, 2);
    TypeKeys(Edit(), u"ab\rcd");
    Box().SetSelStart(5);
    TypeKeys(Edit(), u"\r");
    EXPECT_EQ(Contents(), u"ab\r\nc");
    Undo();
    EXPECT_EQ(Contents(), u"ab\r\ncd");
    Redo();
    EXPECT_EQ(Contents(), u"ab\r\nc");
}

TEST_F(QtMemoTest, WhatAContainerMakesOfAnEditIsAPartOfIt) {
    form_.onEvent = [&](TextView name, std::span<Value>) {
        if (name == u"Change") {
            Let(u"Text", ToText(ToQString(Contents()).toUpper()));
        }
    };
    TypeKeys(Edit(), u"ab");
    EXPECT_EQ(Contents(), u"BA") << "each assignment puts the caret before the text";
    Undo();
    EXPECT_EQ(Contents(), u"A");
    Undo();
    EXPECT_EQ(Contents(), u"");
    Redo();
    EXPECT_EQ(Contents(), u"A");
}

TEST_F(QtMemoTest, AHandlerMaySetAPartOfTheTextItself) {
    TypeKeys(Edit(), u"abc");
    form_.onEvent = [&](TextView name, std::span<Value>) {
        if (name == u"Change" && Contents().size() > 2) {
            Box().SetText(Box().GetText().substr(1));
        }
    };
    Box().SetSelStart(0);
    TypeKeys(Edit(), u"x");
    EXPECT_EQ(Contents(), u"bc");
    Undo();
    EXPECT_EQ(Contents(), u"bc") << "the undone text is shortened too";
}

TEST_F(QtMemoTest, AnAssignmentByCodeForgetsTheUndoSteps) {
    TypeKeys(Edit(), u"ab");
    Let(u"Text", Text(u"code"));
    Undo();
    Redo();
    EXPECT_EQ(Contents(), u"code");
}

bool Fits(TextView text, std::size_t charsPerLine, std::size_t lines) {
    for (std::size_t line = 1; line <= lines; ++line) {
        const std::size_t end = std::min(text.find(crLf), text.size());
        if (end > charsPerLine) {
            return false;
        }
        if (end == text.size()) {
            return true;
        }
        text.remove_prefix(end + crLf.size());
    }
    return text.empty();
}

TEST_F(QtMemoTest, AnyEditsAreUndoneAndRedoneWithinTheLimits) {
    std::minstd_rand random(testing::TestSeed());
    // No character is typed twice, so that typing over a selection changes the text.
    char16_t next = u'\u4E00';
    const auto type = [&] { TypeKeys(Edit(), Text(1, next++)); };
    const std::vector<std::function<void()>> actions = {
        type,
        [&] {
            type();
            type();
        },
        [&] { TypeKeys(Edit(), u"\r"); },
        [&] { TypeKeys(Edit(), u"\b"); },
        [&] { QTest::keyClick(&Edit(), Qt::Key_Delete); },
        [&] { QTest::keyClick(&Edit(), Qt::Key_Delete, Qt::ControlModifier); },
        [&] { QTest::keyClick(&Edit(), Qt::Key_Left); },
        [&] { QTest::keyClick(&Edit(), Qt::Key_Left, Qt::ShiftModifier); },
        [&] { QTest::keyClick(&Edit(), Qt::Key_Up); },
        [&] { Box().SetSelStart(static_cast<std::int32_t>(random() % 12)); },
        [&] { Box().SetSelLength(static_cast<std::int32_t>(random() % 6)); },
        [&] { Paste(QStringLiteral("12\n3")); },
        [&] { Drop(QStringLiteral("four")); },
        [&] { Undo(); },
        [&] { Redo(); },
    };
    for (int round = 0; round < testing::Rounds(60); ++round) {
        Let(u"Text", Text());
        Limit(4, 3);
        for (int step = 0; step < 40; ++step) {
            actions[random() % actions.size()]();
            ASSERT_TRUE(Fits(Contents(), 4, 3)) << ToQString(Contents()).toStdString();
        }
        while (Edit().document()->isRedoAvailable()) {
            Redo();
        }
        const Text last = Contents();
        while (Edit().document()->isUndoAvailable()) {
            const Text before = Contents();
            Undo();
            ASSERT_TRUE(Fits(Contents(), 4, 3));
            ASSERT_NE(Contents(), before) << "each step changes the text";
        }
        ASSERT_EQ(Contents(), u"");
        while (Edit().document()->isRedoAvailable()) {
            Redo();
        }
        ASSERT_EQ(Contents(), last);
    }
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

TEST_F(QtMemoTest, OtherScrollBarsKeepTheKeyboardAndTheCaret) {
    form_.Place(u"VMemo", {0, 1800, 4500, 1800});
    for (std::int16_t from = 0; from < 4; ++from) {
        for (std::int16_t to = 0; to < 4; ++to) {
            Let(u"Text", Text());
            Let(u"ScrollBars", std::int32_t{from});
            Edit(from).setFocus();
            TypeKeys(Edit(from), u"abxcd");
            Box(from).SetSelStart(2);
            Box(from).SetSelLength(1);
            Let(u"ScrollBars", std::int32_t{to});
            ASSERT_TRUE(Edit(to).hasFocus()) << from << " " << to;
            TypeKeys(*QApplication::focusWidget(), u"e");
            EXPECT_EQ(Contents(), u"abecd");
        }
    }
}

TEST_F(QtMemoTest, ACaretThatTheLimitsPlacedStays) {
    TypeKeys(Edit(), u"abcdef");
    Limit(6, 0);
    TypeKeys(Edit(), u"\b");
    Box().SetSelStart(1);
    QTest::keyClick(&Edit(), Qt::Key_Shift);  // the caret at the last key press
    Box().SetSelStart(5);
    Limit(3, 0);
    Let(u"ScrollBars", std::int32_t{2});
    EXPECT_TRUE(Edit(2).hasFocus());
    EXPECT_EQ(Box(2).SelStart(), 1);
}

TEST_F(QtMemoTest, ADisabledMemoKeepsTheKeyboardForLater) {
    HostedControl& other = form_.Place(u"VMemo", {0, 1800, 4500, 1800});
    TypeKeys(Edit(), u"ab");
    Let(u"Enabled", false);
    EXPECT_FALSE(Edit().hasFocus());
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(memo_.isAncestorOf(QApplication::focusWidget()));
    Let(u"Enabled", true);
    EXPECT_TRUE(Edit().hasFocus());
    TypeKeys(*QApplication::focusWidget(), u"c");
    EXPECT_EQ(Contents(), u"abc");
    Let(u"Enabled", false);
    Let(u"ScrollBars", std::int32_t{3});
    Let(u"Enabled", true);
    EXPECT_TRUE(Edit(3).hasFocus());
    // The user moves on.
    Let(u"Enabled", false);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget& edit = dynamic_cast<TextBox&>(*other.Parts().Find(u"Text1", 0)).Edit();
    EXPECT_TRUE(edit.hasFocus());
    Let(u"Enabled", true);
    EXPECT_TRUE(edit.hasFocus());
}

TEST_F(QtMemoTest, AShorterListKeepsTheKeyboardAndSelectsNothing) {
    HostedControl& list = form_.Place(u"VOptList", {0, 1800, 4500, 1800});
    list.Automation().Let(u"Contents", Text(u"a|b|c"));
    list.FocusFirst();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(ToText(list.Automation().Get(u"Text")), u"c");
    form_.events.clear();
    list.Automation().Let(u"Contents", Text(u"a|b"));
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(list.isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(ToText(list.Automation().Get(u"Text")), u"");
    EXPECT_THAT(form_.events, ElementsAre());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(ToText(list.Automation().Get(u"Text")), u"b") << "from the first item";
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
