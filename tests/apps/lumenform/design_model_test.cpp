// Changes to a form in the designer: steps, selection, new controls, arranging, copies.
#include <gmock/gmock.h>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/clipboard.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/new_control.h"
#include "apps/lumenform/design/model/stacking.h"
#include "forms/file.h"
#include "frame/runtime_error.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "tests/apps/lumenform/edited_design.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

std::string Block(const std::string& type, const std::string& name, int left, int top,
                  const std::string& more = {}) {
    return "   Begin " + type + ' ' + name +
           " \n      Height = 495\n      Left = " + std::to_string(left) +
           "\n      Top = " + std::to_string(top) + "\n      Width = 1215\n" + more + "   End\n";
}

EditedDesign ThreeButtons() {
    return EditedDesign(FormWith(Block("VB.CommandButton", "cmdA", 120, 120) +
                                 Block("VB.CommandButton", "cmdB", 600, 900) +
                                 Block("VB.CommandButton", "cmdC", 2400, 2000)));
}

void MoveBy(EditedDesign& edited, TextView name, float twips,
            lumenform::Merging merging = lumenform::Merging::None) {
    lumenform::LiveControl& control = edited.Control(name);
    host::Placement place = control.Place();
    place.left += twips;
    edited.design.Edit(
        QStringLiteral("Move"), [&] { control.Move(place); }, merging);
}

TEST(Design, AnEditIsAStepThatUndoTakesBackByteForByte) {
    EditedDesign edited(forms::Load(sampleForms / "all_three.frm"));
    const std::string before = edited.Text();
    MoveBy(edited, u"VMemo1", 120);
    const std::string after = edited.Text();
    EXPECT_THAT(after, HasSubstr("      Left            =   2520\r\n"));
    EXPECT_FALSE(edited.design.History().isClean());
    edited.design.History().undo();
    EXPECT_EQ(edited.Text(), before);
    EXPECT_TRUE(edited.design.History().isClean());
    edited.design.History().redo();
    EXPECT_EQ(edited.Text(), after);
    EXPECT_EQ(edited.PlaceOf(u"VMemo1"), "2175 x 2775 at 2520, 240");
}

TEST(Design, AnEditThatChangesNothingIsNoStep) {
    EditedDesign edited = ThreeButtons();
    MoveBy(edited, u"cmdA", 0);
    EXPECT_EQ(edited.design.History().count(), 0);
}

TEST(Design, NudgesOfOneSelectionAreOneStep) {
    EditedDesign edited = ThreeButtons();
    edited.Select({u"cmdA"});
    const std::string before = edited.Text();
    for (int i = 0; i < 3; ++i) {
        MoveBy(edited, u"cmdA", 15, lumenform::Merging::Nudges);
    }
    EXPECT_EQ(edited.design.History().count(), 1);
    edited.Select({u"cmdB"});
    MoveBy(edited, u"cmdB", 15, lumenform::Merging::Nudges);
    MoveBy(edited, u"cmdB", 15);
    EXPECT_EQ(edited.design.History().count(), 3);
    edited.design.History().undo();
    edited.design.History().undo();
    EXPECT_EQ(edited.PlaceOf(u"cmdA"), "1215 x 495 at 165, 120");
    edited.design.History().undo();
    EXPECT_EQ(edited.Text(), before);
}

TEST(Design, ARefusedEditLeavesEverythingAsItWas) {
    EditedDesign edited = ThreeButtons();
    edited.Select({u"cmdA", u"cmdB"});
    const std::string before = edited.Text();
    EXPECT_THROW(edited.design.Edit(QStringLiteral("Resize"),
                                    [&] {
                                        edited.Control(u"cmdA").Move({.width = 15, .height = 15});
                                        edited.Control(u"cmdB").Move({.width = -1});
                                    }),
                 RuntimeError);
    EXPECT_EQ(edited.Text(), before);
    EXPECT_EQ(edited.PlaceOf(u"cmdA"), "1215 x 495 at 120, 120");
    EXPECT_EQ(edited.Selected(), "cmdA cmdB");
    EXPECT_EQ(edited.design.History().count(), 0);
    EXPECT_THROW(edited.design.Restructure(QStringLiteral("Caption"),
                                           [&] {
                                               edited.Control(u"cmdA").Block().Set(
                                                   u"Caption", lumenkit::Text(u"中"));
                                               return edited.design.SelectedNames();
                                           }),
                 forms::FormError);
    EXPECT_EQ(edited.Text(), before);
}

