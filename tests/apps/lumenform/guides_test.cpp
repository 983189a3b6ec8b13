// Dragged controls stop at the edges and baselines of the controls beside them.

#include <gmock/gmock.h>

#include "apps/lumenform/design/canvas/baseline.h"
#include "tests/apps/lumenform/designed_form.h"

namespace lumenkit::testing {
namespace {

using host::Placement;

const std::string neighbours =
    "   Begin VB.CommandButton A\n      Height = 495\n      Left = 135\n      Top = 255\n"
    "      Width = 1215\n   End\n"
    "   Begin VB.TextBox T\n      Height = 300\n      Left = 2115\n      Top = 1500\n"
    "      Width = 900\n   End\n"
    "   Begin VB.Frame F\n      Height = 600\n      Left = 3300\n      Top = 2250\n"
    "      Width = 1100\n"
    "      Begin VB.TextBox I\n         Height = 225\n         Left = 315\n"
    "         Top = 240\n         Width = 600\n      End\n"
    "   End\n";

class GuidesTest : public ::testing::Test {
 protected:
    GuidesTest() { Use({.step = 120, .guides = true}); }
    void Use(const lumenform::Grid& grid) { form.canvas->SetGrid(grid); }
    float BaselineIn(TextView name) const {
        return form.PlaceOf(name).top + *lumenform::BaselineOf(form.Control(name));
    }

    DesignedForm form{neighbours};
};

TEST_F(GuidesTest, AnEdgeStopsAtThatOfANeighbour) {
    form.Drag(form.MiddleOf(u"T"), {-131, 0});
    EXPECT_EQ(form.PlaceOf(u"T").left, 135) << "its left edge, at 150 without a guide";
    EXPECT_EQ(form.PlaceOf(u"T").top, 1500) << "it was not dragged down";
    form.design.History().undo();
    form.Drag(form.MiddleOf(u"T"), {-112, 0});
    EXPECT_EQ(form.PlaceOf(u"T").left, 135 + 1215 - 900) << "its right edge";
}

TEST_F(GuidesTest, TheGridHoldsWhereItIsNearer) {
    form.Drag(form.MiddleOf(u"T"), {-133, 0});
    EXPECT_EQ(form.PlaceOf(u"T").left, 120);
    form.design.History().undo();
    form.Drag(form.MiddleOf(u"T"), {-70, 0});
    EXPECT_EQ(form.PlaceOf(u"T").left, 1080) << "no edge is near";
}

TEST_F(GuidesTest, WithoutAGridTheyAreFeltWithinFourPixels) {
    Use({.snaps = false, .guides = true});
    form.Drag(form.MiddleOf(u"T"), {-128, 0});
    EXPECT_EQ(form.PlaceOf(u"T").left, 135);
    form.design.History().undo();
    form.Drag(form.MiddleOf(u"T"), {-127, 0});
    EXPECT_EQ(form.PlaceOf(u"T").left, 2115 - 127 * 15);
}

TEST_F(GuidesTest, ASizedEdgeStopsToo) {
    form.Select({u"A"});
    form.Drag(form.HandleOf(u"A", 1, 0), {52, 0});
    EXPECT_EQ(form.PlaceOf(u"A"), (Placement{135, 255, 2115 - 135, 495}));
}

TEST_F(GuidesTest, BaselinesMeet) {
    ASSERT_TRUE(lumenform::BaselineOf(form.Control(u"A")));
    ASSERT_TRUE(lumenform::BaselineOf(form.Control(u"T")));
    Use({.snaps = false, .guides = true});
    const float apart = BaselineIn(u"T") - BaselineIn(u"A");
    form.Drag(form.MiddleOf(u"T"), {30, -static_cast<int>(apart / 15) + 1});
    EXPECT_NEAR(BaselineIn(u"T"), BaselineIn(u"A"), 1);
}

TEST_F(GuidesTest, AltIgnoresThem) {
    form.Drag(form.MiddleOf(u"T"), {-131, 0}, Qt::AltModifier);
    EXPECT_EQ(form.PlaceOf(u"T").left, 150);
}

TEST_F(GuidesTest, OnlyControlsOfTheSameContainerCount) {
    Use({.snaps = false, .guides = true});
    form.Drag(form.MiddleOf(u"I"), {-10, 0});
    EXPECT_EQ(form.PlaceOf(u"I").left, 165) << "A begins at 135, but elsewhere";
}

TEST_F(GuidesTest, SelectedOnesDoNotStopAtEachOther) {
    Use({.snaps = false, .guides = true});
    form.Select({u"T", u"A"});
    form.Drag(form.MiddleOf(u"A"), {5, 4});
    EXPECT_EQ(form.PlaceOf(u"A").left, 135 + 75);
    EXPECT_EQ(form.PlaceOf(u"T").left, 2115 + 75);
}

TEST_F(GuidesTest, ALineIsShownWhileTheEdgesMeet) {
    const QPoint from = form.MiddleOf(u"T");
    const auto shown = [&] { return form.canvas->GetGlass().grab().toImage(); };
    form.Press(from);
    form.MoveTo(from + QPoint(-70, 0));
    form.MoveTo(from + QPoint(-131, 0));
    const QImage meeting = shown();
    form.MoveTo(from + QPoint(-131, 0), Qt::AltModifier);
    form.Release(from + QPoint(-131, 0), Qt::AltModifier);
    const QRect client = form.canvas->GetGlass().rect();
    ASSERT_EQ(meeting.size() / meeting.devicePixelRatio(), client.size());
    const QPoint edge = form.OnGlass({135 / 15, 60});  // between both controls
    const QColor line = form.canvas->palette().color(QPalette::Active, QPalette::Highlight);
    EXPECT_EQ(meeting.pixelColor((QPointF(edge) * meeting.devicePixelRatio()).toPoint()), line);
    EXPECT_NE(shown().pixelColor((QPointF(edge) * meeting.devicePixelRatio()).toPoint()), line);
}

}  // namespace
}  // namespace lumenkit::testing
