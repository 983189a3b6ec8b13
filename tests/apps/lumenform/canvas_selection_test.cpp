// Selecting controls on the canvas by mouse and by keyboard.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QPaintEvent>
#include <QTest>

#include <gmock/gmock.h>

#include "frame/utf8.h"
#include "tests/apps/lumenform/designed_form.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A and B are side by side. Below them is the frame F with C and D in it. A covers half of E.
const std::string nestedControls =
    "   Begin VB.CommandButton A\n Left = 150\n Top = 150\n Width = 900\n Height = 450\n"
    " TabIndex = 2\n End\n"
    "   Begin VB.TextBox B\n Left = 1500\n Top = 150\n Width = 900\n Height = 450\n"
    " TabIndex = 0\n End\n"
    "   Begin VB.Frame F\n Left = 150\n Top = 900\n Width = 3000\n Height = 1500\n TabIndex = 3\n"
    "      Begin lumenkit.VMemo C\n Left = 300\n Top = 450\n Width = 900\n Height = 600\n"
    " TabIndex = 4\n End\n"
    "      Begin VB.CheckBox D\n Left = 1500\n Top = 450\n Width = 900\n Height = 600\n"
    " TabIndex = 1\n End\n"
    "   End\n"
    "   Begin VB.Label E\n Left = 600\n Top = 300\n Width = 600\n Height = 450\n End\n";

// Collects the repainted region of a widget.
class Painted final : public QObject {
 public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }

    QRegion region;

 private:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

TEST(CanvasSelection, AClickSelectsTheTopmostControl) {
    DesignedForm canvas(nestedControls);
    canvas.Click({50, 30});
    EXPECT_THAT(canvas.Selected(), ElementsAre("A"));
    canvas.Click({60, 48});
    EXPECT_THAT(canvas.Selected(), ElementsAre("E"));
    canvas.Click(canvas.MiddleOf(u"C"));
    EXPECT_THAT(canvas.Selected(), ElementsAre("C"));
    canvas.Click({15, 150});
    EXPECT_THAT(canvas.Selected(), ElementsAre("F"));
}

TEST(CanvasSelection, AClickOnTheBackgroundSelectsTheForm) {
    DesignedForm canvas(nestedControls);
    canvas.Select({u"A"});
    canvas.Click({250, 20});
    EXPECT_THAT(canvas.Selected(), IsEmpty());
    canvas.Select({u"A"});
    canvas.Click({320, -10});
    EXPECT_THAT(canvas.Selected(), IsEmpty()) << "beside the form";
}

TEST(CanvasSelection, ShiftAndCtrlAddAndRemove) {
    DesignedForm canvas(nestedControls);
    for (const Qt::KeyboardModifier held : {Qt::ShiftModifier, Qt::ControlModifier}) {
        canvas.Click(canvas.MiddleOf(u"B"));
        canvas.Click(canvas.MiddleOf(u"C"), held);
        EXPECT_THAT(canvas.Selected(), ElementsAre("B", "C"));
        canvas.Click(canvas.MiddleOf(u"B"), held);
        EXPECT_THAT(canvas.Selected(), ElementsAre("C"));
        canvas.Click({250, 20}, held);
        EXPECT_THAT(canvas.Selected(), ElementsAre("C")) << "the background takes nothing away";
    }
}

TEST(CanvasSelection, AClickOnOneOfSeveralMakesItTheLast) {
    DesignedForm canvas(nestedControls);
    canvas.Select({u"A", u"B", u"C"});
    canvas.Click(canvas.MiddleOf(u"B"));
    EXPECT_THAT(canvas.Selected(), ElementsAre("A", "C", "B"));
}

TEST(CanvasSelection, ABandSelectsWhatItTouches) {
    DesignedForm canvas(nestedControls);
    canvas.Drag({250, 5}, {-195, 30});
    EXPECT_THAT(canvas.Selected(), ElementsAre("A", "B", "E"));
    canvas.Drag({250, 5}, {-60, 20});
    EXPECT_THAT(canvas.Selected(), IsEmpty()) << "it touches nothing";
    EXPECT_EQ(canvas.design.History().count(), 0);
}