TEST(Design, AViewThatCannotBeMadeTakesTheChangeBack) {
    EditedDesign edited(FormWith(Block("lumenkit.VMemo", "VMemo1", 0, 0)));
    const std::string before = edited.Text();
    EXPECT_THROW(edited.design.Restructure(QStringLiteral("Width"),
                                           [&] {
                                               edited.Control(u"VMemo1").Block().Set(u"Width", -5);
                                               return edited.design.SelectedNames();
                                           }),
                 forms::FormError);
    EXPECT_EQ(edited.Text(), before);
    EXPECT_EQ(edited.PlaceOf(u"VMemo1"), "1215 x 495 at 0, 0");
}

TEST(Design, TellsWhatHappens) {
    EditedDesign edited = ThreeButtons();
    std::string told;
    QObject::connect(&edited.design, &lumenform::FormDesign::Edited, [&] { told += "edited "; });
    QObject::connect(&edited.design, &lumenform::FormDesign::SelectionChanged,
                     [&] { told += "selected "; });
    QObject::connect(&edited.design, &lumenform::FormDesign::ViewReplaced,
                     [&] { told += "replaced "; });
    edited.Select({u"cmdA"});
    edited.Select({u"cmdA"});
    EXPECT_EQ(told, "selected ");
    told.clear();
    MoveBy(edited, u"cmdA", 15);
    EXPECT_EQ(told, "edited ");
    told.clear();
    edited.design.History().undo();
    EXPECT_EQ(told, "replaced selected selected edited ");
    EXPECT_EQ(edited.Selected(), "cmdA");
}

TEST(Design, KeepsTheLatestStepsOnly) {
    EditedDesign edited = ThreeButtons();
    for (int i = 0; i <= lumenform::FormDesign::mostSteps; ++i) {
        MoveBy(edited, u"cmdA", 15);
    }
    EXPECT_EQ(edited.design.History().count(), lumenform::FormDesign::mostSteps);
}

TEST(Design, UndoAfterSavingUnderAnotherNameKeepsToItsOwnCompanion) {
    EditedDesign edited(forms::Load(sampleForms / "memo.frm"));
    MoveBy(edited, u"VMemo1", 15);
    edited.design.Rename("other.frm");
    EXPECT_THAT(edited.Text(), HasSubstr("\"other.frx\""));
    edited.design.History().undo();
    EXPECT_THAT(edited.Text(), HasSubstr("\"other.frx\""));
    EXPECT_THAT(edited.Text(), Not(HasSubstr("memo.frx")));
}

TEST(DesignNames, AreWhatCodeCanSay) {
    EXPECT_TRUE(lumenform::IsName(u"a"));
    EXPECT_TRUE(lumenform::IsName(u"cmd_OK2"));
    EXPECT_TRUE(lumenform::IsName(lumenkit::Text(40, u'x')));
    EXPECT_FALSE(lumenform::IsName(lumenkit::Text(41, u'x')));
    EXPECT_FALSE(lumenform::IsName(u""));
    EXPECT_FALSE(lumenform::IsName(u"2x"));
    EXPECT_FALSE(lumenform::IsName(u"_x"));
    EXPECT_FALSE(lumenform::IsName(u"a b"));
    EXPECT_FALSE(lumenform::IsName(u"ä"));
}

