// Dragging controls into other containers on the canvas.
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/rehome.h"
#include "apps/lumenform/design/model/stacking.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "tests/apps/lumenform/designed_form.h"
#include "tests/apps/lumenform/edited_design.h"
#include "tests/apps/lumenform/grabbed.h"

namespace lumenkit::testing {
namespace {

using host::Placement;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

const std::string formBegin =
    "VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 3000\n   ClientWidth = 4500\n";
const std::string buttonOnForm =
    "   Begin VB.CommandButton A\n      Height = 495\n      Left = 130\n      TabIndex = 2\n"
    "      ' kept\n      Top = 240\n      Width = 1215\n   End\n";
const std::string frameBegin =
    "   Begin VB.Frame F\n      Height = 1800\n      Left = 1800\n      TabIndex = 0\n"
    "      Top = 120\n      Width = 2400\n";
const std::string memoInFrame =
    "      Begin lumenkit.VMemo M\n         Height = 600\n         Left = 240\n"
    "         Top = 360\n         Width = 1200\n      End\n";
const std::string boxOnForm =
    "   Begin VB.TextBox T\n      Height = 300\n      Left = 150\n      TabIndex = 1\n"
    "      Top = 1200\n      Width = 900\n   End\n";
const std::string theForm = buttonOnForm + frameBegin + memoInFrame + "   End\n" + boxOnForm;

// From the middle of A to a free place in F.
constexpr QPoint intoFrame(191, 66);

const lumenform::LiveControl* ContainerOf(const DesignedForm& form, TextView name) {
    return lumenform::ContainerOf(form.design, form.Control(name));
}

TEST(CanvasDrop, PutsAControlIntoTheFrameUnderTheMouse) {
    DesignedForm form(theForm);
    const std::string before = form.Saved();
    ASSERT_EQ(before, formBegin + theForm + "End\n");
    form.Drag(form.MiddleOf(u"A"), intoFrame);
    // On the grid of the frame, whose corner is at 1800, 120.
    EXPECT_EQ(form.PlaceOf(u"A"), (Placement{1200, 1080, 1215, 495}));
    EXPECT_EQ(ContainerOf(form, u"A"), &form.Control(u"F"));
    EXPECT_THAT(form.Selected(), ElementsAre("A"));
    EXPECT_EQ(form.Saved(), formBegin + frameBegin +
                                "      Begin VB.CommandButton A\n         Height = 495\n"
                                "         Left = 1200\n         TabIndex = 2\n         ' kept\n"
                                "         Top = 1080\n         Width = 1215\n      End\n" +
                                memoInFrame + "   End\n" + boxOnForm + "End\n");
    ASSERT_EQ(form.design.History().count(), 1);
    EXPECT_EQ(form.design.History().text(0), "Move A into F");
    form.design.History().undo();
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(ContainerOf(form, u"A"), nullptr);
    form.design.History().redo();
    EXPECT_EQ(ContainerOf(form, u"A"), &form.Control(u"F"));
}

TEST(CanvasDrop, TakesAControlOutOfItsFrame) {
    DesignedForm form(theForm);
    form.Drag(form.MiddleOf(u"M"), {-115, 98});
    EXPECT_EQ(ContainerOf(form, u"M"), nullptr);
    EXPECT_EQ(form.PlaceOf(u"M"), (Placement{360, 1920, 1200, 600}));
    EXPECT_EQ(form.design.History().text(0), "Move M to the form");
    EXPECT_THAT(form.Saved(), HasSubstr(formBegin +
                                        "   Begin lumenkit.VMemo M\n      Height = 600\n"
                                        "      Left = 360\n      Top = 1920\n"
                                        "      Width = 1200\n   End\n" +
                                        buttonOnForm));
    EXPECT_EQ(&form.design.View().Controls().front()->Block(), &form.Control(u"M").Block())
        << "in front of the others";
}

TEST(CanvasDrop, ThereAndBackAgainIsTheSameForm) {
    DesignedForm form(theForm);
    form.Drag(form.MiddleOf(u"A"), intoFrame, Qt::AltModifier);
    ASSERT_EQ(ContainerOf(form, u"A"), &form.Control(u"F"));
    form.Drag(form.MiddleOf(u"A"), -intoFrame, Qt::AltModifier);
    EXPECT_EQ(form.Saved(), formBegin + theForm + "End\n");
}

TEST(CanvasDrop, ControlHeldWhileDroppingKeepsTheContainer) {
    DesignedForm form(theForm);
    const QPoint from = form.MiddleOf(u"A");
    form.Press(from);
    form.MoveTo(from + intoFrame / 2);
    form.MoveTo(from + intoFrame, Qt::ControlModifier);
    form.Release(from + intoFrame, Qt::ControlModifier);
    EXPECT_EQ(ContainerOf(form, u"A"), nullptr);
    EXPECT_EQ(form.PlaceOf(u"A"), (Placement{3000, 1200, 1215, 495})) << "on the grid of the form";
    form.design.History().undo();
    form.Press(from);
    form.MoveTo(from + intoFrame);
    QTest::keyPress(&form.canvas->GetGlass(), Qt::Key_Control, Qt::ControlModifier);
    form.Release(from + intoFrame, Qt::ControlModifier);
    EXPECT_EQ(ContainerOf(form, u"A"), nullptr) << "pressed without another movement";
}

TEST(CanvasDrop, ArrowKeysAndSizingNeverChangeTheContainer) {
    DesignedForm form(theForm);
    form.Select({u"A"});
    for (int step = 0; step < 24; ++step) {
        form.Key(Qt::Key_Right);
    }
    EXPECT_EQ(form.PlaceOf(u"A").left, 130 + 24 * 120);
    EXPECT_EQ(ContainerOf(form, u"A"), nullptr);
    form.Drag(form.HandleOf(u"A", 1, 1), {-20, 40});
    EXPECT_EQ(ContainerOf(form, u"A"), nullptr);
}

TEST(CanvasDrop, AControlThatLiesOverAFrameStaysOutOfIt) {
    DesignedForm form(
        "   Begin VB.CommandButton A\n      Height = 495\n      Left = 2400\n      Top = 600\n"
        "      Width = 1215\n   End\n" +
        frameBegin + "   End\n");
    form.Drag(form.MiddleOf(u"A"), {16, 0});
    EXPECT_EQ(ContainerOf(form, u"A"), nullptr);
    EXPECT_EQ(form.PlaceOf(u"A").left, 2640);
}

TEST(CanvasDrop, OutsideTheFormTheContainerStays) {
    DesignedForm form(theForm);
    const QPoint from = form.MiddleOf(u"M");
    form.Drag(from, QPoint(320, 60) - from);
    EXPECT_EQ(ContainerOf(form, u"M"), &form.Control(u"F"));
}

TEST(CanvasDrop, ControlsOfTheLibraryHoldNoOthers) {
    DesignedForm form(
        "   Begin VB.CommandButton A\n      Height = 495\n      Left = 120\n      Top = 240\n"
        "      Width = 1215\n   End\n"
        "   Begin lumenkit.VOptList O\n      Height = 1800\n      Left = 1800\n      Top = 120\n"
        "      Width = 2400\n   End\n");
    form.Drag(form.MiddleOf(u"A"), intoFrame);
    EXPECT_EQ(ContainerOf(form, u"A"), nullptr);
    EXPECT_EQ(form.design.History().text(0), "Move A");
}

TEST(CanvasDrop, AContainerDoesNotGoIntoItself) {
    DesignedForm form(theForm);
    form.Drag(form.MiddleOf(u"F") + QPoint(40, 40), {-8, 8});
    EXPECT_EQ(ContainerOf(form, u"F"), nullptr);
    EXPECT_EQ(ContainerOf(form, u"M"), &form.Control(u"F"));
    EXPECT_TRUE(form.refused.empty());
}

TEST(CanvasDrop, OnlyControlsOverTheFrameGoIntoIt) {
    DesignedForm form(theForm);
    const std::string before = form.Saved();
    form.Select({u"T", u"A"});
    form.Drag(form.MiddleOf(u"A"), intoFrame);
    EXPECT_EQ(ContainerOf(form, u"A"), &form.Control(u"F"));
    EXPECT_EQ(ContainerOf(form, u"T"), nullptr);
    EXPECT_EQ(form.PlaceOf(u"A"), (Placement{1200, 1080, 1215, 495}));
    EXPECT_EQ(form.PlaceOf(u"T"), (Placement{3020, 2160, 900, 300})) << "by the same distance";
    EXPECT_THAT(form.Selected(), ElementsAre("T", "A"));
    EXPECT_EQ(form.design.History().count(), 1);
    form.design.History().undo();
    EXPECT_EQ(form.Saved(), before);
}

TEST(CanvasDrop, EscapeLeavesEverythingAsItWas) {
    DesignedForm form(theForm);
    const std::string before = form.Saved();
    const QPoint from = form.MiddleOf(u"A");
    form.Press(from);
    form.MoveTo(from + intoFrame);
    form.Key(Qt::Key_Escape);
    form.Release(from + intoFrame);
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(form.PlaceOf(u"A"), (Placement{130, 240, 1215, 495}));
    EXPECT_EQ(form.design.History().count(), 0);
}

TEST(CanvasDrop, MarksTheContainerDuringTheDrag) {
    DesignedForm form(theForm);
    const QPoint corner = QPoint(120, 8) + QPoint(2, 118);  // at the left edge of F
    const auto colorThere = [&] {
        const QPoint at = form.design.View().Client().mapTo(&form.window, corner);
        return Grabbed(form.window).At(at);
    };
    const QPoint from = form.MiddleOf(u"A");
    form.Press(from);
    form.MoveTo(from + QPoint(30, 10));
    const QColor plain = colorThere();
    form.MoveTo(from + intoFrame);
    EXPECT_NE(colorThere(), plain);
    form.MoveTo(from + intoFrame, Qt::ControlModifier);
    EXPECT_EQ(colorThere(), plain);
    form.Release(from + intoFrame, Qt::ControlModifier);
}

const std::string boxForm =
    "   Begin TabDlg.SSTab Box\n      Height = 2400\n      Left = 150\n      Top = 150\n"
    "      Width = 3600\n      Tabs = 2\n      Tab = 1\n      TabHeight = 529\n"
    "      Tab(0).ControlEnabled= 0 'False\n      Tab(0).Control(0)= \"A\"\n"
    "      Tab(0).ControlCount= 1\n      Tab(1).ControlEnabled= -1 'True\n"
    "      Tab(1).ControlCount= 0\n"
    "      Begin VB.TextBox A\n         Height = 300\n         Left = -74400\n"
    "         Top = 900\n         Width = 1200\n      End\n"
    "   End\n"
    "   Begin VB.TextBox X\n      Height = 300\n      Index = 4\n      Left = 150\n"
    "      Top = 2600\n      Width = 1200\n   End\n";

TEST(CanvasDrop, GoesToThePageThatIsShownAndOutOfItAgain) {
    DesignedForm form(boxForm);
    form.Drag(form.MiddleOf(u"X(4)"), {101, -43});
    const auto pages = [&] { return lumenform::SavedPages(form.Control(u"Box").Block()); };
    EXPECT_EQ(ContainerOf(form, u"X(4)"), &form.Control(u"Box"));
    EXPECT_EQ(form.PlaceOf(u"X(4)"), (Placement{1560, 1800, 1200, 300}));
    EXPECT_THAT(pages().NamesOn(1), ElementsAre(u"X(4)"));
    EXPECT_THAT(form.Saved(), HasSubstr("         Left = 1560\n"));
    form.design.History().undo();
    form.Select({u"A"});  // shows its page, which is not the current one of the file
    form.Drag(form.MiddleOf(u"X(4)"), {101, -43});
    EXPECT_EQ(form.PlaceOf(u"X(4)"), (Placement{1560, 1800, 1200, 300}));
    EXPECT_THAT(pages().NamesOn(0), ElementsAre(u"A", u"X(4)"));
    EXPECT_THAT(form.Saved(), AllOf(HasSubstr("         Left = -73440\n"),
                                    HasSubstr("Tab(0).ControlCount= 2\n")));
    form.Drag(form.MiddleOf(u"X(4)"), {-101, 43});
    EXPECT_EQ(ContainerOf(form, u"X(4)"), nullptr);
    EXPECT_THAT(pages().NamesOn(0), ElementsAre(u"A"));
    EXPECT_THAT(form.Saved(),
                AllOf(HasSubstr("      Left = 240\n"), HasSubstr("Tab(0).ControlCount= 1\n")));
}

TEST(Rehome, BringsAControlInsideItsNewContainerAndConvertsTheEndsOfLines) {
    EditedDesign form(
        FormWith("   Begin VB.PictureBox P\n      BorderStyle = 0\n      Height = 1800\n"
                 "      Left = 1800\n      ScaleMode = 3\n      Top = 120\n      Width = 2400\n"
                 "   End\n   Begin VB.Line L\n      X1 = 900\n      X2 = 300\n      Y1 = 1500\n"
                 "      Y2 = 1800\n   End\n"));
    lumenform::Rehome(form.design, "Move", {&form.Control(u"L")},
                      {.container = &form.Control(u"P")}, lumenform::Landing::Inside);
    // 1500 twips left of the picture box it would not be seen. A pixel is 15 twips.
    EXPECT_EQ(form.PlaceOf(u"L"), "600 x 300 at 0, 1380");
    EXPECT_THAT(form.Text(), HasSubstr("      Begin VB.Line L\n         X1 = 40\n         X2 = 0\n"
                                       "         Y1 = 92\n         Y2 = 112\n      End\n"));
}

TEST(Rehome, AnotherPageOfABoxHasTheControlAtItsPlace) {
    EditedDesign form(FormWith(boxForm));
    const auto moveTo = [&](int page) {
        lumenform::Rehome(form.design, "Move", {&form.Control(u"A")},
                          {.container = &form.Control(u"Box"), .page = page},
                          lumenform::Landing::Inside);
    };
    const std::string before = form.Text();
    moveTo(1);
    EXPECT_EQ(form.PlaceOf(u"A"), "1200 x 300 at 600, 900");
    EXPECT_EQ(lumenform::PageOf(form.design, form.Control(u"A")), 1);
    EXPECT_THAT(form.Text(), AllOf(HasSubstr("Left = 600\n"), HasSubstr("Tab(0).ControlCount= 0"),
                                   HasSubstr("Tab(1).Control(0)=   \"A\"")));
    moveTo(0);
    EXPECT_EQ(form.PlaceOf(u"A"), "1200 x 300 at 600, 900");
    EXPECT_THAT(form.Text(), HasSubstr("Left = -74400\n"));
    form.design.History().undo();
    form.design.History().undo();
    EXPECT_EQ(form.Text(), before);
}

TEST(Rehome, NothingGoesIntoItselfOrIntoWhatHoldsNothing) {
    EditedDesign form(FormWith(theForm));
    const auto canHold = [&](TextView container, TextView control) {
        return lumenform::CanHold(form.design, &form.Control(container), form.Control(control));
    };
    EXPECT_TRUE(canHold(u"F", u"A"));
    EXPECT_TRUE(canHold(u"F", u"M"));
    EXPECT_FALSE(canHold(u"F", u"F"));
    EXPECT_FALSE(canHold(u"M", u"A"));
    EXPECT_TRUE(lumenform::CanHold(form.design, nullptr, form.Control(u"M")));
}

}  // namespace
}  // namespace lumenkit::testing
