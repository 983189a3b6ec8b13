// The outline of a form: its rows, its selection, and what the user does with the objects in it.
#include "apps/lumenform/design/outline/outline.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>
#include <memory>
#include <regex>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/containers.h"
#include "apps/lumenform/design/model/rehome.h"
#include "tests/apps/lumenform/designed_form.h"
#include "tests/apps/lumenform/outlined_form.h"

namespace lumenkit::testing {
namespace {

using host::Placement;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::string mixedForm =
    "   Begin VB.CommandButton A\n      Height = 495\n      Left = 120\n      TabIndex = 1\n"
    "      Top = 240\n      Width = 1215\n   End\n"
    "   Begin VB.Frame F\n      Height = 1800\n      Left = 1800\n      TabIndex = 0\n"
    "      Top = 120\n      Width = 2400\n"
    "      Begin lumenkit.VMemo M\n         Height = 600\n         Left = 240\n"
    "         TabIndex = 3\n         Top = 360\n         Width = 1200\n      End\n"
    "   End\n"
    "   Begin VB.TextBox T\n      Height = 300\n      Index = 2\n      Left = 150\n"
    "      TabIndex = 2\n      Top = 1200\n      Width = 900\n   End\n"
    "   Begin VB.Menu mnuFile\n      Caption = \"&File\"\n"
    "      Begin VB.Menu mnuOpen\n         Caption = \"&Open\"\n      End\n"
    "      Begin VB.Menu mnuQuit\n         Caption = \"&Quit\"\n      End\n"
    "   End\n";
const std::string pagedForm =
    "   Begin TabDlg.SSTab Box\n      Height = 2400\n      Left = 150\n      Top = 150\n"
    "      Width = 3600\n      Tabs = 2\n      Tab = 0\n      TabHeight = 529\n"
    "      TabCaption(0) = \"&First\"\n      Tab(0).ControlEnabled= -1 'True\n"
    "      Tab(0).Control(0)= \"A\"\n      Tab(0).ControlCount= 1\n"
    "      TabCaption(1) = \"Second\"\n      Tab(1).ControlEnabled= 0 'False\n"
    "      Tab(1).ControlCount= 0\n"
    "      Begin VB.TextBox A\n         Height = 300\n         Left = 600\n"
    "         Top = 900\n         Width = 1200\n      End\n"
    "   End\n"
    "   Begin VB.TextBox X\n      Height = 300\n      Left = 150\n      Top = 2600\n"
    "      Width = 1200\n   End\n";

const lumenform::LiveControl* ContainerIn(const OutlinedForm& form, TextView name) {
    return lumenform::ContainerOf(form.design, *form.design.View().Find(name));
}

// Returns the first names of the lines that begin blocks, in the order of the file.
std::vector<std::string> Blocks(const OutlinedForm& form) {
    const std::string text = form.Saved();
    const std::regex begin("Begin [\\w.]+ (\\w+)");
    std::vector<std::string> names;
    for (std::sregex_iterator found(text.begin(), text.end(), begin), end; found != end; ++found) {
        names.push_back((*found)[1]);
    }
    return names;
}

TEST(Outline, ShowsTheObjectsInTheOrderOfTheFileWithNameAndClass) {
    const OutlinedForm form(mixedForm);
    EXPECT_THAT(form.Rows(), ElementsAre("Form1", "..A", "..F", "....M", "..T(2)", "..mnuFile",
                                         "....mnuOpen", "....mnuQuit"));
    const QModelIndex row = form.Row("M");
    EXPECT_EQ(row.siblingAtColumn(1).data().toString(), QStringLiteral("VMemo"));
    EXPECT_FALSE(row.data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(row.data(Qt::AccessibleTextRole).toString(), QStringLiteral("M, VMemo"));
    EXPECT_THAT(form.SelectedRows(), ElementsAre("Form1"));
}

TEST(Outline, ShowsControlsUnderTheirPages) {
    const OutlinedForm form(pagedForm);
    EXPECT_THAT(form.Rows(),
                ElementsAre("Form1", "..Box", "....First", "......A", "....Second", "..X"));
}

TEST(Outline, SelectsOnTheCanvasWhatIsSelectedInIt) {
    OutlinedForm form(mixedForm);
    form.Click("M");
    EXPECT_THAT(form.Selected(), ElementsAre("M"));
    form.Click("A", Qt::ControlModifier);
    EXPECT_THAT(form.Selected(), ElementsAre("M", "A")) << "the last one leads";
    form.Click("M", Qt::ControlModifier);
    EXPECT_THAT(form.Selected(), ElementsAre("A"));
    form.Click("A");
    form.Click("T(2)", Qt::ShiftModifier);
    EXPECT_THAT(form.SelectedRows(), ElementsAre("A", "F", "M", "T(2)"));
    EXPECT_EQ(form.Selected().size(), 4U);
    form.Click("Form1");
    EXPECT_THAT(form.Selected(), IsEmpty());
    form.Key(Qt::Key_Down);
    EXPECT_THAT(form.Selected(), ElementsAre("A"));
}

TEST(Outline, FollowsTheSelectionOfTheCanvas) {
    OutlinedForm form(mixedForm);
    form.design.SelectNamed({u"T(2)", u"M"});
    EXPECT_THAT(form.SelectedRows(), ElementsAre("M", "T(2)"));
    EXPECT_THAT(form.Selected(), ElementsAre("T(2)", "M"));
    EXPECT_EQ(form.outline->Tree().currentIndex().data().toString(), QStringLiteral("M"));
    form.design.Select({});
    EXPECT_THAT(form.SelectedRows(), ElementsAre("Form1"));
}

TEST(Outline, APageShowsItselfAndSelectsItsBox) {
    OutlinedForm form(pagedForm);
    form.Click("Second");
    EXPECT_THAT(form.Selected(), ElementsAre("Box"));
    EXPECT_THAT(form.SelectedRows(), ElementsAre("Second"));
    EXPECT_FALSE(form.design.View().Find(u"A")->Widget().isVisibleTo(&form.design.View()));
    form.Click("A");
    EXPECT_TRUE(form.design.View().Find(u"A")->Widget().isVisibleTo(&form.design.View()));
}

TEST(Outline, TheSearchShowsWhatHasTheTextInItsNameOrClass) {
    OutlinedForm form(mixedForm);
    QLineEdit& search = form.outline->Search();
    search.setFocus();
    QTest::keyClicks(&search, QStringLiteral("memo"));
    EXPECT_THAT(form.Rows(), ElementsAre("Form1", "..F", "....M"));
    search.clear();
    QTest::keyClicks(&search, QStringLiteral("QUIT"));
    EXPECT_THAT(form.Rows(), ElementsAre("Form1", "..mnuFile", "....mnuQuit"));
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_THAT(form.SelectedRows(), ElementsAre("mnuQuit"));
    EXPECT_TRUE(form.outline->Tree().hasFocus());
    form.Key(Qt::Key_Escape);
    EXPECT_EQ(form.Rows().size(), 8U) << "also in the rows";
    search.setFocus();
    QTest::keyClicks(&search, QStringLiteral("quit"));
    QTest::keyClick(&search, Qt::Key_Escape);
    EXPECT_EQ(form.Rows().size(), 8U);
}

TEST(Outline, CollapsedRowsStayCollapsedWhenTheFormChanges) {
    OutlinedForm form(mixedForm);
    form.outline->Tree().collapse(form.Row("mnuFile"));
    form.Click("A");
    form.Key(Qt::Key_Delete);
    EXPECT_THAT(form.Rows(), ElementsAre("Form1", "..F", "....M", "..T(2)", "..mnuFile"));
}

TEST(Outline, AltWithAnArrowMovesAmongTheNeighbours) {
    OutlinedForm form(mixedForm);
    const std::string before = form.Saved();
    form.Click("T(2)");
    form.Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(Blocks(form),
                ElementsAre("Form1", "A", "T", "F", "M", "mnuFile", "mnuOpen", "mnuQuit"));
    EXPECT_THAT(form.SelectedRows(), ElementsAre("T(2)"));
    EXPECT_EQ(form.design.History().undoText(), QStringLiteral("Move T(2) up"));
    form.Click("A", Qt::ControlModifier);
    form.Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(form.design.History().count(), 1) << "the first ones stay first";
    form.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_THAT(Blocks(form),
                ElementsAre("Form1", "F", "M", "A", "T", "mnuFile", "mnuOpen", "mnuQuit"));
    form.Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(form.design.History().count(), 2) << "controls do not go behind menus";
    form.design.History().undo();
    form.design.History().undo();
    EXPECT_EQ(form.Saved(), before);
}

TEST(Outline, MenusAreMovedRenamedAndDeletedToo) {
    OutlinedForm form(mixedForm);
    form.Click("mnuQuit");
    EXPECT_THAT(form.Selected(), ElementsAre("mnuQuit"));
    form.Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(form.Rows(), ElementsAre("Form1", "..A", "..F", "....M", "..T(2)", "..mnuFile",
                                         "....mnuQuit", "....mnuOpen"));
    EXPECT_THAT(form.SelectedRows(), ElementsAre("mnuQuit"));
    form.Rename("mnuExit");
    EXPECT_THAT(form.SelectedRows(), ElementsAre("mnuExit"));
    EXPECT_THAT(form.Saved(), HasSubstr("      Begin VB.Menu mnuExit\n"));
    form.Key(Qt::Key_Delete);
    EXPECT_THAT(Blocks(form), ElementsAre("Form1", "A", "F", "M", "T", "mnuFile", "mnuOpen"));
}

TEST(Outline, DeleteRemovesControlsAndMenusInOneStep) {
    OutlinedForm form(mixedForm);
    const std::string before = form.Saved();
    form.Click("F");
    form.Click("M", Qt::ControlModifier);
    form.Click("mnuOpen", Qt::ControlModifier);
    form.Key(Qt::Key_Delete);
    EXPECT_THAT(Blocks(form), ElementsAre("Form1", "A", "T", "mnuFile", "mnuQuit"));
    EXPECT_EQ(form.design.History().count(), 1);
    form.design.History().undo();
    EXPECT_EQ(form.Saved(), before);
    form.Click("Form1");
    form.Key(Qt::Key_Delete);
    EXPECT_EQ(form.Saved(), before) << "the form itself stays";
}

TEST(Outline, F2RenamesAndRefusesANameThatIsTaken) {
    OutlinedForm form(mixedForm);
    form.Click("A");
    form.Rename("cmdOrder");
    EXPECT_THAT(form.Saved(), HasSubstr("   Begin VB.CommandButton cmdOrder\n"));
    EXPECT_THAT(form.Selected(), ElementsAre("cmdOrder"));
    EXPECT_EQ(form.design.History().undoText(), QStringLiteral("Rename A"));
    EXPECT_TRUE(form.outline->Tree().hasFocus());
    form.Rename("F");
    EXPECT_THAT(form.refused, ElementsAre(HasSubstr("\"F\" is already a control")));
    EXPECT_THAT(form.SelectedRows(), ElementsAre("cmdOrder"));
    form.Click("Form1");
    form.Rename("frmOrder");
    EXPECT_EQ(form.Rows().front(), "frmOrder");
    EXPECT_THAT(form.Saved(), HasSubstr("Begin VB.Form frmOrder\n"));
}

TEST(Outline, EnterAndADoubleClickGoToTheProperties) {
    OutlinedForm form(mixedForm);
    int wanted = 0;
    QObject::connect(form.outline, &lumenform::Outline::PropertiesWanted, [&] { ++wanted; });
    form.Click("A");
    form.Key(Qt::Key_Return);
    EXPECT_EQ(wanted, 1);
    const QRect rect = form.outline->Tree().visualRect(form.Row("M"));
    QTest::mouseDClick(form.outline->Tree().viewport(), Qt::LeftButton, {}, rect.center());
    EXPECT_EQ(wanted, 2);
}

TEST(Outline, ADragBetweenRowsChangesTheOrder) {
    OutlinedForm form(mixedForm);
    form.Click("T(2)");
    EXPECT_TRUE(form.DragTo("A", -1));
    EXPECT_THAT(Blocks(form),
                ElementsAre("Form1", "T", "A", "F", "M", "mnuFile", "mnuOpen", "mnuQuit"));
    EXPECT_EQ(form.design.History().undoText(), QStringLiteral("Change the order of T(2)"));
    EXPECT_EQ(form.design.View().Find(u"T(2)")->Place(), (Placement{150, 1200, 900, 300}));
    EXPECT_EQ(form.design.View().Find(u"T(2)")->TabIndex(), 2);
}

TEST(Outline, ADragOntoAContainerPutsTheControlIntoItWhereItIsSeen) {
    OutlinedForm form(mixedForm);
    form.Click("A");
    EXPECT_TRUE(form.DragTo("F", 0));
    EXPECT_EQ(ContainerIn(form, u"A"), form.design.View().Find(u"F"));
    // Its place on the form is left of the frame.
    EXPECT_EQ(form.design.View().Find(u"A")->Place(), (Placement{0, 120, 1215, 495}));
    EXPECT_THAT(form.Rows(), ElementsAre("Form1", "..F", "....A", "....M", "..T(2)", "..mnuFile",
                                         "....mnuOpen", "....mnuQuit"));
    EXPECT_TRUE(form.DragTo("Form1", 0));
    EXPECT_EQ(ContainerIn(form, u"A"), nullptr);
    EXPECT_EQ(form.design.View().Find(u"A")->Place(), (Placement{1800, 240, 1215, 495}));
}

TEST(Outline, WhatCannotHoldTheRowsTakesNoDrop) {
    OutlinedForm form(mixedForm);
    const std::string before = form.Saved();
    form.Click("F");
    EXPECT_FALSE(form.DragTo("F", 0)) << "into itself";
    EXPECT_FALSE(form.DragTo("M", -1)) << "into itself";
    EXPECT_FALSE(form.DragTo("mnuFile", 0));
    EXPECT_FALSE(form.DragTo("Form1", -1)) << "beside the form";
    form.Click("mnuOpen");
    EXPECT_FALSE(form.DragTo("F", 0));
    EXPECT_FALSE(form.DragTo("A", -1));
    form.Click("mnuOpen");
    form.Click("A", Qt::ControlModifier);
    EXPECT_FALSE(form.DragTo("F", 0)) << "menus and controls together";
    EXPECT_EQ(form.Saved(), before);
}

TEST(Outline, MenusChangePlacesByDragging) {
    OutlinedForm form(mixedForm);
    form.Click("mnuOpen");
    EXPECT_TRUE(form.DragTo("mnuQuit", 1));
    EXPECT_THAT(Blocks(form),
                ElementsAre("Form1", "A", "F", "M", "T", "mnuFile", "mnuQuit", "mnuOpen"));
    EXPECT_THAT(form.SelectedRows(), ElementsAre("mnuOpen"));
}

TEST(Outline, ADragOntoAPagePutsTheControlOnIt) {
    OutlinedForm form(pagedForm);
    form.Click("X");
    EXPECT_TRUE(form.DragTo("Second", 0));
    EXPECT_THAT(form.Rows(),
                ElementsAre("Form1", "..Box", "....First", "......A", "....Second", "......X"));
    EXPECT_EQ(lumenform::PageOf(form.design, *form.design.View().Find(u"X")), 1);
    EXPECT_THAT(form.Saved(), HasSubstr("         Left = -75000\n"));
    form.Click("A");
    EXPECT_TRUE(form.DragTo("X", -1));
    EXPECT_THAT(form.Rows(),
                ElementsAre("Form1", "..Box", "....First", "....Second", "......A", "......X"));
    EXPECT_EQ(form.design.View().Find(u"A")->Place(), (Placement{600, 900, 1200, 300}));
    form.design.History().undo();
    form.design.History().undo();
    EXPECT_EQ(form.Rows().back(), "..X");
}

TEST(Outline, ADragOfAnotherOutlineIsIgnored) {
    OutlinedForm form(mixedForm);
    const OutlinedForm other(mixedForm);
    form.Click("A");
    const std::unique_ptr<QMimeData> data(
        other.outline->Tree().model()->mimeData({other.Row("A")}));
    const QPoint at = form.outline->Tree().visualRect(form.Row("F")).center();
    QDragEnterEvent enter(at, Qt::MoveAction, data.get(), Qt::LeftButton, {});
    QApplication::sendEvent(form.outline->Tree().viewport(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST(Outline, IsUpToDateWhenItIsShownAgain) {
    OutlinedForm form(mixedForm);
    form.outline->hide();
    form.design.SelectNamed({u"A"});
    form.design.Restructure({}, [&] {
        form.design.Document().Root().RemoveControl(form.design.View().Find(u"F")->Block());
        return std::vector<Text>{u"A"};
    });
    form.outline->show();
    EXPECT_EQ(form.Rows().size(), 6U);
    EXPECT_THAT(form.SelectedRows(), ElementsAre("A"));
}

const std::string scatteredForm =
    "   Begin VB.CommandButton Far\n      Height = 495\n      Left = 9000\n      Top = 240\n"
    "      Width = 1215\n   End\n"
    "   Begin VB.CommandButton Cut\n      Height = 495\n      Left = 4000\n      Top = 240\n"
    "      Width = 1215\n   End\n"
    "   Begin VB.Frame F\n      Height = 1800\n      Left = 3000\n      Top = 1000\n"
    "      Width = 2400\n"
    "      Begin VB.TextBox Above\n         Height = 300\n         Left = 120\n"
    "         Top = -900\n         Width = 900\n      End\n"
    "      Begin VB.TextBox Beyond\n         Height = 300\n         Left = 1800\n"
    "         Top = 600\n         Width = 300\n      End\n"
    "   End\n";

TEST(OutOfView, IsMarkedInTheOutline) {
    OutlinedForm form(scatteredForm);
    const auto isMarked = [&](const std::string& name) {
        const QModelIndex row = form.Row(name);
        return row.data(Qt::ToolTipRole).toString().contains(QStringLiteral("out of view")) &&
               !row.siblingAtColumn(1).data(Qt::DecorationRole).value<QIcon>().isNull();
    };
    EXPECT_TRUE(isMarked("Far"));
    EXPECT_TRUE(isMarked("Above"));
    EXPECT_TRUE(isMarked("Beyond")) << "in the part of the frame that the form cuts off";
    EXPECT_FALSE(isMarked("Cut")) << "a part of it is seen";
    EXPECT_FALSE(isMarked("F"));
    form.design.Edit(QString(), [&] {
        form.design.View().Find(u"Far")->Move({0, 240, 1215, 495});
        form.design.View().Find(u"Cut")->Move({-2000, 240, 1215, 495});
    });
    EXPECT_FALSE(isMarked("Far"));
    EXPECT_TRUE(isMarked("Cut"));
}

TEST(OutOfView, ComesBackAllTogetherWithoutASelection) {
    OutlinedForm form(scatteredForm);
    const std::string before = form.Saved();
    lumenform::BringIntoView(form.design);
    const auto place = [&](TextView name) { return form.design.View().Find(name)->Place(); };
    EXPECT_EQ(place(u"Far"), (Placement{4500 - 1215, 240, 1215, 495}));
    EXPECT_EQ(place(u"Above"), (Placement{120, 0, 900, 300}));
    EXPECT_EQ(place(u"Beyond"), (Placement{1500 - 300, 600, 300, 300})) << "the form ends at 4500";
    EXPECT_EQ(place(u"Cut"), (Placement{4000, 240, 1215, 495}));
    EXPECT_THAT(form.Selected(), ElementsAre("Far", "Above", "Beyond"));
    EXPECT_THAT(lumenform::OutOfView(form.design), IsEmpty());
    EXPECT_EQ(form.design.History().count(), 1);
    form.design.History().undo();
    EXPECT_EQ(form.Saved(), before);
}

TEST(OutOfView, ComesBackAloneIfItIsSelected) {
    OutlinedForm form(scatteredForm);
    form.design.SelectNamed({u"Cut"});
    lumenform::BringIntoView(form.design);
    EXPECT_EQ(form.design.View().Find(u"Cut")->Place(), (Placement{4500 - 1215, 240, 1215, 495}));
    EXPECT_EQ(form.design.View().Find(u"Far")->Place().left, 9000);
    lumenform::BringIntoView(form.design);
    EXPECT_EQ(form.design.History().count(), 1) << "it is inside already";
}

}  // namespace
}  // namespace lumenkit::testing