TEST(DesignNames, AreFreshBesideMenusAndWhatLiesInside) {
    const EditedDesign edited(
        FormWith("   Begin VB.Frame Frame1 \n      Begin VB.Label label1 \n      End\n   End\n"
                 "   Begin VB.Menu VMemo1 \n   End\n   Begin VB.TextBox Text2 \n   End\n"));
    const forms::Block& root = edited.design.Document().Root();
    EXPECT_EQ(lumenform::FreshName({&root}, u"VB.Label"), u"Label2");
    EXPECT_EQ(lumenform::FreshName({&root}, u"lumenkit.VMemo"), u"VMemo2");
    EXPECT_EQ(lumenform::FreshName({&root}, u"VB.TextBox"), u"Text1");
    EXPECT_TRUE(lumenform::IsTaken(root, u"FORM1"));
}

TEST(DesignNames, OfNewControlsAreShort) {
    const EditedDesign edited(FormWith(""));
    const std::pair<TextView, TextView> expected[] = {
        {u"VB.CommandButton", u"Command1"},
        {u"VB.TextBox", u"Text1"},
        {u"VB.CheckBox", u"Check1"},
        {u"VB.OptionButton", u"Option1"},
        {u"VB.Frame", u"Frame1"},
        {u"VB.ListBox", u"List1"},
        {u"VB.ComboBox", u"Combo1"},
        {u"VB.PictureBox", u"Picture1"},
        {u"VB.Label", u"Label1"},
        {u"VB.HScrollBar", u"HScroll1"},
        {u"VB.VScrollBar", u"VScroll1"},
        {u"VB.Timer", u"Timer1"},
        {u"VB.DriveListBox", u"Drive1"},
        {u"VB.DirListBox", u"Dir1"},
        {u"VB.FileListBox", u"File1"},
        {u"VB.Shape", u"Shape1"},
        {u"VB.Line", u"Line1"},
        {u"VB.Image", u"Image1"},
        {u"VB.Data", u"Data1"},
        {u"vb.textbox", u"Text1"},
        {u"lumenkit.VOptList", u"VOptList1"},
        {u"Other.TextBox", u"TextBox1"},
        {u"Gauge", u"Gauge1"},
        {u"MSComctlLib.ListViewCtrl.2", u"ListViewCtrl1"},
        {u"1.2", u"Control1"},
    };
    for (const auto& [className, name] : expected) {
        EXPECT_EQ(lumenform::FreshName({&edited.design.Document().Root()}, className), name);
    }
}

TEST(DesignNames, OfCopiesContinueTheNumbersOfTheirOriginals) {
    const EditedDesign edited(
        FormWith("   Begin VB.TextBox txt9 \n   End\n   Begin VB.TextBox Text1 \n   End\n"
                 "   Begin VB.TextBox TEXT4 \n   End\n   Begin VB.Menu Text5 \n   End\n"));
    const std::pair<TextView, TextView> expected[] = {
        {u"cmdOrder", u"cmdOrder1"},
        {u"txt9", u"txt10"},
        {u"txt", u"txt1"},
        {u"Text1", u"Text2"},
        {u"Text3", u"Text6"},
        {u"x2y09", u"x2y10"},
        {u"a999999999", u"a1000000000"},
        {u"a1234567890", u"a1234567891"},
        {u"optA_", u"optA_1"},
    };
    for (const auto& [original, copy] : expected) {
        EXPECT_EQ(lumenform::CopyName({&edited.design.Document().Root()}, original), copy);
    }
    const Text longest(40, u'n');
    EXPECT_EQ(lumenform::CopyName({&edited.design.Document().Root()}, longest),
              Text(39, u'n') + u'1');
}

