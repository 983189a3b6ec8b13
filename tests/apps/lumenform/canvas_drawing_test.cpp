// Drawing new controls, sizing the form, and numbering the tab order on the canvas.
#include <QTest>
#include <optional>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/new_control.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/designed_form.h"

namespace lumenkit::testing {
namespace {

using host::Placement;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Records the controls that are drawn.
class Drawing {
 public:
    explicit Drawing(const std::string& inner) : canvas(inner) {
        QObject::connect(canvas.canvas, &lumenform::Canvas::Drawn,
                         [this](const Text& className, lumenform::LiveControl* container,
                                const Placement& place) {
                             drawn.push_back(ToUtf8(className) + " in " +
                                             (container == nullptr ? std::string("the form")
                                                                   : ToUtf8(container->Name())));
                             places.push_back(place);
                         });
        QObject::connect(canvas.canvas, &lumenform::Canvas::DrawingEnded, [this] { ++ended; });
    }

    DesignedForm canvas;
    std::vector<std::string> drawn;
    std::vector<Placement> places;
    int ended = 0;
};

const std::string withFrame =
    "   Begin VB.Frame F\n Left = 1500\n Top = 300\n Width = 2700\n Height = 2400\n"
    "      Begin VB.TextBox T\n Left = 300\n Top = 300\n Width = 900\n Height = 300\n End\n"
    "   End\n";

TEST(CanvasDrawing, ADragGivesTheSnappedPlace) {
    Drawing drawing(withFrame);
    drawing.canvas.canvas->BeginDrawing(u"VB.TextBox");
    EXPECT_EQ(drawing.canvas.canvas->GetGlass().cursor().shape(), Qt::CrossCursor);
    drawing.canvas.Drag({9, 10}, {41, 29});
    EXPECT_THAT(drawing.drawn, ElementsAre("VB.TextBox in the form"));
    EXPECT_THAT(drawing.places, ElementsAre(Placement{120, 120, 600, 480}));
    EXPECT_EQ(drawing.ended, 1);
    EXPECT_FALSE(drawing.canvas.canvas->IsDrawing());
    EXPECT_EQ(drawing.canvas.canvas->GetGlass().cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(drawing.canvas.design.History().count(), 0) << "the model makes the control";
}

TEST(CanvasDrawing, UpwardsAndFreelyWithAlt) {
    Drawing drawing(withFrame);
    drawing.canvas.canvas->BeginDrawing(u"lumenkit.VMemo");
    drawing.canvas.Drag({50, 39}, {-41, -29}, Qt::AltModifier);
    EXPECT_THAT(drawing.places, ElementsAre(Placement{135, 150, 615, 435}));
}

TEST(CanvasDrawing, LiesInTheContainerUnderIt) {
    Drawing drawing(withFrame);
    drawing.canvas.canvas->BeginDrawing(u"VB.Label");
    drawing.canvas.Drag({100 + 25, 20 + 25}, {48, 40});
    EXPECT_THAT(drawing.drawn, ElementsAre("VB.Label in F")) << "though begun on a text box";
    EXPECT_THAT(drawing.places, ElementsAre(Placement{360, 360, 720, 600}));
}

TEST(CanvasDrawing, AClickGivesTheUsualSize) {
    Drawing drawing(withFrame);
    for (const TextView className : {u"lumenkit.VLabel", u"VB.CommandButton", u"VB.Timer"}) {
        drawing.canvas.canvas->BeginDrawing(Text(className));
        drawing.canvas.Click({9, 17});
        const Placement usual = lumenform::UsualPlace(drawing.canvas.design, className);
        EXPECT_GT(usual.width, 0);
        EXPECT_EQ(drawing.places.back(), (Placement{120, 240, usual.width, usual.height}));
    }
    EXPECT_EQ(drawing.ended, 3);
}

TEST(CanvasDrawing, EscGivesUp) {
    Drawing drawing(withFrame);
    drawing.canvas.canvas->BeginDrawing(u"VB.TextBox");
    drawing.canvas.Key(Qt::Key_Escape);
    EXPECT_EQ(drawing.ended, 1);
    drawing.canvas.Drag({9, 10}, {41, 29});
    EXPECT_THAT(drawing.drawn, IsEmpty());
}

TEST(CanvasDrawing, EscInTheMiddleOfTheDragEndsTheDragOnly) {
    Drawing drawing(withFrame);
    drawing.canvas.canvas->BeginDrawing(u"VB.TextBox");
    drawing.canvas.Press({9, 10});
    drawing.canvas.MoveTo({50, 50});
    drawing.canvas.Key(Qt::Key_Escape);
    drawing.canvas.Release({50, 50});
    EXPECT_THAT(drawing.drawn, IsEmpty());
    EXPECT_TRUE(drawing.canvas.canvas->IsDrawing());
}

TEST(CanvasDrawing, TheModelTakesWhatIsDrawn) {
    DesignedForm canvas(withFrame);
    QObject::connect(canvas.canvas, &lumenform::Canvas::Drawn,
                     [&](const Text& className, const lumenform::LiveControl* container,
                         const Placement& place) {
                         lumenform::AddNewControl(canvas.design, className, container, place);
                     });
    canvas.canvas->BeginDrawing(u"VB.CheckBox");
    canvas.Drag({100 + 8, 20 + 80}, {80, 24});
    EXPECT_THAT(canvas.Selected(), ElementsAre("Check1"));
    EXPECT_EQ(canvas.PlaceOf(u"Check1"), (Placement{120, 1200, 1200, 360}));
    canvas.Drag(canvas.MiddleOf(u"Check1"), {8, 8});
    EXPECT_EQ(canvas.PlaceOf(u"Check1"), (Placement{240, 1320, 1200, 360}));
}

TEST(CanvasForm, IsSizedByItsEdges) {
    DesignedForm canvas("   Begin VB.TextBox T\n Left = 300\n End\n");
    const std::string before = canvas.Saved();
    canvas.Drag(canvas.FormHandle(1, 0), {21, 30});
    EXPECT_THAT(canvas.ChangedSince(before), ElementsAre("ClientWidth = 4800"));
    EXPECT_EQ(canvas.design.View().Client().size(), QSize(320, 200));
    canvas.Drag(canvas.FormHandle(1, 1), {-24, 16});
    EXPECT_THAT(canvas.ChangedSince(before),
                ElementsAre("ClientHeight = 3240", "ClientWidth = 4440"));
    canvas.Drag(canvas.FormHandle(0, 1), {0, 5}, Qt::AltModifier);
    EXPECT_EQ(canvas.design.View().Client().size(), QSize(296, 221));
    EXPECT_EQ(canvas.design.History().count(), 3);
    while (canvas.design.History().canUndo()) {
        canvas.design.History().undo();
    }
    EXPECT_EQ(canvas.Saved(), before);
}

TEST(CanvasForm, KeepsItsSizesAtOne) {
    DesignedForm canvas(
        FormOf("VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 3000\n   ClientLeft = 60\n"
               "   ClientWidth = 4500\n   Height = 3405\n   ScaleHeight = 200\n"
               "   ScaleMode = 3\n   ScaleWidth = 300\n   Width = 4620\n"
               "   Begin VB.TextBox T\n      Left = 20\n   End\nEnd\n"));
    const std::string before = canvas.Saved();
    canvas.Drag(canvas.FormHandle(1, 1), {20, 40});
    EXPECT_THAT(canvas.ChangedSince(before),
                ElementsAre("ClientHeight = 3600", "ClientWidth = 4800", "Height = 4005",
                            "ScaleHeight = 240", "ScaleWidth = 320", "Width = 4920"));
}

TEST(CanvasForm, UnitsOfItsOwnStayAsLargeAsTheyAre) {
    DesignedForm canvas(
        FormOf("VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 3000\n   ClientWidth = 4500\n"
               "   ScaleHeight = 50\n   ScaleLeft = -10\n   ScaleMode = 0\n   ScaleWidth = 100\n"
               "   Begin VB.Line L\n      X1 = 10\n      X2 = 30\n      Y1 = 0\n      Y2 = 10\n"
               "   End\nEnd\n"));
    const std::string before = canvas.Saved();
    const Placement place = canvas.PlaceOf(u"L");
    EXPECT_EQ(place, (Placement{900, 0, 900, 600}));
    canvas.Drag(canvas.FormHandle(1, 0), {30, 0}, Qt::AltModifier);
    EXPECT_THAT(canvas.ChangedSince(before), ElementsAre("ClientWidth = 4950", "ScaleWidth = 110"));
    EXPECT_EQ(canvas.PlaceOf(u"L"), place);
}

TEST(CanvasForm, EscPutsItBackAndNothingIsLessThanAPixel) {
    DesignedForm canvas("");
    const QPoint at = canvas.FormHandle(1, 1);
    canvas.Press(at);
    canvas.MoveTo(at + QPoint(40, 40));
    EXPECT_EQ(canvas.design.View().Client().size(), QSize(344, 240));
    canvas.Key(Qt::Key_Escape);
    EXPECT_EQ(canvas.design.View().Client().size(), QSize(300, 200));
    EXPECT_EQ(canvas.design.History().count(), 0);
    canvas.Drag(canvas.FormHandle(1, 1), {-400, -400});
    EXPECT_EQ(canvas.design.View().Client().size(), QSize(1, 1));
    EXPECT_THAT(canvas.refused, IsEmpty());
}

TEST(CanvasForm, IsSizedByShiftAndArrows) {
    DesignedForm canvas("");
    canvas.Key(Qt::Key_Right, Qt::ShiftModifier);
    canvas.Key(Qt::Key_Up, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(canvas.design.View().Client().size(), QSize(308, 199));
    canvas.Key(Qt::Key_Right);
    EXPECT_EQ(canvas.design.View().Client().size(), QSize(308, 199)) << "it lies where it lies";
}

const std::string numbered =
    "   Begin VB.TextBox A\n      TabIndex = 0\n      Left = 0\n      Width = 600\n   End\n"
    "   Begin VB.TextBox B\n      TabIndex = 1\n      Left = 900\n      Width = 600\n   End\n"
    "   Begin VB.TextBox C\n      TabIndex = 2\n      Left = 1800\n      Width = 600\n   End\n"
    "   Begin VB.TextBox D\n      TabIndex = 7\n      Left = 2700\n      Width = 600\n   End\n"
    "   Begin VB.Image I\n      Left = 0\n      Top = 900\n      Width = 600\n   End\n";

std::vector<std::optional<int>> TurnsOf(const DesignedForm& canvas) {
    std::vector<std::optional<int>> turns;
    for (const auto& control : canvas.design.View().Controls()) {
        turns.emplace_back(control->TabIndex());
    }
    return turns;
}

TEST(CanvasTabOrder, ClicksNumberTheControls) {
    DesignedForm canvas(numbered);
    const std::string before = canvas.Saved();
    canvas.Select({u"A"});
    canvas.canvas->SetTabOrderMode(true);
    canvas.Click(canvas.MiddleOf(u"C"));
    EXPECT_THAT(TurnsOf(canvas), ElementsAre(1, 2, 0, 7, std::nullopt));
    canvas.Click(canvas.MiddleOf(u"B"));
    EXPECT_THAT(TurnsOf(canvas), ElementsAre(2, 1, 0, 7, std::nullopt));
    canvas.Click(canvas.MiddleOf(u"I"));
    canvas.Click(canvas.MiddleOf(u"A"));
    EXPECT_THAT(TurnsOf(canvas), ElementsAre(2, 1, 0, 7, std::nullopt));
    canvas.Click(canvas.MiddleOf(u"D"));
    EXPECT_THAT(TurnsOf(canvas), ElementsAre(2, 1, 0, 3, std::nullopt));
    EXPECT_THAT(canvas.Selected(), ElementsAre("A"));
    EXPECT_EQ(canvas.design.History().count(), 3) << "A had its number already";
    while (canvas.design.History().canUndo()) {
        canvas.design.History().undo();
    }
    EXPECT_EQ(canvas.Saved(), before);
}

TEST(CanvasTabOrder, ANumberChangesOnlyWhereItMust) {
    DesignedForm canvas(numbered);
    const std::string before = canvas.Saved();
    canvas.canvas->SetTabOrderMode(true);
    canvas.Click(canvas.MiddleOf(u"B"));
    EXPECT_THAT(canvas.ChangedSince(before), ElementsAre("TabIndex = 1", "TabIndex = 0"));
}

TEST(CanvasTabOrder, EscEndsItAndItBeginsAnew) {
    DesignedForm canvas(numbered);
    std::vector<bool> told;
    QObject::connect(canvas.canvas, &lumenform::Canvas::TabOrderModeChanged,
                     [&](bool on) { told.push_back(on); });
    canvas.canvas->SetTabOrderMode(true);
    canvas.Click(canvas.MiddleOf(u"C"));
    canvas.Key(Qt::Key_Escape);
    EXPECT_FALSE(canvas.canvas->IsTabOrderMode());
    canvas.Click(canvas.MiddleOf(u"B"));
    EXPECT_THAT(canvas.Selected(), ElementsAre("B"));
    EXPECT_THAT(TurnsOf(canvas), ElementsAre(1, 2, 0, 7, std::nullopt));
    canvas.canvas->SetTabOrderMode(true);
    canvas.Click(canvas.MiddleOf(u"B"));
    EXPECT_THAT(TurnsOf(canvas), ElementsAre(2, 0, 1, 7, std::nullopt));
    EXPECT_THAT(told, ElementsAre(true, false, true));
}

TEST(CanvasTabOrder, NothingIsMovedMeanwhile) {
    DesignedForm canvas(numbered);
    canvas.Select({u"A"});
    canvas.canvas->SetTabOrderMode(true);
    canvas.Drag(canvas.MiddleOf(u"A"), {50, 50});
    canvas.Key(Qt::Key_Right);
    EXPECT_EQ(canvas.PlaceOf(u"A").left, 0);
}

}  // namespace
}  // namespace lumenkit::testing
