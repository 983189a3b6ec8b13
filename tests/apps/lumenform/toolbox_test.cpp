// The toolbox of the designer's window, driven by mouse and keyboard.
#include <QTest>
#include <fstream>
#include <set>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/likeness/likeness_table.h"
#include "frame/utf8.h"
#include "runtime/qt/qt_text.h"
#include "tests/apps/lumenform/opened_window.h"
#include "tests/apps/lumenform/toolbox_user.h"

namespace lumenkit::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class ToolboxTest : public OpenedWindow {
 protected:
    lumenform::Toolbox& Box() const { return window.Bench()->GetToolbox(); }
    QListWidget& List() const { return Box().List(); }
    lumenform::Glass& Glass() const { return window.Bench()->GetCanvas().GetGlass(); }

    // Opens a form with these controls.
    void OpenWith(const std::string& controls, const std::string& head = {}) {
        const QString name = QStringLiteral("box%1.frm").arg(window.Tabs().count());
        std::ofstream(File(name))
            << "VERSION 5.00\n"
            << head << "Begin VB.Form Form1\n   ClientHeight = 4800\n   ClientWidth = 6000\n"
            << controls << "End\n";
        window.Load(Path(name));
    }
    ToolboxUser User() const { return ToolboxUser(Box()); }
    void Undo() const { window.Commands().UndoAction().trigger(); }
    // Drags on the form, in pixels of its client area.
    void DragOnForm(QPoint from, QPoint to) const {
        const QPoint origin = Glass().mapFromGlobal(Design().View().Client().mapToGlobal(QPoint()));
        QTest::mousePress(&Glass(), Qt::LeftButton, {}, origin + from);
        QTest::mouseMove(&Glass(), origin + (from + to) / 2);
        QTest::mouseMove(&Glass(), origin + to);
        QTest::mouseRelease(&Glass(), Qt::LeftButton, {}, origin + to);
    }
    // Empty unless one control is selected.
    std::string SelectedName() const {
        const std::vector<lumenkit::Text> names = Design().SelectedNames();
        return names.size() == 1 ? ToUtf8(names.front()) : std::string();
    }
    host::Placement PlaceOf(TextView name) const { return Design().View().Find(name)->Place(); }
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) const {
        QTest::keyClick(&Glass(), key, held);
    }
};

TEST_F(ToolboxTest, EveryClassIsDrawnByADragAndUndone) {
    window.StartNew();
    const std::string before = Text();
    std::set<std::string> names;
    int rows = 0;
    for (const std::string& row : User().ShownRows()) {
        User().ClickRow(QString::fromStdString(row));
        ASSERT_TRUE(window.Bench()->GetCanvas().IsDrawing()) << row;
        DragOnForm({16, 24}, {112, 88});
        ASSERT_EQ(Design().Selected().size(), 1U) << row;
        const lumenform::LiveControl& control = *Design().Selected().front();
        const host::Placement place = control.Place();
        EXPECT_EQ(place.left, 240) << row;
        EXPECT_EQ(place.top, 360) << row;
        EXPECT_EQ(place.width, row == "Timer" ? 420 : 1440) << row;
        EXPECT_EQ(place.height, row == "Timer" ? 420 : 960) << row;
        names.insert(ToUtf8(control.Name()));
        EXPECT_TRUE(Design().Document().Warnings().empty()) << row;
        EXPECT_THAT(User().RowsOnForm(), IsEmpty()) << row;
        Undo();
        EXPECT_EQ(Text(), before) << row;
        ++rows;
    }
    EXPECT_EQ(rows, 23);
    EXPECT_THAT(names, ElementsAre("Check1", "Combo1", "Command1", "Data1", "Dir1", "Drive1",
                                   "File1", "Frame1", "HScroll1", "Image1", "Label1", "Line1",
                                   "List1", "OLE1", "Option1", "Picture1", "Shape1", "Text1",
                                   "Timer1", "VLabel1", "VMemo1", "VOptList1", "VScroll1"));
}

