// Moving and sizing controls on the canvas by mouse and by keyboard.
#include <QTest>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/designed_form.h"

namespace lumenkit::testing {

namespace {

using host::Placement;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

const std::string threeControls =
    "   Begin VB.CommandButton A\n      Height = 495\n      Left = 130\n      Top = 240\n"
    "      Width = 1215\n   End\n"
    "   Begin VB.Frame F\n      Height = 1800\n      Left = 1800\n      Top = 120\n"
    "      Width = 2400\n"
    "      Begin lumenkit.VMemo M\n         Height = 600\n         Left = 240\n"
    "         Top = 360\n         Width = 1200\n      End\n"
    "   End\n"
    "   Begin VB.TextBox T\n      Height = 300\n      Left = 150\n      Top = 1200\n"
    "      Width = 900\n   End\n";

constexpr Placement placeOfA{.left = 130, .top = 240, .width = 1215, .height = 495};
constexpr Placement placeOfM{.left = 240, .top = 360, .width = 1200, .height = 600};
constexpr Placement placeOfT{.left = 150, .top = 1200, .width = 900, .height = 300};

TEST(CanvasDrag, MovesToTheGridInOneStep) {
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    canvas.Drag(canvas.MiddleOf(u"A"), {30, 17});
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{600, 480, 1215, 495}));
    EXPECT_THAT(canvas.Selected(), ElementsAre("A"));
    EXPECT_THAT(canvas.ChangedSince(before), ElementsAre("Left = 600", "Top = 480"));
    EXPECT_EQ(canvas.design.History().count(), 1);
    EXPECT_EQ(canvas.design.History().text(0), "Move A");
    canvas.design.History().undo();
    EXPECT_EQ(canvas.Saved(), before);
    EXPECT_EQ(canvas.PlaceOf(u"A"), placeOfA);
    canvas.design.History().redo();
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{600, 480, 1215, 495}));
}

TEST(CanvasDrag, AnAxisThatWasNotDraggedStays) {
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    canvas.Drag(canvas.MiddleOf(u"A"), {0, 17});
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{130, 480, 1215, 495}));
    EXPECT_THAT(canvas.ChangedSince(before), ElementsAre("Top = 480"));
}

TEST(CanvasDrag, AltHoldsTheGridOff) {
    DesignedForm canvas(threeControls);
    canvas.Drag(canvas.MiddleOf(u"A"), {30, 17}, Qt::AltModifier);
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{580, 495, 1215, 495}));
    canvas.canvas->SetGrid({.snaps = false, .guides = false});
    canvas.Drag(canvas.MiddleOf(u"A"), {1, 5});
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{595, 570, 1215, 495}));
}

TEST(CanvasDrag, TheGridHasAnyStep) {
    DesignedForm canvas(threeControls);
    canvas.canvas->SetGrid({.step = 100, .guides = false});
    canvas.Drag(canvas.MiddleOf(u"A"), {30, 17});
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{600, 500, 1215, 495}));
    canvas.canvas->SetGrid({.step = 0});
    EXPECT_EQ(canvas.canvas->GetGrid().step, 1);
}

TEST(CanvasDrag, BelowTheThresholdItIsAClick) {
    DesignedForm canvas(threeControls);
    canvas.Drag(canvas.MiddleOf(u"A"), {2, 1});
    EXPECT_EQ(canvas.PlaceOf(u"A"), placeOfA);
    EXPECT_EQ(canvas.design.History().count(), 0);
}

TEST(CanvasDrag, BackToWhereItBeganIsNoStep) {
    DesignedForm canvas(threeControls);
    const QPoint at = canvas.MiddleOf(u"A");
    canvas.Press(at);
    canvas.MoveTo(at + QPoint(50, 50));
    canvas.MoveTo(at);
    canvas.Release(at);
    EXPECT_EQ(canvas.PlaceOf(u"A"), placeOfA);
    EXPECT_EQ(canvas.design.History().count(), 0);
}

TEST(CanvasDrag, AllSelectedOnesGoAlong) {
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    canvas.Select({u"A", u"T"});
    canvas.Drag(canvas.MiddleOf(u"A"), {30, 17});
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{600, 480, 1215, 495}));
    EXPECT_EQ(canvas.PlaceOf(u"T"), (Placement{620, 1440, 900, 300})) << "at the same distance";
    EXPECT_EQ(canvas.design.History().count(), 1);
    EXPECT_EQ(canvas.design.History().text(0), "Move 2 controls");
    canvas.design.History().undo();
    EXPECT_EQ(canvas.Saved(), before);
}

TEST(CanvasDrag, WhatLiesInASelectedContainerGoesWithIt) {
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    canvas.Select({u"F", u"M"});
    canvas.Drag(canvas.MiddleOf(u"M"), {-16, 8});
    EXPECT_EQ(canvas.PlaceOf(u"M"), placeOfM);
    EXPECT_EQ(canvas.PlaceOf(u"F"), (Placement{1560, 240, 2400, 1800}));
    EXPECT_THAT(canvas.ChangedSince(before), ElementsAre("Left = 1560", "Top = 240"));
}