TEST(CanvasSelection, ABandIsWipedWhenItEnds) {
    DesignedForm canvas(nestedControls);
    lumenform::Glass& glass = canvas.canvas->GetGlass();
    for (const bool isCancelled : {false, true}) {
        canvas.Press({250, 20});
        canvas.MoveTo({260, 30});
        canvas.MoveTo({300, 50});
        QApplication::processEvents();
        Painted painted(glass);
        if (isCancelled) {
            canvas.Key(Qt::Key_Escape);
        }
        canvas.Release({300, 50});
        QApplication::processEvents();
        EXPECT_GE(painted.region.boundingRect().width(), 50);
        EXPECT_GE(painted.region.boundingRect().height(), 30);
    }
}

TEST(CanvasSelection, ABandTakesTheControlsOfOneContainerOnly) {
    DesignedForm canvas(nestedControls);
    canvas.Drag({250, 30}, {-240, 100});
    EXPECT_THAT(canvas.Selected(), ElementsAre("A", "B", "F", "E"));
    canvas.Select({});
    canvas.Drag({12, 70}, {190, 60}, Qt::ControlModifier);
    EXPECT_THAT(canvas.Selected(), ElementsAre("C", "D")) << "with Ctrl, from within the frame";
}

TEST(CanvasSelection, ABandWithShiftAdds) {
    DesignedForm canvas(nestedControls);
    canvas.Select({u"B", u"C"});
    canvas.Drag({250, 5}, {-240, 30}, Qt::ShiftModifier);
    EXPECT_THAT(canvas.Selected(), ElementsAre("B", "C", "A", "E"));
}

TEST(CanvasSelection, TabGoesRoundByTabIndex) {
    DesignedForm canvas(nestedControls);
    std::vector<std::string> way;
    for (int step = 0; step < 7; ++step) {
        canvas.Key(Qt::Key_Tab);
        way.push_back(canvas.Selected().at(0));
    }
    EXPECT_THAT(way, ElementsAre("B", "D", "A", "F", "C", "E", "B"));
    canvas.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_THAT(canvas.Selected(), ElementsAre("E"));
    canvas.Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_THAT(canvas.Selected(), ElementsAre("C"));
}

TEST(CanvasSelection, TabLeavesAnEmptyForm) {
    DesignedForm canvas("");
    canvas.Key(Qt::Key_Tab);
    EXPECT_THAT(canvas.Selected(), IsEmpty());
}

TEST(CanvasSelection, CtrlATakesAll) {
    DesignedForm canvas(nestedControls);
    canvas.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(canvas.Selected(), ElementsAre("A", "B", "F", "C", "D", "E"));
}

TEST(CanvasSelection, EscGoesOutwards) {
    DesignedForm canvas(nestedControls);
    canvas.Select({u"A", u"C"});
    canvas.Key(Qt::Key_Escape);
    EXPECT_THAT(canvas.Selected(), ElementsAre("F"));
    canvas.Key(Qt::Key_Escape);
    EXPECT_THAT(canvas.Selected(), IsEmpty());
    canvas.Key(Qt::Key_Escape);
    EXPECT_THAT(canvas.Selected(), IsEmpty());
}

TEST(CanvasSelection, IsToldToScreenReaders) {
    DesignedForm canvas(nestedControls);
    canvas.Select({u"A", u"C"});
    EXPECT_EQ(canvas.canvas->GetGlass().accessibleDescription(), "Selected: A, C");
    canvas.Select({});
    EXPECT_EQ(canvas.canvas->GetGlass().accessibleDescription(), "The form is selected");
    EXPECT_FALSE(canvas.canvas->GetGlass().accessibleName().isEmpty());
}