TEST_F(ToolboxTest, ADoubleClickPutsEveryClassIntoTheMiddle) {
    window.StartNew();
    for (const std::string& row : User().ShownRows()) {
        User().DoubleClickRow(QString::fromStdString(row));
        ASSERT_EQ(Design().Selected().size(), 1U) << row;
        const host::Placement place = Design().Selected().front()->Place();
        EXPECT_NEAR(place.left + place.width / 2, 2400, 120) << row;
        EXPECT_NEAR(place.top + place.height / 2, 1800, 120) << row;
        Undo();
    }
}

TEST_F(ToolboxTest, NewControlsHaveTheSettingsOfTheirClass) {
    OpenWith("");
    User().ClickRow(QStringLiteral("HScrollBar"));
    DragOnForm({16, 24}, {112, 40});
    EXPECT_THAT(Text(), HasSubstr("   Begin VB.HScrollBar HScroll1 \n"
                                  "      Height          =   240\n"
                                  "      Left            =   240\n"
                                  "      TabIndex        =   0\n"
                                  "      Top             =   360\n"
                                  "      Width           =   1440\n"
                                  "   End\n"));
    User().ClickRow(QStringLiteral("Timer"));
    DragOnForm({160, 24}, {240, 96});
    EXPECT_THAT(Text(), HasSubstr("   Begin VB.Timer Timer1 \n"
                                  "      Left            =   2400\n"
                                  "      Top             =   360\n"
                                  "   End\n"));
    User().ClickRow(QStringLiteral("Shape"));
    DragOnForm({16, 120}, {80, 160});
    EXPECT_THAT(Text(), HasSubstr("   Begin VB.Shape Shape1 \n"
                                  "      Height          =   600\n"
                                  "      Left            =   240\n"
                                  "      Top             =   1800\n"
                                  "      Width           =   960\n"
                                  "   End\n"));
    User().ClickRow(QStringLiteral("Data"));
    DragOnForm({96, 120}, {240, 152});
    EXPECT_THAT(Text(), HasSubstr("   Begin VB.Data Data1 \n"
                                  "      Caption         =   \"Data1\"\n"
                                  "      Height          =   480\n"));
}

TEST_F(ToolboxTest, ALineKeepsTheDirectionOfItsDrag) {
    OpenWith("");
    struct Drawn {
        QPoint from;
        QPoint to;
        std::string ends;
    };
    const Drawn drawn[] = {
        {{16, 24}, {112, 88}, "X1 = 240 X2 = 1680 Y1 = 360 Y2 = 1320 "},
        {{112, 88}, {16, 24}, "X1 = 1680 X2 = 240 Y1 = 1320 Y2 = 360 "},
        {{16, 88}, {112, 24}, "X1 = 240 X2 = 1680 Y1 = 1320 Y2 = 360 "},
        {{112, 24}, {16, 88}, "X1 = 1680 X2 = 240 Y1 = 360 Y2 = 1320 "},
        {{16, 24}, {112, 25}, "X1 = 240 X2 = 1680 Y1 = 360 Y2 = 360 "},
        {{16, 88}, {17, 24}, "X1 = 240 X2 = 240 Y1 = 1320 Y2 = 360 "},
    };
    for (const Drawn& line : drawn) {
        User().ClickRow(QStringLiteral("Line"));
        DragOnForm(line.from, line.to);
        ASSERT_EQ(SelectedName(), "Line1");
        std::string ends;
        for (const TextView name : {u"X1", u"X2", u"Y1", u"Y2"}) {
            const forms::Block& block = Design().Selected().front()->Block();
            ends += ToUtf8(name) + " = " +
                    std::to_string(std::get<std::int32_t>(block.FindProperty(name)->Literal())) +
                    ' ';
        }
        EXPECT_EQ(ends, line.ends);
        EXPECT_THAT(Text(), AllOf(Not(HasSubstr("TabIndex")), Not(HasSubstr("Left"))));
        Undo();
    }
}

