// Tabbed boxes: the pages of the file, and how users and designers see them.
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/design/model/clipboard.h"
#include "apps/lumenform/design/model/new_control.h"
#include "apps/lumenform/design/model/renaming.h"
#include "apps/lumenform/design/model/stacking.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "forms/file.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/designed_form.h"
#include "tests/apps/lumenform/edited_design.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {
namespace {

using host::Placement;
using lumenform::Mode;
using lumenform::TabPages;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// Page 1 of three is the current one.
const std::string tabbedForm =
    "   Begin TabDlg.SSTab Box\n      Height = 2400\n      Left = 150\n      TabIndex = 0\n"
    "      Top = 150\n      Width = 3600\n      Tabs = 3\n      Tab = 1\n      TabHeight = 529\n"
    "      TabCaption(0) = \"&First\"\n"
    "      Tab(0).ControlEnabled= 0 'False\n      Tab(0).Control(0)= \"A\"\n"
    "      Tab(0).Control(1)= \"L\"\n      Tab(0).ControlCount= 2\n"
    "      TabCaption(1) = \"&Second\"\n"
    "      Tab(1).ControlEnabled= -1 'True\n      Tab(1).Control(0)= \"B\"\n"
    "      Tab(1).ControlCount= 1\n"
    "      TabCaption(2) = \"T&hird\"\n      TabEnabled(2) = 0 'False\n"
    "      Tab(2).ControlEnabled= 0 'False\n      Tab(2).ControlCount= 0\n"
    "      Begin VB.TextBox A\n         Height = 300\n         Left = -74400\n"
    "         TabIndex = 1\n         Top = 900\n         Width = 1200\n      End\n"
    "      Begin VB.TextBox B\n         Height = 300\n         Left = 600\n"
    "         TabIndex = 2\n         Top = 900\n         Width = 1200\n      End\n"
    "      Begin VB.Line L\n         X1 = -74400\n         X2 = -73200\n         Y1 = 1500\n"
    "         Y2 = 1500\n      End\n"
    "   End\n"
    "   Begin VB.TextBox Beside\n      Height = 300\n      Left = 150\n      TabIndex = 3\n"
    "      Top = 2600\n      Width = 1200\n   End\n";

TabPages& PagesOf(const lumenform::LiveControl& control) {
    return *control.Pages();
}

// In the middle of a tab, in pixels on the box.
QPoint MiddleOfTab(const TabPages& pages, int page) {
    for (int x = 0; x < pages.width(); x += 4) {
        if (pages.TabAt({x, 10}) == page) {
            return {x + 20, 10};
        }
    }
    ADD_FAILURE() << "no tab " << page;
    return {};
}

TEST(TabbedBox, ShowsThePageThatTheFileSays) {
    const LoadedView view(FormWith(tabbedForm));
    EXPECT_EQ(PagesOf(view.Control(u"Box")).Shown(), 1);
    EXPECT_TRUE(view.Control(u"B").Widget().isVisible());
    EXPECT_FALSE(view.Control(u"A").Widget().isVisible());
    EXPECT_FALSE(view.Control(u"L").Widget().isVisible());
    EXPECT_EQ(view.Control(u"B").Widget().mapTo(&view.view->Client(), QPoint()), QPoint(50, 70));
}

TEST(TabbedBox, ControlsOfOtherPagesHaveTheirPlaceOnThePage) {
    const LoadedView view(FormWith(tabbedForm));
    EXPECT_EQ(view.Control(u"A").Place(), (Placement{600, 900, 1200, 300}));
    EXPECT_EQ(view.Control(u"L").Place(), (Placement{600, 1500, 1200, 0}));
    EXPECT_EQ(view.Control(u"A").Widget().mapTo(&view.view->Client(), QPoint()), QPoint(50, 70));
}

TEST(TabbedBox, AClickOnATabShowsItsPage) {
    LoadedView view(FormWith(tabbedForm));
    TabPages& pages = PagesOf(view.Control(u"Box"));
    QTest::mouseClick(&pages, Qt::LeftButton, {}, MiddleOfTab(pages, 0));
    EXPECT_EQ(pages.Shown(), 0);
    EXPECT_TRUE(view.Control(u"A").Widget().isVisible());
    EXPECT_FALSE(view.Control(u"B").Widget().isVisible());
    EXPECT_THAT(view.raised, ElementsAre("Box.Click"));
    QTest::mouseClick(&pages, Qt::LeftButton, {}, MiddleOfTab(pages, 0));
    EXPECT_THAT(view.raised, ElementsAre("Box.Click")) << "the same page";
    QTest::mouseClick(&pages, Qt::LeftButton, {}, MiddleOfTab(pages, 2));
    EXPECT_EQ(pages.Shown(), 0) << "a disabled tab";
    const std::string before = view.document.Write().form;
    EXPECT_EQ(view.Saved(), before);
}

TEST(TabbedBox, HiddenPagesGetNoClicksAndNoFocus) {
    const LoadedView view(FormWith(tabbedForm));
    EXPECT_THAT(view.view->Client().TabStops(),
                ElementsAre(&view.Control(u"Box").Widget(), &view.Control(u"B").Widget(),
                            &view.Control(u"Beside").Widget()));
    EXPECT_EQ(view.view->Client().childAt(60, 75), &view.Control(u"B").Widget());
    PagesOf(view.Control(u"Box")).Show(0);
    EXPECT_THAT(view.view->Client().TabStops(),
                ElementsAre(&view.Control(u"Box").Widget(), &view.Control(u"A").Widget(),
                            &view.Control(u"Beside").Widget()));
    EXPECT_EQ(view.view->Client().childAt(60, 75), &view.Control(u"A").Widget());
}

TEST(TabbedBox, KeysShowOtherPages) {
    const LoadedView view(FormWith(tabbedForm));
    TabPages& pages = PagesOf(view.Control(u"Box"));
    pages.setFocus();
    QTest::keyClick(&pages, Qt::Key_Right);
    EXPECT_EQ(pages.Shown(), 0) << "past the disabled page, round to the first";
    QTest::keyClick(&pages, Qt::Key_Left);
    EXPECT_EQ(pages.Shown(), 1);
    QWidget& inside = view.Control(u"B").Widget();
    inside.setFocus();
    QTest::keyClick(&inside, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(pages.Shown(), 0);
    EXPECT_TRUE(pages.hasFocus()) << "the control with the focus is hidden";
    QTest::keyClick(&pages, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(pages.Shown(), 1);
    QTest::keyClick(&pages, Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(pages.Shown(), 0);
}

TEST(TabbedBox, TabsFillTheirRowsAndTheShownRowIsNextToThePage) {
    const LoadedView view(
        FormWith("   Begin TabDlg.SSTab Box\n Height = 2400\n Width = 3000\n Tabs = 5\n"
                 " TabsPerRow = 2\n TabHeight = 529\n TabVisible(1) = 0 'False\n End\n"));
    TabPages& pages = PagesOf(view.Control(u"Box"));
    EXPECT_EQ(pages.TabAt({10, 30}), 0) << "next to the page";
    EXPECT_EQ(pages.TabAt({110, 30}), 2);
    EXPECT_EQ(pages.TabAt({10, 10}), 3);
    EXPECT_EQ(pages.TabAt({110, 10}), 4);
    EXPECT_EQ(pages.TabAt({10, 50}), -1);
    pages.Show(4);
    EXPECT_EQ(pages.TabAt({110, 30}), 4);
    EXPECT_EQ(pages.TabAt({110, 10}), 2);
}

TEST(TabbedBox, AControlThatNoPageListsIsOnTheCurrentPage) {
    const LoadedView view(
        FormWith("   Begin TabDlg.SSTab Box\n Height = 2400\n Width = 3000\n Tab = 2\n"
                 "      Begin VB.TextBox T\n Left = 300\n End\n   End\n"));
    EXPECT_TRUE(view.Control(u"T").Widget().isVisible());
    EXPECT_EQ(view.Control(u"T").Place().left, 300);
}

// ---- In the designer

TEST(TabbedBoxDesign, AClickOnATabShowsThePageAndChangesNothing) {
    DesignedForm canvas(tabbedForm);
    const std::string before = canvas.Saved();
    const TabPages& pages = PagesOf(canvas.Control(u"Box"));
    const QPoint corner = pages.mapTo(&canvas.design.View().Client(), QPoint());
    canvas.Click(corner + MiddleOfTab(pages, 2));
    EXPECT_EQ(pages.Shown(), 2) << "also a disabled one";
    canvas.Click(corner + MiddleOfTab(pages, 0));
    EXPECT_EQ(pages.Shown(), 0);
    EXPECT_THAT(canvas.Selected(), ElementsAre("Box"));
    EXPECT_EQ(canvas.Saved(), before);
    EXPECT_EQ(canvas.design.History().count(), 0);
    canvas.Click(canvas.MiddleOf(u"A"));
    EXPECT_THAT(canvas.Selected(), ElementsAre("A"));
}

TEST(TabbedBoxDesign, TheGridIsOnThePageAndNotOnTheTabs) {
    DesignedForm canvas(tabbedForm);
    canvas.Select({u"Beside"});
    const auto drawn = [&](const QRect& part) {
        return canvas.canvas->GetGlass().parentWidget()->grab(part).toImage();
    };
    const TabPages& pages = PagesOf(canvas.Control(u"Box"));
    const QPoint corner = pages.mapTo(canvas.canvas->GetGlass().parentWidget(), QPoint());
    const QRect tabs(corner, QSize(pages.width(), 18));
    const QRect page(corner + QPoint(0, 100), QSize(pages.width(), 50));
    const QImage tabsWith = drawn(tabs);
    const QImage pageWith = drawn(page);
    canvas.canvas->SetGrid({.step = 120, .isShown = false, .snaps = true});
    EXPECT_EQ(drawn(tabs), tabsWith);
    EXPECT_NE(drawn(page), pageWith);
}

TEST(TabbedBoxDesign, AMovedControlOfAnotherPageKeepsItsOffsetInTheFile) {
    DesignedForm canvas(tabbedForm);
    const std::string before = canvas.Saved();
    canvas.Select({u"A"});
    EXPECT_EQ(PagesOf(canvas.Control(u"Box")).Shown(), 0) << "a selected control is seen";
    canvas.Drag(canvas.MiddleOf(u"A"), {16, 10});
    EXPECT_EQ(canvas.PlaceOf(u"A"), (Placement{840, 1080, 1200, 300}));
    EXPECT_THAT(canvas.ChangedSince(before), ElementsAre("Left = -74160", "Top = 1080"));
    canvas.design.History().undo();
    EXPECT_EQ(canvas.Saved(), before);
    EXPECT_EQ(PagesOf(canvas.Control(u"Box")).Shown(), 0) << "the page stays";
}

TEST(TabbedBoxDesign, AMovedLineOfAnotherPageKeepsItsOffset) {
    EditedDesign edited(FormWith(tabbedForm));
    edited.design.Edit({}, [&] {
        Placement place = edited.Control(u"L").Place();
        place.left += 120;
        edited.Control(u"L").Move(place);
    });
    EXPECT_THAT(edited.Text(), HasSubstr("X1 = -74280\n         X2 = -73080\n"));
}

TEST(TabbedBoxDesign, SelectAllSelectsOnlyWhatIsSeen) {
    DesignedForm canvas(tabbedForm);
    canvas.Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(canvas.Selected(), ElementsAre("Box", "B", "Beside"));
    EXPECT_EQ(PagesOf(canvas.Control(u"Box")).Shown(), 1);
}

TEST(TabbedBoxDesign, ABandSelectsOnTheShownPage) {
    DesignedForm canvas(tabbedForm);
    PagesOf(canvas.Control(u"Box")).Show(0);
    canvas.Drag({30, 150}, {100, -90}, Qt::ControlModifier);
    EXPECT_THAT(canvas.Selected(), ElementsAre("A", "L"));
}

TEST(TabbedBoxDesign, ANewControlIsOnTheShownPage) {
    EditedDesign edited(FormWith(tabbedForm));
    PagesOf(edited.Control(u"Box")).Show(2);
    lumenform::AddNewControl(edited.design, u"VB.CheckBox", &edited.Control(u"Box"),
                             {300, 900, 1200, 300});
    EXPECT_EQ(edited.PlaceOf(u"Check1"), "1200 x 300 at 300, 900");
    EXPECT_EQ(PagesOf(edited.Control(u"Box")).Shown(), 2);
    EXPECT_THAT(edited.Text(), HasSubstr("Left            =   -74700\n"));
    EXPECT_THAT(edited.Text(), HasSubstr("      Tab(2).ControlEnabled= 0 'False\n"
                                         "      Tab(2).Control(0)=   \"Check1\"\n"
                                         "      Tab(2).ControlCount= 1\n"));
    PagesOf(edited.Control(u"Box")).Show(1);
    lumenform::AddNewControl(edited.design, u"VB.CheckBox", &edited.Control(u"Box"),
                             {300, 900, 1200, 300});
    EXPECT_THAT(edited.Text(), HasSubstr("Left            =   300\n"));
    EXPECT_THAT(edited.Text(), HasSubstr("      Tab(1).Control(1)=   \"Check2\"\n"
                                         "      Tab(1).ControlCount= 2\n"));
}

TEST(TabbedBoxDesign, ADeletedControlLeavesItsList) {
    EditedDesign edited(FormWith(tabbedForm));
    edited.Select({u"A"});
    lumenform::DeleteSelected(edited.design);
    EXPECT_THAT(edited.Text(), AllOf(HasSubstr("      Tab(0).Control(0)= \"L\"\n"
                                               "      Tab(0).ControlCount= 1\n"),
                                     Not(HasSubstr("\"A\""))));
}

TEST(TabbedBoxDesign, ARenamedControlKeepsItsPage) {
    EditedDesign edited(FormWith(tabbedForm));
    edited.design.Restructure({}, [&] {
        lumenform::RenameIn(edited.design.Document(), edited.Control(u"A").Block(), u"Renamed");
        lumenform::SetIndexIn(edited.design.Document().Root(), edited.Control(u"A").Block(), 3);
        return std::vector<Text>();
    });
    EXPECT_THAT(edited.Text(), HasSubstr("      Tab(0).Control(0)= \"Renamed(3)\"\n"
                                         "      Tab(0).Control(1)= \"L\"\n"));
    EXPECT_EQ(edited.PlaceOf(u"Renamed(3)"), "1200 x 300 at 600, 900");
}

TEST(TabbedBoxDesign, ACopyIsSeenWhereverItIsPasted) {
    EditedDesign edited(FormWith(tabbedForm));
    edited.Select({u"A"});
    const auto clip = lumenform::CopySelected(edited.design);
    lumenform::DuplicateSelected(edited.design);
    EXPECT_EQ(edited.Selected(), "A1");
    EXPECT_EQ(edited.PlaceOf(u"A1"), "1200 x 300 at 720, 1020");
    EXPECT_THAT(edited.Text(), HasSubstr("      Tab(0).Control(2)=   \"A1\"\n"));
    edited.Select({});
    lumenform::Paste(edited.design, *clip);
    EXPECT_EQ(edited.PlaceOf(u"A2"), "1200 x 300 at 600, 900");
    EXPECT_EQ(edited.Control(u"A2").Widget().parentWidget(), &edited.design.View().Client());
}

TEST(TabbedBoxDesign, ACopiedBoxHasItsOwnControls) {
    EditedDesign edited(FormWith(tabbedForm));
    edited.Select({u"Box"});
    lumenform::DuplicateSelected(edited.design);
    const lumenform::SavedPages saved(edited.Control(u"Box1").Block());
    EXPECT_THAT(saved.NamesOn(0), ElementsAre(u"A1", u"L1"));
    EXPECT_THAT(saved.NamesOn(1), ElementsAre(u"B1"));
    EXPECT_EQ(edited.PlaceOf(u"A1"), "1200 x 300 at 600, 900");
}

TEST(TabbedBoxDesign, AnotherCurrentPageMovesTheControlsInTheFile) {
    EditedDesign edited(FormWith(tabbedForm));
    edited.design.Restructure({}, [&] {
        edited.Control(u"Box").Block().Set(u"Tab", forms::Literal(0));
        return std::vector<Text>();
    });
    EXPECT_EQ(PagesOf(edited.Control(u"Box")).Shown(), 0);
    EXPECT_EQ(edited.PlaceOf(u"A"), "1200 x 300 at 600, 900");
    EXPECT_EQ(edited.PlaceOf(u"B"), "1200 x 300 at 600, 900");
    EXPECT_THAT(edited.Text(), AllOf(HasSubstr("Begin VB.TextBox A\n         Height = 300\n"
                                               "         Left = 600\n"),
                                     HasSubstr("Begin VB.TextBox B\n         Height = 300\n"
                                               "         Left = -74400\n"),
                                     HasSubstr("X1 = 600\n         X2 = 1800\n")));
    edited.design.History().undo();
    EXPECT_EQ(edited.PlaceOf(u"A"), "1200 x 300 at 600, 900");
    EXPECT_EQ(PagesOf(edited.Control(u"Box")).Shown(), 1);
}

// ---- The property list

TEST(TabbedBox, APageThatIsNotThereIsRefused) {
    BrowsedForm browsed(FormWith(tabbedForm));
    browsed.Select({u"Box"});
    const std::string before = browsed.Saved();
    for (const char* page : {"3", "9", "-1"}) {
        browsed.Type(u"Tab", page);
        EXPECT_EQ(browsed.Message(), "Tab: The pages are 0 to 2.") << page;
        EXPECT_EQ(browsed.Saved(), before);
    }
    browsed.Type(u"Tab", "2");
    EXPECT_EQ(browsed.Message(), "");
    EXPECT_EQ(browsed.Shown(u"Tab"), "2");
}

TEST(TabbedBox, TheEndsOfALineOnAHiddenPageAreThoseOnThePage) {
    BrowsedForm browsed(FormWith(tabbedForm));
    browsed.Select({u"L"});
    EXPECT_EQ(browsed.Shown(u"X1"), "600");
    EXPECT_EQ(browsed.Shown(u"X2"), "1800");
    EXPECT_EQ(browsed.Shown(u"Y1"), "1500");
    browsed.Type(u"X2", "2100");
    EXPECT_EQ(browsed.Shown(u"X2"), "2100");
    EXPECT_THAT(browsed.Saved(), HasSubstr("         X1 = -74400\n         X2 = -72900\n"));
    browsed.design.History().undo();
    EXPECT_EQ(browsed.Shown(u"X2"), "1800");
}

}  // namespace
}  // namespace lumenkit::testing