TEST(NewControl, IsSetUpAsItsClassSetsUpNewOnes) {
    EditedDesign edited(FormWith(""));
    lumenform::AddNewControl(edited.design, u"lumenkit.VLabel", nullptr,
                             {.left = 120, .top = 240, .width = 2400, .height = 480});
    EXPECT_EQ(edited.Selected(), "VLabel1");
    EXPECT_EQ(edited.PlaceOf(u"VLabel1"), "2400 x 480 at 120, 240");
    const std::string text = edited.Text();
    EXPECT_THAT(text, HasSubstr("Object = \"{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0\"; "
                                "\"lumenkit.ocx\"\nBegin VB.Form Form1\n"));
    EXPECT_THAT(text, HasSubstr("   Begin lumenkit.VLabel VLabel1 \n"
                                "      Height          =   480\n"
                                "      Left            =   120\n"
                                "      TabIndex        =   0\n"
                                "      Top             =   240\n"
                                "      Width           =   2400\n"
                                "      _ExtentX        =   4233\n"
                                "      _ExtentY        =   847\n"));
    lumenform::AddNewControl(edited.design, u"lumenkit.VLabel", nullptr,
                             {.width = 1200, .height = 480});
    EXPECT_EQ(edited.Selected(), "VLabel2");
    EXPECT_EQ(edited.design.Document().Libraries().size(), 1U);
    edited.design.History().undo();
    edited.design.History().undo();
    EXPECT_THAT(edited.Text(), Not(HasSubstr("Object")));
}

TEST(NewControl, EveryClassOfTheToolboxCanBePutIntoAFrame) {
    for (const lumenkit::Text& className : lumenform::NewControlClasses(lumenkitClasses)) {
        EditedDesign edited(
            FormWith("   Begin VB.Frame fraOuter \n      Height = 2000\n"
                     "      Width = 3000\n   End\n   Begin VB.Menu mnu \n   End\n"));
        host::Placement place = lumenform::UsualPlace(edited.design, className);
        place.left = 60;
        lumenform::AddNewControl(edited.design, className, &edited.Control(u"fraOuter"), place);
        const forms::Block& root = edited.design.Document().Root();
        ASSERT_EQ(root.Controls().size(), 2U);
        ASSERT_EQ(root.Controls().front()->Controls().size(), 1U);
        const forms::Block& block = *root.Controls().front()->Controls().front();
        EXPECT_EQ(block.ClassName(), className);
        EXPECT_EQ(edited.Control(block.Name()).Place(), place);
        EXPECT_TRUE(edited.surface.interaction.said.empty());
        EXPECT_TRUE(edited.surface.errors.empty());
    }
}

TEST(NewControl, StandsInFrontAndBeforeTheMenus) {
    EditedDesign edited(
        FormWith(Block("VB.CommandButton", "cmdA", 0, 0) + "   Begin VB.Menu mnuFile \n   End\n"));
    lumenform::AddNewControl(edited.design, u"VB.Label", nullptr, {.width = 100, .height = 100});
    const auto controls = edited.design.Document().Root().Controls();
    ASSERT_EQ(controls.size(), 3U);
    EXPECT_EQ(controls[0]->Name(), u"Label1");
    EXPECT_EQ(controls[2]->Name(), u"mnuFile");
}

TEST(Arrange, AlignsWithTheLastSelected) {
    using lumenform::Alignment;
    const std::pair<Alignment, std::string> expected[] = {
        {Alignment::Left, "1215 x 495 at 600, 120"},
        {Alignment::Center, "1215 x 495 at 700, 120"},
        {Alignment::Right, "1215 x 495 at 800, 120"},
        {Alignment::Top, "1215 x 495 at 120, 900"},
        {Alignment::Middle, "1215 x 495 at 120, 952"},
        {Alignment::Bottom, "1215 x 495 at 120, 1005"},
    };
    for (const auto& [alignment, place] : expected) {
        EditedDesign edited = ThreeButtons();
        edited.design.Edit(QStringLiteral("Size"), [&] {
            edited.Control(u"cmdB").Move({.left = 600, .top = 900, .width = 1415, .height = 600});
        });
        edited.Select({u"cmdA", u"cmdB"});
        lumenform::Align(edited.design, alignment);
        EXPECT_EQ(edited.PlaceOf(u"cmdA"), place);
        EXPECT_EQ(edited.PlaceOf(u"cmdB"), "1415 x 600 at 600, 900");
        EXPECT_EQ(edited.design.History().count(), 2);
    }
}