TEST_F(ToolboxTest, ALineHasTheUnitsOfItsContainer) {
    OpenWith(
        "   Begin VB.PictureBox P \n      Height = 3000\n      Left = 480\n      Top = 480\n"
        "      ScaleMode = 3\n      BorderStyle = 0\n      Width = 3000\n   End\n");
    User().ClickRow(QStringLiteral("Line"));
    DragOnForm({32 + 16, 32 + 56}, {32 + 112, 32 + 24});
    EXPECT_THAT(Text(), HasSubstr("      Begin VB.Line Line1 \n"
                                  "         X1              =   16\n"
                                  "         X2              =   112\n"
                                  "         Y1              =   56\n"
                                  "         Y2              =   24\n"
                                  "      End\n"));
}

TEST_F(ToolboxTest, ALineIsSelectedMovedSizedCopiedAndDeleted) {
    OpenWith("");
    User().ClickRow(QStringLiteral("Line"));
    DragOnForm({16, 88}, {112, 24});
    Key(Qt::Key_Escape);
    ASSERT_TRUE(Design().Selected().empty());
    DragOnForm({64, 56}, {80, 72});
    ASSERT_EQ(SelectedName(), "Line1");
    EXPECT_EQ(PlaceOf(u"Line1"),
              (host::Placement{.left = 480, .top = 600, .width = 1440, .height = 960}));
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(PlaceOf(u"Line1").width, 1560);
    EXPECT_THAT(
        Text(),
        AllOf(HasSubstr("X1              =   480\n"), HasSubstr("X2              =   2040\n"),
              HasSubstr("Y1              =   1560\n"), HasSubstr("Y2              =   600\n")));
    Command(QStringLiteral("Duplicate")).trigger();
    ASSERT_EQ(SelectedName(), "Line2");
    EXPECT_EQ(PlaceOf(u"Line2").left, 600);
    Command(QStringLiteral("Delete")).trigger();
    EXPECT_EQ(Design().View().Find(u"Line2"), nullptr);
    while (Design().History().canUndo()) {
        Design().History().undo();
    }
    EXPECT_TRUE(Design().View().Controls().empty());
}

TEST_F(ToolboxTest, ATimerIsAnIconOfOneSize) {
    OpenWith("");
    User().ClickRow(QStringLiteral("Timer"));
    DragOnForm({16, 24}, {112, 88});
    const std::string drawn = Text();
    DragOnForm({16 + 28 + 3, 24 + 28 + 3}, {120, 120});
    EXPECT_EQ(Text(), drawn) << "its corners do not size it";
    Select(u"Timer1");
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Text(), drawn);
    EXPECT_EQ(Design().History().count(), 1);
    Key(Qt::Key_Right);
    EXPECT_EQ(PlaceOf(u"Timer1"),
              (host::Placement{.left = 360, .top = 360, .width = 420, .height = 420}));
    Command(QStringLiteral("Duplicate")).trigger();
    EXPECT_EQ(SelectedName(), "Timer2");
    EXPECT_THAT(Text(), Not(HasSubstr("Width           =")));
    window.Run(true);
    EXPECT_FALSE(window.Running()->View().Find(u"Timer1")->Widget().isVisible());
    window.Run(false);
}

const std::string gauges =
    "   Begin Project1.Gauge Gauge1 \n      Height = 900\n      Left = 120\n      TabIndex = 3\n"
    "      Top = 120\n      Width = 1500\n      _extentx = 2646\n      _extenty = 1588\n   End\n"
    "   Begin MSComDlg.CommonDialog Dialog1 \n      Left = 3000\n      Top = 3000\n"
    "      _ExtentX = 847\n      _ExtentY = 847\n      _Version = 393216\n   End\n"
    "   Begin VB.Menu mnuFile \n      Caption = \"File\"\n   End\n";
const std::string dialogLibrary =
    "Object = \"{F9043C88-F6F2-101A-A3C9-08002B2F49FB}#1.2#0\"; \"comdlg32.ocx\"\n";