TEST(CanvasDrag, InAContainerTheGridIsItsOwn) {
    DesignedForm canvas(
        "   Begin VB.PictureBox P\n BorderStyle = 0\n Left = 130\n Top = 70\n Width = 3000\n"
        " Height = 2000\n"
        "      Begin VB.TextBox T\n Left = 100\n Top = 100\n Width = 900\n Height = 300\n End\n"
        "   End\n");
    canvas.Drag(canvas.MiddleOf(u"T"), {16, 16});
    EXPECT_EQ(canvas.PlaceOf(u"T"), (Placement{360, 360, 900, 300}));
}

TEST(CanvasDrag, MovesLiveAndWritesAtTheEnd) {
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    const QPoint at = canvas.MiddleOf(u"A");
    int edits = 0;
    QObject::connect(&canvas.design, &lumenform::FormDesign::Edited, [&] { ++edits; });
    canvas.Press(at);
    canvas.MoveTo(at + QPoint(30, 17));
    EXPECT_EQ(canvas.Control(u"A").Widget().pos(), QPoint(40, 32));
    EXPECT_EQ(canvas.Saved(), before);
    EXPECT_EQ(edits, 0);
    canvas.Release(at + QPoint(30, 17));
    EXPECT_EQ(edits, 1);
}

TEST(CanvasDrag, TellsThePlace) {
    DesignedForm canvas(threeControls);
    const auto* label = canvas.canvas->findChild<lumenform::PlaceLabel*>();
    EXPECT_FALSE(label->isVisible());
    const QPoint at = canvas.MiddleOf(u"A");
    canvas.Press(at);
    canvas.MoveTo(at + QPoint(30, 17));
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(label->text(), QStringLiteral("600, 480  1215 \u00D7 495"));
    canvas.Release(at + QPoint(30, 17));
    EXPECT_FALSE(label->isVisible());
}

TEST(CanvasDrag, TellsWhereTheMouseIs) {
    DesignedForm canvas(threeControls);
    std::vector<QPointF> told;
    QObject::connect(canvas.canvas, &lumenform::Canvas::PointerMoved,
                     [&](QPointF twips) { told.push_back(twips); });
    canvas.MoveTo({10, 20});
    canvas.MoveTo({-2, 0});
    EXPECT_THAT(told, ElementsAre(QPointF(150, 300), QPointF(-30, 0)));
}

TEST(CanvasDrag, EscPutsEverythingBack) {
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    canvas.Select({u"A", u"M"});
    const QPoint at = canvas.MiddleOf(u"A");
    canvas.Press(at);
    canvas.MoveTo(at + QPoint(30, 17));
    EXPECT_NE(canvas.PlaceOf(u"M"), placeOfM);
    canvas.Key(Qt::Key_Escape);
    EXPECT_EQ(canvas.PlaceOf(u"A"), placeOfA);
    EXPECT_EQ(canvas.PlaceOf(u"M"), placeOfM);
    canvas.MoveTo(at + QPoint(60, 60));
    canvas.Release(at + QPoint(60, 60));
    EXPECT_EQ(canvas.PlaceOf(u"A"), placeOfA) << "the drag is over";
    EXPECT_THAT(canvas.Selected(), ElementsAre("A", "M"));
    EXPECT_EQ(canvas.Saved(), before);
    EXPECT_EQ(canvas.design.History().count(), 0);
}

TEST(CanvasDrag, AnUndoInTheMiddleEndsTheDrag) {
    DesignedForm canvas(threeControls);
    canvas.Drag(canvas.MiddleOf(u"T"), {80, 0});
    const QPoint at = canvas.MiddleOf(u"A");
    canvas.Press(at);
    canvas.MoveTo(at + QPoint(30, 17));
    canvas.design.History().undo();
    canvas.MoveTo(at + QPoint(60, 60));
    canvas.Release(at + QPoint(60, 60));
    EXPECT_EQ(canvas.PlaceOf(u"A"), placeOfA);
    EXPECT_EQ(canvas.PlaceOf(u"T"), placeOfT);
}

struct HandleCase {
    int across;
    int down;
    Placement expected;  // after a drag by (16, 17) pixels: 240 and 255 twips
};

class CanvasHandle : public ::testing::TestWithParam<HandleCase> {};

TEST_P(CanvasHandle, SizesByItsEdges) {
    const HandleCase& handle = GetParam();
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    canvas.Select({u"M"});
    canvas.Drag(canvas.HandleOf(u"M", handle.across, handle.down), {16, 17});
    EXPECT_EQ(canvas.PlaceOf(u"M"), handle.expected);
    EXPECT_EQ(canvas.design.History().text(0), "Size M");
    canvas.design.History().undo();
    EXPECT_EQ(canvas.Saved(), before);
    EXPECT_EQ(canvas.PlaceOf(u"M"), placeOfM);
}