TEST(Arrange, AlignsAcrossContainers) {
    EditedDesign edited(
        FormWith("   Begin VB.Frame fraOuter \n      Height = 2000\n      Left = 300\n"
                 "      Top = 300\n      Width = 3000\n      Begin VB.CommandButton cmdIn \n"
                 "         Height = 495\n         Left = 600\n         Top = 600\n"
                 "         Width = 1215\n      End\n   End\n" +
                 Block("VB.CommandButton", "cmdOut", 0, 0)));
    edited.Select({u"cmdOut", u"cmdIn"});
    lumenform::Align(edited.design, lumenform::Alignment::Left);
    EXPECT_EQ(edited.PlaceOf(u"cmdOut"), "1215 x 495 at 900, 0");
    EXPECT_EQ(edited.PlaceOf(u"cmdIn"), "1215 x 495 at 600, 600");
    EXPECT_EQ(lumenform::ContainerOf(edited.design, edited.Control(u"cmdIn")),
              &edited.Control(u"fraOuter"));
    EXPECT_EQ(lumenform::ContainerOf(edited.design, edited.Control(u"cmdOut")), nullptr);
    edited.Select({u"fraOuter", u"cmdIn"});
    EXPECT_THAT(lumenform::OutermostSelected(edited.design),
                ElementsAre(&edited.Control(u"fraOuter")));
}

TEST(Arrange, MakesTheSameSizeCentersSpacesAndSizesToTheGrid) {
    EditedDesign edited = ThreeButtons();
    edited.Select({u"cmdA", u"cmdC"});
    edited.design.Edit(QStringLiteral("Size"), [&] {
        edited.Control(u"cmdC").Move({.left = 2400, .top = 2000, .width = 1000, .height = 700});
    });
    lumenform::MakeSameSize(edited.design, lumenform::Dimension::Width);
    EXPECT_EQ(edited.PlaceOf(u"cmdA"), "1000 x 495 at 120, 120");
    lumenform::MakeSameSize(edited.design, lumenform::Dimension::Height);
    EXPECT_EQ(edited.PlaceOf(u"cmdA"), "1000 x 700 at 120, 120");
    // The form is 4500 wide. The two controls together span 3280.
    lumenform::CenterOnContainer(edited.design, Qt::Horizontal);
    EXPECT_EQ(edited.PlaceOf(u"cmdA"), "1000 x 700 at 610, 120");
    EXPECT_EQ(edited.PlaceOf(u"cmdC"), "1000 x 700 at 2890, 2000");
    edited.Select({u"cmdA", u"cmdC", u"cmdB"});
    // From 120 to 2700: controls of 700 + 495 + 700 and two gaps of 342.5.
    lumenform::SpaceEvenly(edited.design, Qt::Vertical);
    EXPECT_EQ(edited.PlaceOf(u"cmdB"), "1215 x 495 at 600, 1163");
    lumenform::SizeToGrid(edited.design, 120);
    EXPECT_EQ(edited.PlaceOf(u"cmdB"), "1200 x 480 at 600, 1200");
}

TEST(Stacking, BringsToTheFrontAndSendsToTheBack) {
    EditedDesign edited(
        FormWith(Block("VB.CommandButton", "a", 0, 0) + Block("VB.CommandButton", "b", 0, 0) +
                 Block("VB.CommandButton", "c", 0, 0) + "   Begin VB.Menu mnu \n   End\n"));
    const auto order = [&] {
        std::string names;
        for (const forms::Block* block : edited.design.Document().Root().Controls()) {
            names += ToUtf8(block->Name()) + ' ';
        }
        return names;
    };
    edited.Select({u"c", u"b"});
    lumenform::BringToFront(edited.design);
    EXPECT_EQ(order(), "b c a mnu ");
    EXPECT_EQ(edited.Selected(), "c b");
    lumenform::SendToBack(edited.design);
    EXPECT_EQ(order(), "a b c mnu ");
    edited.design.History().undo();
    EXPECT_EQ(order(), "b c a mnu ");
}