TEST_F(ToolboxTest, ShowsTheOtherClassesOfTheForm) {
    OpenWith(gauges, dialogLibrary);
    EXPECT_THAT(User().RowsOnForm(), ElementsAre("CommonDialog", "Gauge"));
    EXPECT_THAT(User().Row(QStringLiteral("Gauge")).toolTip().toStdString(),
                HasSubstr("Project1.Gauge"));
    EXPECT_EQ(User().Row(QStringLiteral("On this form")).flags(), Qt::NoItemFlags);
    User().ClickRow(QStringLiteral("On this form"));
    EXPECT_FALSE(window.Bench()->GetCanvas().IsDrawing());
    User().ClickRow(QStringLiteral("Gauge"));
    DragOnForm({160, 24}, {240, 88});
    EXPECT_THAT(Text(), HasSubstr("   Begin Project1.Gauge Gauge2 \n"
                                  "      Height          =   960\n"
                                  "      Left            =   2400\n"
                                  "      TabIndex        =   4\n"
                                  "      Top             =   360\n"
                                  "      Width           =   1200\n"
                                  "      _extentx        =   2117\n"
                                  "      _extenty        =   1693\n"
                                  "   End\n"));
    User().DoubleClickRow(QStringLiteral("CommonDialog"));
    EXPECT_THAT(Text(), HasSubstr("   Begin MSComDlg.CommonDialog CommonDialog1 \n"
                                  "      Left            =   2760\n"
                                  "      Top             =   2160\n"
                                  "      _ExtentX        =   847\n"
                                  "      _ExtentY        =   847\n"
                                  "      _Version        =   393216\n"
                                  "   End\n"));
    EXPECT_THAT(Text(), HasSubstr(dialogLibrary));
    EXPECT_EQ(Design().Document().Libraries().size(), 1U);
}

TEST_F(ToolboxTest, AClassGoesWithItsLastControl) {
    OpenWith(gauges, dialogLibrary);
    Select(u"Gauge1");
    Command(QStringLiteral("Delete")).trigger();
    EXPECT_THAT(User().RowsOnForm(), ElementsAre("CommonDialog"));
    Select(u"Dialog1");
    Command(QStringLiteral("Delete")).trigger();
    EXPECT_THAT(User().RowsOnForm(), IsEmpty());
    EXPECT_THAT(User().ShownRows(), Not(::testing::Contains("On this form")));
    Undo();
    Undo();
    EXPECT_THAT(User().RowsOnForm(), ElementsAre("CommonDialog", "Gauge"));
}

TEST_F(ToolboxTest, EveryClassWithALikenessCanBeAddedAgain) {
    for (const lumenform::LikenessRow& row : lumenform::LikenessRows()) {
        const TextView library = row.libraries.substr(0, row.libraries.find(u' '));
        const std::string className =
            ToUtf8(lumenkit::Text(library) + u'.' + lumenkit::Text(row.kind.className));
        OpenWith("   Begin " + className +
                 " First \n      Height = 900\n      Left = 120\n      Top = 1200\n"
                 "      Width = 1500\n   End\n");
        const std::string before = Text();
        User().ClickRow(qt::ToQString(row.kind.className));
        DragOnForm({160, 24}, {240, 88});
        ASSERT_EQ(Design().View().Controls().size(), 2U) << className;
        ASSERT_EQ(Design().Selected().size(), 1U) << className;
        const lumenform::LiveControl& added = *Design().Selected().front();
        EXPECT_EQ(ToUtf8(added.Block().ClassName()), className);
        EXPECT_EQ(added.Block().FindProperty(u"Width") != nullptr, row.kind.isSeen) << className;
        EXPECT_TRUE(Design().Document().Warnings().empty()) << className;
        Undo();
        EXPECT_EQ(Text(), before) << className;
    }
}

TEST_F(ToolboxTest, APutDownControlOfTheFormHasTheSizeOfTheFirst) {
    OpenWith(gauges, dialogLibrary);
    List().setFocus();
    List().setCurrentItem(&User().Row(QStringLiteral("Gauge")));
    QTest::keyClick(&List(), Qt::Key_Return);
    ASSERT_EQ(SelectedName(), "Gauge2");
    EXPECT_EQ(PlaceOf(u"Gauge2").width, 1500);
    EXPECT_EQ(PlaceOf(u"Gauge2").height, 900);
}