INSTANTIATE_TEST_SUITE_P(All, CanvasHandle,
                         ::testing::Values(HandleCase{-1, -1, {480, 600, 960, 360}},
                                           HandleCase{0, -1, {240, 600, 1200, 360}},
                                           HandleCase{1, -1, {240, 600, 1440, 360}},
                                           HandleCase{-1, 0, {480, 360, 960, 600}},
                                           HandleCase{1, 0, {240, 360, 1440, 600}},
                                           HandleCase{-1, 1, {480, 360, 960, 840}},
                                           HandleCase{0, 1, {240, 360, 1200, 840}},
                                           HandleCase{1, 1, {240, 360, 1440, 840}}));

TEST(CanvasDrag, NoSizeFallsBelowZero) {
    DesignedForm canvas(threeControls);
    canvas.Select({u"T"});
    canvas.Drag(canvas.HandleOf(u"T", 1, 1), {-150, -150});
    EXPECT_EQ(canvas.PlaceOf(u"T"), (Placement{150, 1200, 0, 0}));
    canvas.design.History().undo();
    canvas.Drag(canvas.HandleOf(u"T", -1, -1), {150, 150});
    EXPECT_EQ(canvas.PlaceOf(u"T"), (Placement{1050, 1500, 0, 0}));
    EXPECT_THAT(canvas.refused, IsEmpty());
}

TEST(CanvasDrag, SeveralAreSizedTogether) {
    DesignedForm canvas(threeControls);
    canvas.Select({u"T", u"A"});
    canvas.Drag(canvas.HandleOf(u"A", 1, 0), {16, 0}, Qt::AltModifier);
    EXPECT_EQ(canvas.PlaceOf(u"A").width, 1455);
    EXPECT_EQ(canvas.PlaceOf(u"T").width, 1140);
}

TEST(CanvasKeys, ArrowsMoveByTheGridAndCtrlByAPixel) {
    DesignedForm canvas(threeControls);
    const std::string before = canvas.Saved();
    canvas.Select({u"A", u"M"});
    canvas.Key(Qt::Key_Right);
    canvas.Key(Qt::Key_Down);
    canvas.Key(Qt::Key_Left, Qt::ControlModifier);
    canvas.Key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{235, 345, 1215, 495}));
    EXPECT_EQ(canvas.PlaceOf(u"M"), (Placement{345, 465, 1200, 600}));
    EXPECT_EQ(canvas.design.History().count(), 1) << "one after the other is one step";
    canvas.design.History().undo();
    EXPECT_EQ(canvas.Saved(), before);
}

TEST(CanvasKeys, ShiftSizesAndStopsAtNothing) {
    DesignedForm canvas(threeControls);
    canvas.Select({u"T"});
    canvas.Key(Qt::Key_Right, Qt::ShiftModifier);
    canvas.Key(Qt::Key_Down, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(canvas.PlaceOf(u"T"), (Placement{150, 1200, 1020, 315}));
    for (int step = 0; step < 5; ++step) {
        canvas.Key(Qt::Key_Up, Qt::ShiftModifier);
    }
    EXPECT_EQ(canvas.PlaceOf(u"T"), (Placement{150, 1200, 1020, 0}));
}

TEST(CanvasKeys, NudgesOfOthersAreStepsOfTheirOwn) {
    DesignedForm canvas(threeControls);
    canvas.Select({u"A"});
    canvas.Key(Qt::Key_Right);
    canvas.Select({u"T"});
    canvas.Key(Qt::Key_Right);
    EXPECT_EQ(canvas.design.History().count(), 2);
}

TEST(CanvasDrag, TheCursorTellsWhatAHandleDoes) {
    DesignedForm canvas(threeControls);
    canvas.Select({u"M"});
    const auto shapeAt = [&](QPoint at) {
        canvas.MoveTo(at);
        return canvas.canvas->GetGlass().cursor().shape();
    };
    EXPECT_EQ(shapeAt(canvas.HandleOf(u"M", -1, -1)), Qt::SizeFDiagCursor);
    EXPECT_EQ(shapeAt(canvas.HandleOf(u"M", 1, -1)), Qt::SizeBDiagCursor);
    EXPECT_EQ(shapeAt(canvas.HandleOf(u"M", 1, 0)), Qt::SizeHorCursor);
    EXPECT_EQ(shapeAt(canvas.HandleOf(u"M", 0, 1)), Qt::SizeVerCursor);
    EXPECT_EQ(shapeAt(canvas.MiddleOf(u"T")), Qt::ArrowCursor);
    canvas.Select({});
    EXPECT_EQ(shapeAt(canvas.FormHandle(1, 1)), Qt::SizeFDiagCursor);
}

}  // namespace
}  // namespace lumenkit::testing