TEST(Stacking, DeletesWithWhatLiesInside) {
    EditedDesign edited(forms::Load(sampleForms / "all_three.frm"));
    const std::string before = edited.Text();
    edited.Select({u"fraLeft", u"VLabel1"});
    lumenform::DeleteSelected(edited.design);
    EXPECT_THAT(edited.Text(), Not(HasSubstr("VOptList1")));
    EXPECT_THAT(edited.Text(), HasSubstr("VMemo1"));
    EXPECT_EQ(edited.Selected(), "");
    edited.design.History().undo();
    EXPECT_EQ(edited.Text(), before);
    EXPECT_EQ(edited.Selected(), "fraLeft VLabel1");
}

TEST(Clipboard, CopiesComeBesideTheirOriginals) {
    EditedDesign edited(forms::Load(sampleForms / "all_three.frm"));
    edited.Select({u"fraLeft"});
    const auto data = lumenform::CopySelected(edited.design);
    ASSERT_TRUE(lumenform::HoldsControls(data.get()));
    EXPECT_THAT(data->text().toStdString(), HasSubstr("Begin VB.Frame fraLeft"));
    edited.Select({});
    lumenform::Paste(edited.design, *data);
    EXPECT_EQ(edited.Selected(), "fraLeft1");
    EXPECT_EQ(edited.PlaceOf(u"fraLeft1"), "2175 x 2895 at 240, 240");
    ASSERT_NE(edited.design.View().Find(u"VLabel2"), nullptr);
    EXPECT_EQ(lumenform::ContainerOf(edited.design, edited.Control(u"VLabel2")),
              &edited.Control(u"picInner1"));
    EXPECT_EQ(edited.PlaceOf(u"VLabel2"), "1935 x 735 at 0, 0");
    EXPECT_EQ(edited.Control(u"VLabel2").TabIndex(), 7);
    EXPECT_EQ(edited.design.History().count(), 1);
    lumenform::Paste(edited.design, *data);
    // At 360, 360 the frame would leave the form, whose client area is 4680 x 3195 twips.
    EXPECT_EQ(edited.PlaceOf(u"fraLeft2"), "2175 x 2895 at 0, 0");
}

TEST(Clipboard, GoesIntoASelectedContainerAndIntoAnotherForm) {
    EditedDesign from(forms::Load(sampleForms / "memo.frm"));
    from.Select({u"VMemo1"});
    const std::string text = from.Text();
    const auto data = lumenform::CopySelected(from.design);
    EXPECT_EQ(from.Text(), text);
    EditedDesign to(
        FormWith("   Begin VB.Frame fraOuter \n      Height = 2000\n"
                 "      Width = 3000\n   End\n"));
    to.Select({u"fraOuter"});
    lumenform::Paste(to.design, *data);
    EXPECT_EQ(to.Selected(), "VMemo1");
    EXPECT_EQ(lumenform::ContainerOf(to.design, to.Control(u"VMemo1")), &to.Control(u"fraOuter"));
    const auto textOf = [](const EditedDesign& edited) {
        return std::get<lumenkit::Text>(
            edited.Control(u"VMemo1").Hosted()->Automation().Get(u"Text"));
    };
    EXPECT_EQ(textOf(to), textOf(from));
    EXPECT_NE(textOf(to).find(u"\r\n"), lumenkit::Text::npos);
}