TEST_F(ToolboxTest, IsSearchedByKeyboard) {
    OpenWith(gauges, dialogLibrary);
    Box().Search().setFocus();
    QTest::keyClicks(&Box().Search(), QStringLiteral("SCROLL"));
    EXPECT_THAT(User().ShownRows(), ElementsAre("HScrollBar", "VScrollBar"));
    QTest::keyClick(&Box().Search(), Qt::Key_Down);
    EXPECT_TRUE(List().hasFocus());
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(SelectedName(), "VScroll1");
    Box().Search().setFocus();
    Box().Search().selectAll();
    QTest::keyClicks(&Box().Search(), QStringLiteral("gau"));
    EXPECT_THAT(User().ShownRows(), ElementsAre("On this form", "Gauge"));
    Select(u"Gauge1");
    Command(QStringLiteral("Delete")).trigger();
    EXPECT_THAT(User().ShownRows(), IsEmpty());
    Box().Search().setFocus();
    QTest::keyClick(&Box().Search(), Qt::Key_Escape);
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(User().ShownRows().size(), 25U);
}

TEST_F(ToolboxTest, EnterAddsNoClassThatTheSearchHides) {
    window.StartNew();
    List().setCurrentItem(&User().Row(QStringLiteral("Label")));
    Box().Search().setText(QStringLiteral("scroll"));
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_TRUE(Design().View().Controls().empty());
}

TEST_F(ToolboxTest, ACopyContinuesTheNumberOfItsOriginal) {
    OpenWith(
        "   Begin VB.CommandButton cmdOrder \n      Height = 375\n      Left = 240\n"
        "      Top = 240\n      Width = 1215\n   End\n");
    User().ClickRow(QStringLiteral("CommandButton"));
    DragOnForm({160, 24}, {240, 56});
    ASSERT_EQ(SelectedName(), "Command1");
    Key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(SelectedName(), "Command2");
    Select(u"cmdOrder");
    Key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(SelectedName(), "cmdOrder1");
    Key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(SelectedName(), "cmdOrder2");
}

TEST_F(ToolboxTest, TheArrowKeysSkipTheHeading) {
    OpenWith(gauges, dialogLibrary);
    List().setFocus();
    List().setCurrentItem(&User().Row(QStringLiteral("OLE")));
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(List().currentItem()->text(), QStringLiteral("CommonDialog"));
    QTest::keyClick(&List(), Qt::Key_Up);
    EXPECT_EQ(List().currentItem()->text(), QStringLiteral("OLE"));
}

TEST_F(ToolboxTest, HasNamesForScreenReaders) {
    window.StartNew();
    EXPECT_EQ(List().accessibleName(), QStringLiteral("Toolbox"));
    EXPECT_EQ(Box().Search().accessibleName(), QStringLiteral("Search the toolbox"));
}

TEST_F(ToolboxTest, ANewOptionListLeavesItsCaptionFree) {
    window.StartNew();
    User().ClickRow(QStringLiteral("VOptList"));
    DragOnForm({16, 24}, {160, 120});
    ASSERT_EQ(SelectedName(), "VOptList1");
    const lumenform::LiveControl& list = *Design().Selected().front();
    const auto margin = std::get<float>(list.Hosted()->Automation().Get(u"TopMargin"));
    const QFontMetrics metrics(Design().View().Inside().font->FaceAt(1)->WidgetFont());
    const float caption = 15.F * static_cast<float>(metrics.height());
    EXPECT_GE(margin, caption);
    EXPECT_LE(margin, caption + 15);
    EXPECT_THAT(Text(), HasSubstr("      TopMargin       =   "));
    EXPECT_EQ(Design().History().count(), 1);
    Undo();
    EXPECT_THAT(Text(), Not(HasSubstr("VOptList")));
}

}  // namespace
}  // namespace lumenkit::testing
