// Dragging: text between text boxes, and controls on the canvas.
#include <QPlainTextEdit>

#include <gtest/gtest.h>

#include "tests/apps/lumenform/wayland/session.h"

namespace lumenkit::testing {
namespace {

class DragOnWayland : public RunSession {
 protected:
    // Selects the word and returns a point in it, relative to the box.
    QPoint Grip(TextView memo, const char* word) {
        auto& edit = dynamic_cast<QPlainTextEdit&>(Box(memo));
        GoTo(memo);
        if (!edit.find(QLatin1String(word))) {
            edit.moveCursor(QTextCursor::Start);
            edit.find(QLatin1String(word));
        }
        EXPECT_EQ(edit.textCursor().selectedText().toStdString(), word);
        QTextCursor inside = edit.textCursor();
        inside.setPosition((inside.selectionStart() + inside.selectionEnd()) / 2);
        return edit.viewport()->mapToParent(edit.cursorRect(inside).center());
    }
    // Returns a point at the end of the memo's text.
    QPoint End(TextView memo) {
        auto& edit = dynamic_cast<QPlainTextEdit&>(Box(memo));
        QTextCursor end = edit.textCursor();
        end.movePosition(QTextCursor::End);
        return edit.viewport()->mapToParent(edit.cursorRect(end).center()) + QPoint(2, 0);
    }
};

TEST_F(DragOnWayland, TextMovesFromMemoToMemo) {
    Automation(u"Upper").Let(u"Text", Text(u"one two three"));
    Automation(u"Lower").Let(u"Text", Text(u"four "));
    const QPoint grip = Grip(u"Upper", "two");
    person.Drag(Box(u"Upper"), grip, Box(u"Lower"), End(u"Lower"));
    EXPECT_EQ(Awaited([&] { return TextOf(u"Lower"); }, "four two"), "four two");
    EXPECT_EQ(Awaited([&] { return TextOf(u"Upper"); }, "one  three"), "one  three");
}

TEST_F(DragOnWayland, TextMovesWithinAMemo) {
    Automation(u"Upper").Let(u"Text", Text(u"one two three "));
    const QPoint grip = Grip(u"Upper", "two ");
    person.Drag(Box(u"Upper"), grip, Box(u"Upper"), End(u"Upper"));
    const std::string moved = "one three two ";
    EXPECT_EQ(Awaited([&] { return TextOf(u"Upper"); }, moved), moved);
}

TEST_F(DragOnWayland, TextThatTheTargetRefusesStays) {
    Automation(u"Upper").Let(u"Text", Text(u"one two three"));
    Automation(u"Lower").Let(u"MaxCharsPerLine", std::int16_t{5});
    Automation(u"Lower").Let(u"Text", Text(u"four"));
    const QPoint grip = Grip(u"Upper", "two");
    person.Drag(Box(u"Upper"), grip, Box(u"Lower"), End(u"Lower"));
    EXPECT_EQ(TextOf(u"Upper"), "one two three");
    EXPECT_EQ(TextOf(u"Lower"), "four");
}

TEST_F(DragOnWayland, TextDroppedNowhereStays) {
    Automation(u"Upper").Let(u"Text", Text(u"one two three"));
    const QPoint grip = Grip(u"Upper", "two");
    person.DragToTheDesktop(Box(u"Upper"), grip);
    EXPECT_EQ(TextOf(u"Upper"), "one two three");
    // The mouse is free again, also for a long press in another memo.
    person.Drag(Box(u"Lower"), QPoint(20, 20), Box(u"Lower"), QPoint(120, 20));
    EXPECT_EQ(TextOf(u"Upper"), "one two three");
    EXPECT_EQ(TextOf(u"Lower"), "");
    GoTo(u"Lower");
    Person::Type(QStringLiteral("typed"));
    EXPECT_EQ(Awaited([&] { return TextOf(u"Lower"); }, "typed"), "typed");
}

class DesignDragOnWayland : public DesignSession {};

TEST_F(DesignDragOnWayland, AControlFollowsThePointer) {
    const QPoint from = MiddleOf(u"Notes");
    const host::Placement before = Control(u"Notes").Place();
    person.Drag(Glass(), from, Glass(), from + QPoint(64, 16));
    const host::Placement after{before.left + 960, before.top + 240, before.width, before.height};
    EXPECT_EQ(Awaited([&] { return Control(u"Notes").Place(); }, after), after);
    EXPECT_TRUE(Soon([&] { return window.isWindowModified(); }));
}

TEST_F(DesignDragOnWayland, AControlOfTheToolboxIsDrawn) {
    QListWidget& toolbox = window.Bench()->GetToolbox().List();
    person.Click(*toolbox.viewport(), toolbox.visualItemRect(toolbox.item(0)).center());
    ASSERT_TRUE(Soon([&] { return window.Bench()->GetCanvas().IsDrawing(); }));
    const QPoint corner =
        Glass().mapFrom(&window, Design().View().Client().mapTo(&window, QPoint()));
    person.Drag(Glass(), corner + QPoint(192, 16), Glass(), corner + QPoint(272, 56));
    ASSERT_TRUE(Soon([&] { return Design().View().Find(u"VLabel1") != nullptr; }));
    EXPECT_EQ(Control(u"VLabel1").Place(), (host::Placement{2880, 240, 1200, 600}));
}

}  // namespace
}  // namespace lumenkit::testing