TEST(Clipboard, BringsTheLibrariesThatTheControlsNeed) {
    const std::string own =
        "Object = \"{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0\"; \"lumenkit.ocx\"\n";
    const std::string other =
        "Object = \"{B3D2E7A4-1C0F-4C57-9D6E-2F8A51C07E11}#1.0#0\"; \"gauges.ocx\"\n";
    const std::string controls =
        "Begin VB.Form Form1\n   Begin VB.Frame fraOwn \n      Begin lumenkit.VMemo VMemo1 \n"
        "      End\n   End\n   Begin Gauges.Dial Dial1 \n   End\n"
        "   Begin VB.TextBox txtPlain \n   End\nEnd\n";
    EditedDesign from(
        forms::Document::Parse("from.frm", "VERSION 5.00\n" + other + own + controls, {}));
    const auto librariesWith = [&](TextView name) {
        from.Select({name});
        EditedDesign to(FormWith(""));
        lumenform::Paste(to.design, *lumenform::CopySelected(from.design));
        lumenform::Paste(to.design, *lumenform::CopySelected(from.design));
        std::string files;
        for (const forms::LibraryReference& library : to.design.Document().Libraries()) {
            files += ToUtf8(library.library) + ' ' + ToUtf8(library.file) + '\n';
        }
        return files;
    };
    EXPECT_EQ(librariesWith(u"fraOwn"),
              "{8E90C363-D415-47AA-AFDF-C215C3C33F77}#7.1#0 lumenkit.ocx\n");
    EXPECT_EQ(librariesWith(u"Dial1"), "{B3D2E7A4-1C0F-4C57-9D6E-2F8A51C07E11}#1.0#0 gauges.ocx\n");
    EXPECT_EQ(librariesWith(u"txtPlain"), "");
}

TEST(Clipboard, CopiesWithOneNameGetTwo) {
    EditedDesign from(FormWith("   Begin VB.Label One \n   End\n   Begin VB.Label one \n   End\n"));
    EXPECT_EQ(from.design.Document().Warnings().size(), 1U);
    from.design.Select(
        {from.design.View().Controls()[0].get(), from.design.View().Controls()[1].get()});
    EditedDesign to(FormWith(""));
    lumenform::Paste(to.design, *lumenform::CopySelected(from.design));
    EXPECT_TRUE(to.design.Document().Warnings().empty());
    ASSERT_EQ(to.design.View().Controls().size(), 2U);
}

TEST(Clipboard, TheTextOfCopiesIsReadable) {
    EditedDesign from(forms::Load(sampleForms / "japanese.frm"));
    from.Select({u"VLabel1"});
    EXPECT_THAT(lumenform::CopySelected(from.design)->text().toStdString(),
                HasSubstr("|B:1|表示|B:0| ポスト ソ"));
}

TEST(Clipboard, ElementsOfArraysGetFreeIndices) {
    EditedDesign edited(forms::Load(sampleForms / "control_array.frm"));
    const std::string first = ToUtf8(edited.design.View().Controls().front()->Name());
    ASSERT_THAT(first, HasSubstr("("));
    edited.design.Select({edited.design.View().Controls().front().get()});
    const int count = static_cast<int>(edited.design.View().Controls().size());
    lumenform::DuplicateSelected(edited.design);
    EXPECT_EQ(edited.design.View().Controls().size(), static_cast<std::size_t>(count) + 1);
    const std::string array = first.substr(0, first.find('('));
    EXPECT_THAT(edited.Selected(), HasSubstr(array + '('));
    EXPECT_NE(edited.Selected(), first);
}

TEST(Clipboard, AnArrayThatMeetsAControlGetsOneNewName) {
    EditedDesign from(
        FormWith("   Begin VB.OptionButton opt \n      Index = 0\n   End\n"
                 "   Begin VB.OptionButton opt \n      Index = 1\n   End\n"));
    from.Select({u"opt(0)", u"opt(1)"});
    EditedDesign to(FormWith("   Begin VB.OptionButton opt \n   End\n"));
    lumenform::Paste(to.design, *lumenform::CopySelected(from.design));
    EXPECT_EQ(to.Selected(), "opt1(0) opt1(1)");
}

TEST(Clipboard, WhatIsDamagedIsRefusedAndChangesNothing) {
    EditedDesign edited = ThreeButtons();
    const std::string before = edited.Text();
    QMimeData data;
    data.setData(QLatin1String(lumenform::controlsFormat), "nonsense");
    EXPECT_THROW(lumenform::Paste(edited.design, data), forms::FormError);
    EXPECT_EQ(edited.Text(), before);
    EXPECT_FALSE(lumenform::HoldsControls(nullptr));
    EXPECT_EQ(lumenform::CopySelected(edited.design), nullptr);
}

}  // namespace
}  // namespace lumenkit::testing