TEST(CanvasSelection, DoubleClickAndEnterActivate) {
    DesignedForm canvas(nestedControls);
    std::vector<std::string> activated;
    QObject::connect(canvas.canvas, &lumenform::Canvas::Activated,
                     [&](const lumenform::LiveControl& control) {
                         activated.push_back(ToUtf8(control.Name()));
                     });
    QObject::connect(canvas.canvas, &lumenform::Canvas::FormActivated,
                     [&] { activated.emplace_back("form"); });
    lumenform::Glass& glass = canvas.canvas->GetGlass();
    const auto doubleClick = [&](QPoint at) {
        canvas.Click(at);
        const QPoint onGlass = glass.mapFromGlobal(canvas.design.View().Client().mapToGlobal(at));
        QTest::mouseDClick(&glass, Qt::LeftButton, {}, onGlass);
    };
    doubleClick(canvas.MiddleOf(u"C"));
    canvas.Key(Qt::Key_Return);
    doubleClick({250, 20});
    canvas.Key(Qt::Key_Return);
    EXPECT_THAT(activated, ElementsAre("C", "C", "form", "form"));
    EXPECT_EQ(canvas.design.History().count(), 0);
}

TEST(CanvasSelection, TheMenuIsForWhatLiesUnderTheMouse) {
    DesignedForm canvas(nestedControls);
    std::vector<QPoint> asked;
    QObject::connect(canvas.canvas, &lumenform::Canvas::MenuRequested,
                     [&](QPoint at) { asked.push_back(at); });
    lumenform::Glass& glass = canvas.canvas->GetGlass();
    const auto ask = [&](QPoint at) {
        const QPoint global = canvas.design.View().Client().mapToGlobal(at);
        QContextMenuEvent event(QContextMenuEvent::Mouse, glass.mapFromGlobal(global), global);
        QApplication::sendEvent(&glass, &event);
        return global;
    };
    canvas.Select({u"A", u"B"});
    const QPoint first = ask(canvas.MiddleOf(u"B"));
    EXPECT_THAT(canvas.Selected(), ElementsAre("A", "B")) << "it is one of them";
    const QPoint second = ask(canvas.MiddleOf(u"C"));
    EXPECT_THAT(canvas.Selected(), ElementsAre("C"));
    const QPoint third = ask({250, 20});
    EXPECT_THAT(canvas.Selected(), IsEmpty());
    EXPECT_THAT(asked, ElementsAre(first, second, third));
}

TEST(CanvasSelection, NothingReachesTheControls) {
    DesignedForm canvas(nestedControls);
    canvas.Click(canvas.MiddleOf(u"B"));
    QTest::keyClicks(&canvas.canvas->GetGlass(), "typed");
    EXPECT_EQ(QApplication::focusWidget(), &canvas.canvas->GetGlass());
    EXPECT_EQ(canvas.design.History().count(), 0);
    EXPECT_EQ(canvas.Saved(), FormWith(nestedControls).Write().form);
}

TEST(CanvasSelection, KeysOfTheFormAreNotThoseOfTheDesigner) {
    DesignedForm canvas(
        "   Begin VB.Menu mnuEdit\n Caption = \"&Edit\"\n"
        "      Begin VB.Menu mnuCut\n Caption = \"Cut\"\n Shortcut = ^X\n End\n"
        "   End\n"
        "   Begin VB.CheckBox C\n Caption = \"&Check\"\n End\n"
        "   Begin lumenkit.VOptList O\n Contents = \"1;&One|2;&Two\"\n ListIndex = 0\n"
        "      Top = 600\n Width = 1200\n Height = 900\n End\n");
    int cuts = 0;
    QAction cut;
    cut.setShortcut(QKeySequence::Cut);
    QObject::connect(&cut, &QAction::triggered, [&] { ++cuts; });
    canvas.window.addAction(&cut);
    const std::string before = canvas.Saved();
    canvas.Key(Qt::Key_C, Qt::AltModifier);
    canvas.Key(Qt::Key_T, Qt::AltModifier);
    canvas.Key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(cuts, 1);
    EXPECT_FALSE(dynamic_cast<QAbstractButton&>(canvas.Control(u"C").Widget()).isChecked());
    canvas.design.View().Save();
    EXPECT_EQ(canvas.Saved(), before);
}

}  // namespace
}  // namespace lumenkit::testing
