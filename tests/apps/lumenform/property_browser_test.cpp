// The property browser: its list, and how values are edited, refused and undone.
#include "apps/lumenform/design/properties/property_browser.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include "apps/lumenform/design/properties/color_dialog.h"
#include "apps/lumenform/design/properties/text_dialog.h"
#include "forms/file.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/browsed_form.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* controls =
    "   Begin lumenkit.VLabel Label1\n      Height          =   900\n"
    "      Left            =   120\n      TabIndex        =   0\n"
    "      Top             =   60\n      Width           =   2000\n"
    "      _ExtentX        =   3528\n      _ExtentY        =   1588\n"
    "      Caption         =   \"Hello\"\n   End\n"
    "   Begin lumenkit.VMemo Memo1\n      Height          =   900\n"
    "      Left            =   2400\n      TabIndex        =   1\n"
    "      Top             =   60\n      Width           =   2000\n   End\n"
    "   Begin lumenkit.VOptList List1\n      Height          =   1200\n"
    "      Left            =   120\n      TabIndex        =   2\n"
    "      Top             =   1200\n      Width           =   2000\n   End\n"
    "   Begin VB.TextBox Text1\n      Height          =   375\n"
    "      Left            =   2400\n      TabIndex        =   3\n"
    "      Text            =   \"plain\"\n"
    "      Top             =   1200\n      Width           =   1500\n   End\n";

std::vector<std::string> NamesIn(const BrowsedForm& form) {
    std::vector<std::string> names;
    const lumenform::PropertyModel& model = form.browser->Model();
    for (int row = 0; row < model.rowCount(); ++row) {
        names.push_back(ToUtf8(model.Row(row).name));
    }
    return names;
}

class PropertyBrowser : public ::testing::Test {
 protected:
    // Returns the text after `name = ` on the line of the control's property; "" if there is none.
    std::string Stored(TextView control, TextView property) const {
        const lumenform::LiveControl* found = form.design.View().Find(control);
        const forms::Property* stored =
            (found == nullptr ? form.design.Document().Root() : found->Block())
                .FindProperty(property);
        return stored == nullptr ? "" : ToUtf8(stored->Source().value);
    }
    int Steps() { return form.design.History().index(); }
    void Undo() { form.design.History().undo(); }

    BrowsedForm form{FormWith(controls)};
};

// ---- The list

TEST_F(PropertyBrowser, ListsWhatTheInterfaceTableShows) {
    form.Select({u"List1"});
    EXPECT_THAT(NamesIn(form),
                ElementsAre("(Name)", "BorderStyle", "Caption", "CausesValidation", "Contents",
                            "DragMode", "Enabled", "Font", "Height", "HelpContextID", "Index",
                            "ItemAlignment", "ItemFontBold", "ItemFontItalic", "ItemFontName",
                            "ItemFontSize", "ItemForeColor", "Left", "LeftMargin", "ListIndex",
                            "Spacing", "TabIndex", "TabStop", "Tag", "ToolTipText", "Top",
                            "TopMargin", "Value", "Visible", "WhatsThisHelpID", "Width"))
        << "without the hidden Text and the write-only, indexed ItemCaption";
    EXPECT_FALSE(form.CanEdit(u"Value"));
    EXPECT_TRUE(form.CanEdit(u"ListIndex"));
    form.Select({u"Memo1"});
    EXPECT_TRUE(form.Has(u"Text"));
    EXPECT_FALSE(form.Has(u"PageWidth")) << "it cannot be read";
}

TEST_F(PropertyBrowser, ShowsTheHelpStringOfTheTable) {
    form.Select({u"List1"});
    form.browser->Table().GoTo(form.Row(u"Contents"));
    EXPECT_THAT(form.browser->Help().toStdString(),
                HasSubstr("Value1;Caption1|Value2;Caption2  ... etc"));
}

TEST_F(PropertyBrowser, SaysWhatIsSelected) {
    EXPECT_EQ(form.browser->Heading(), "Form1  Form");
    form.Select({u"Memo1"});
    EXPECT_EQ(form.browser->Heading(), "Memo1  VMemo");
}

TEST_F(PropertyBrowser, ShowsEveryKindOfValue) {
    form.Select({u"Label1"});
    EXPECT_EQ(form.Shown(u"(Name)"), "Label1");
    EXPECT_EQ(form.Shown(u"Caption"), "Hello");
    EXPECT_EQ(form.Shown(u"BackColor"), "Window background");
    EXPECT_EQ(form.Shown(u"Font"), "MS Sans Serif, 8.25 pt");
    EXPECT_EQ(form.Shown(u"Enabled"), "True");
    EXPECT_EQ(form.Shown(u"Left"), "120");
    EXPECT_EQ(form.Shown(u"Index"), "");
    form.Select({u"Memo1"});
    EXPECT_EQ(form.Shown(u"ScrollBars"), "0 - None");
    EXPECT_EQ(form.Shown(u"FontSize"), "8.25");
}

// ---- Controls of this library

TEST_F(PropertyBrowser, ATypedTextIsAssignedInOneStep) {
    form.Select({u"Label1"});
    form.Type(u"Caption", "|b:1|Bold");
    EXPECT_EQ(ToText(form.Automation(u"Label1").Get(u"Caption")), u"|b:1|Bold");
    EXPECT_EQ(Stored(u"Label1", u"Caption"), "\"|b:1|Bold\"");
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(form.design.History().undoText(), "Caption");
    Undo();
    EXPECT_EQ(form.Shown(u"Caption"), "Hello");
    EXPECT_EQ(form.browser->Heading(), "Label1  VLabel");
}

TEST_F(PropertyBrowser, TypingStartsEditingAndEscTakesBack) {
    form.Select({u"Label1"});
    lumenform::PropertyTable& table = form.browser->Table();
    table.GoTo(form.Row(u"BulletPrefix"));
    QTest::keyClicks(&table, "-");
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    QTest::keyClicks(line, " ");
    EXPECT_EQ(line->text(), "- ");
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &table);
    EXPECT_EQ(Steps(), 0);
    EXPECT_EQ(form.Shown(u"BulletPrefix"),
              ToUtf8(ToText(form.Automation(u"Label1").Get(u"BulletPrefix"))));
}

TEST_F(PropertyBrowser, LeavingALineAssignsIt) {
    form.Select({u"Label1"});
    form.browser->Edit(u"BulletIndent");
    QWidget* const line = QApplication::focusWidget();
    QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, "360");
    QTest::keyClick(line, Qt::Key_Down);
    EXPECT_EQ(Stored(u"Label1", u"BulletIndent"), "360");
    EXPECT_EQ(form.browser->Table().currentIndex().row(), form.Row(u"BulletPrefix"));
    EXPECT_EQ(QApplication::focusWidget(), &form.browser->Table());
}

TEST_F(PropertyBrowser, ALineThatIsLeftAsItWasChangesNothing) {
    form.Select({u"Label1", u"List1"});
    EXPECT_EQ(form.Shown(u"Caption"), "") << "they differ";
    form.browser->Edit(u"Caption");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Steps(), 0);
    EXPECT_EQ(Stored(u"Label1", u"Caption"), "\"Hello\"");
}

TEST_F(PropertyBrowser, NumbersAreConvertedByTheControl) {
    form.Select({u"Memo1"});
    form.Type(u"MaxLines", "2.5");
    EXPECT_EQ(Stored(u"Memo1", u"MaxLines"), "2") << "half to even";
    form.Type(u"FontSize", "9.75");
    EXPECT_EQ(form.Shown(u"FontSize"), "9.75");
    form.Type(u"MaxLines", "&H10");
    EXPECT_EQ(form.Shown(u"MaxLines"), "16");
    form.Select({u"List1"});
    form.Type(u"Spacing", "300.5");
    EXPECT_EQ(Stored(u"List1", u"Spacing"), "300.5");
}

TEST_F(PropertyBrowser, WhatDoesNotConvertIsRefusedInTheRuntimesWords) {
    form.Select({u"Memo1"});
    const std::string before = form.Saved();
    const std::string shown = form.Shown(u"MaxLines");
    form.Type(u"MaxLines", "many");
    EXPECT_EQ(form.Message(), "MaxLines: Type mismatch");
    EXPECT_EQ(form.Shown(u"MaxLines"), shown);
    form.Type(u"MaxLines", "40000");
    EXPECT_EQ(form.Message(), "MaxLines: Overflow");
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(Steps(), 0);
    EXPECT_EQ(form.design.SelectedNames(), std::vector<Text>{u"Memo1"});
    form.Type(u"MaxLines", "4");
    EXPECT_EQ(form.Message(), "");
    EXPECT_EQ(form.Shown(u"MaxLines"), "4");
}

TEST_F(PropertyBrowser, WhatAControlReportsIsARefusal) {
    form.Select({u"Memo1"});
    const std::string before = form.Saved();
    form.Type(u"FontSize", "-1");
    EXPECT_EQ(form.Message(), "FontSize: Invalid property value");
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(form.Shown(u"FontSize"), "8.25");
    EXPECT_TRUE(form.interaction.said.empty()) << "not in a box";
}

TEST_F(PropertyBrowser, TruthsAndEnumerationsAreChosen) {
    form.Select({u"Memo1"});
    form.Choose(u"Locked", "True");
    EXPECT_TRUE(ToBoolean(form.Automation(u"Memo1").Get(u"Locked")));
    form.Choose(u"ScrollBars", "2");
    EXPECT_EQ(form.Shown(u"ScrollBars"), "2 - Vertical");
    EXPECT_EQ(Stored(u"Memo1", u"ScrollBars"), "2");
    form.Choose(u"MousePointer", "11");
    EXPECT_EQ(Stored(u"Memo1", u"MousePointer"), "11");
    EXPECT_EQ(Steps(), 3);
    Undo();
    Undo();
    Undo();
    EXPECT_EQ(form.Shown(u"ScrollBars"), "0 - None");
    EXPECT_EQ(form.Shown(u"Locked"), "False");
}

TEST_F(PropertyBrowser, ANumberThatIsNoColourIsRefused) {
    form.Select({u"Label1"});
    const std::string before = form.Saved();
    for (const char* typed : {"16777216", "-1", "&H80000099&", "&H80000019&"}) {
        form.Type(u"BackColor", typed);
        EXPECT_THAT(form.Message(), HasSubstr("BackColor: A colour is a number")) << typed;
        EXPECT_EQ(form.Saved(), before) << typed;
    }
    for (const char* typed : {"0", "16777215", "&H80000018&", "-2147483648"}) {
        form.Type(u"BackColor", typed);
        EXPECT_EQ(form.Message(), "") << typed;
    }
}

TEST_F(PropertyBrowser, ColoursAreTypedAsTheyAreWritten) {
    form.Select({u"Label1"});
    form.Type(u"ForeColor", "&HFF8000");
    EXPECT_EQ(Stored(u"Label1", u"ForeColor"), "&H00FF8000&");
    form.Type(u"ForeColor", "&HFFFF");
    EXPECT_EQ(Stored(u"Label1", u"ForeColor"), "&H0000FFFF&") << "all of the colour, not -1";
    form.Type(u"ForeColor", "255");
    EXPECT_EQ(form.Shown(u"ForeColor"), "&H000000FF&");
    form.Type(u"ForeColor", "red");
    EXPECT_EQ(form.Message(), "ForeColor: Type mismatch");
    EXPECT_EQ(form.Shown(u"ForeColor"), "&H000000FF&");
}

TEST_F(PropertyBrowser, SystemColoursAreTypedByName) {
    form.Select({u"Label1"});
    form.Type(u"ForeColor", "window text");
    EXPECT_EQ(Stored(u"Label1", u"ForeColor"), "&H80000008&");
    EXPECT_EQ(form.Shown(u"ForeColor"), "Window text");
    form.Type(u"ForeColor", "ButtonFace");
    EXPECT_EQ(Stored(u"Label1", u"ForeColor"), "&H8000000F&");
    form.Type(u"ForeColor", "&H8000000D&");
    EXPECT_EQ(form.Shown(u"ForeColor"), "Highlight");
    form.Type(u"ForeColor", "Window txt");
    EXPECT_EQ(form.Message(), "ForeColor: Type mismatch");
    form.Select({u"Text1"});
    form.Type(u"BackColor", "Tool tip");
    EXPECT_EQ(Stored(u"Text1", u"BackColor"), "&H80000018&");
    BrowsedForm odd(
        FormWith("   Begin VB.TextBox T\n      BackColor = &H8000001A&\n      Height = 300\n"
                 "      Width = 900\n   End\n"));
    odd.Select({u"T"});
    EXPECT_EQ(odd.Shown(u"BackColor"), "&H8000001A&") << "it has no name";
}

TEST_F(PropertyBrowser, ANamedColourHasASwatch) {
    form.Select({u"Label1"});
    lumenform::PropertyTable& table = form.browser->Table();
    const QRect cell = table.visualRect(
        form.browser->Model().index(form.Row(u"ForeColor"), lumenform::PropertyModel::ValueColumn));
    const auto swatch = [&] {
        const QImage shown = table.viewport()->grab(cell).toImage();
        return shown.pixelColor(shown.height() / 2, shown.height() / 2);
    };
    form.Type(u"ForeColor", "Highlight");
    table.GoTo(0);
    EXPECT_EQ(swatch(), table.palette().color(QPalette::Active, QPalette::Highlight));
    form.Type(u"ForeColor", "&H00FF00FF&");
    table.GoTo(0);
    EXPECT_EQ(swatch(), QColor(255, 0, 255));
}

TEST_F(PropertyBrowser, TheNumbersOfTheLibraryHaveNames) {
    form.Select({u"Label1"});
    EXPECT_EQ(form.Shown(u"BorderStyle"), "0 - None");
    EXPECT_EQ(form.Shown(u"BackStyle"), "0 - Own colour");
    form.Choose(u"BackStyle", "1");
    EXPECT_EQ(Stored(u"Label1", u"BackStyle"), "1");
    form.Choose(u"MousePointer", "99");
    EXPECT_EQ(form.Shown(u"MousePointer"), "99 - Custom");
    EXPECT_EQ(Stored(u"Label1", u"MousePointer"), "99");
    form.Select({u"List1"});
    EXPECT_EQ(form.Shown(u"BorderStyle"), "1 - Single");
    form.Choose(u"ItemAlignment", "1");
    EXPECT_EQ(Stored(u"List1", u"ItemAlignment"), "1");
    form.Select({u"List1", u"Text1"});
    form.Choose(u"BorderStyle", "0");
    EXPECT_EQ(Stored(u"List1", u"BorderStyle"), "0");
    EXPECT_EQ(Stored(u"Text1", u"BorderStyle"), "0") << "the same choices as in other classes";
}

TEST_F(PropertyBrowser, ANumberWithoutANameIsShownAsItIs) {
    BrowsedForm odd(
        FormWith("   Begin lumenkit.VLabel L\n      BackStyle = 7\n      Height = 300\n   End\n"));
    odd.Select({u"L"});
    EXPECT_EQ(odd.Shown(u"BackStyle"), "7");
    const std::string before = odd.Saved();
    odd.browser->Edit(u"BackStyle");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(odd.Saved(), before);
}

TEST_F(PropertyBrowser, ColoursAreChosenByName) {
    form.Select({u"Label1"});
    auto* const dialog = form.More<lumenform::ColorDialog>(u"BackColor");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->SystemList().currentItem()->text(), "Window background");
    QTest::keyClicks(&dialog->SystemList(), "button f");
    dialog->accept();
    EXPECT_EQ(Stored(u"Label1", u"BackColor"), "&H8000000F&");
    EXPECT_EQ(Steps(), 1);
}

TEST_F(PropertyBrowser, ColoursAreChosenFromThePalette) {
    form.Select({u"List1"});
    auto* const dialog = form.More<lumenform::ColorDialog>(u"ItemForeColor");
    ASSERT_NE(dialog, nullptr);
    dialog->PaletteList().setCurrentRow(9);
    dialog->accept();
    EXPECT_EQ(form.Shown(u"ItemForeColor"), "&H000000FF&");
}

TEST_F(PropertyBrowser, FontsAreTyped) {
    form.Select({u"Label1"});
    form.Type(u"Font", "Arial, 9.75 pt bold italic");
    const std::string saved = form.Saved();
    EXPECT_THAT(saved, HasSubstr("Name            =   \"Arial\"\n"));
    EXPECT_THAT(saved, HasSubstr("Size            =   9.75\n"));
    EXPECT_THAT(saved, HasSubstr("Weight          =   700\n"));
    EXPECT_THAT(saved, HasSubstr("Italic          =   -1  'True\n"));
    EXPECT_EQ(form.Shown(u"Font"), "Arial, 9.75 pt bold italic");
    form.Type(u"Font", "Arial");
    EXPECT_THAT(form.Message(), HasSubstr("Font: A font is written like this"));
    form.Type(u"Font", "Arial, 0 pt");
    EXPECT_EQ(form.Message(), "Font: Invalid property value");
    EXPECT_EQ(form.Saved(), saved);
    Undo();
    EXPECT_EQ(form.Shown(u"Font"), "MS Sans Serif, 8.25 pt");
}

TEST_F(PropertyBrowser, TheFontDialogKeepsWhatIsNotChanged) {
    form.Select({u"Label1"});
    auto* dialog = form.More<QFontDialog>(u"Font");
    ASSERT_NE(dialog, nullptr);
    dialog->accept();
    EXPECT_EQ(Steps(), 0);
    EXPECT_EQ(form.Shown(u"Font"), "MS Sans Serif, 8.25 pt");
    QTest::qWait(0);
    dialog = form.More<QFontDialog>(u"Font");
    ASSERT_NE(dialog, nullptr);
    QFont font = dialog->currentFont();
    font.setUnderline(true);
    dialog->setCurrentFont(font);
    dialog->accept();
    EXPECT_EQ(form.Shown(u"Font"), "MS Sans Serif, 8.25 pt underline");
}

TEST_F(PropertyBrowser, EveryControlGetsAFontOfItsOwn) {
    form.Select({u"Label1", u"Memo1"});
    form.Type(u"Font", "Arial, 12 pt");
    EXPECT_EQ(Steps(), 1);
    ToObject(form.Automation(u"Label1").Get(u"Font"))->Let(u"Size", 20.0F);
    EXPECT_EQ(ToText(ToObject(form.Automation(u"Memo1").Get(u"Font"))->Get(u"Size")), u"12");
}

TEST_F(PropertyBrowser, TextsWithLineBreaksAreEditedInAWindow) {
    form.Select({u"Memo1"});
    auto* const dialog = form.More<lumenform::TextDialog>(u"Text");
    ASSERT_NE(dialog, nullptr);
    ShowActive(*dialog);
    auto* const edit = dialog->findChild<QPlainTextEdit*>();
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, "one");
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, "two");
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(ToText(form.Automation(u"Memo1").Get(u"Text")), u"one\r\ntwo");
    EXPECT_EQ(form.Shown(u"Text"), "one  two");
    EXPECT_THAT(form.Saved(), HasSubstr("Text            =   $\"x.frx\":0000\n"));
    // The line in the list is read-only.
    ShowActive(form.window);
    form.browser->Edit(u"Text");
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    EXPECT_TRUE(line->isReadOnly());
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(Steps(), 1);
}

TEST_F(PropertyBrowser, ATextThatTheCodePageCannotHoldIsRefusedByName) {
    form.Select({u"Label1"});
    const std::string before = form.Saved();
    form.browser->Edit(u"Caption");
    auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    line->insert(QString::fromUtf8("語"));
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_THAT(form.Message(), HasSubstr("Label1.Caption: \"語\" (U+8A9E) cannot be written in "));
    EXPECT_THAT(form.Message(), HasSubstr("1252"));
    EXPECT_EQ(form.Saved(), before);
    form.Select({});
    form.browser->Edit(u"Caption");
    qobject_cast<QLineEdit*>(QApplication::focusWidget())->insert(QString::fromUtf8("ж"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_THAT(form.Message(), HasSubstr("Form1.Caption: \"ж\""));
    EXPECT_EQ(Steps(), 0);
}

TEST_F(PropertyBrowser, TheTextWindowSaysAtOnceWhatTheCodePageCannotHold) {
    form.Select({u"Memo1"});
    auto* const dialog = form.More<lumenform::TextDialog>(u"Text");
    ASSERT_NE(dialog, nullptr);
    auto* const edit = dialog->findChild<QPlainTextEdit*>();
    edit->insertPlainText(QString::fromUtf8("a語"));
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("\"語\" (U+8A9E)"));
    EXPECT_FALSE(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
    QTest::keyClick(edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Steps(), 0);
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(dialog->Message(), QString());
    dialog->accept();
    EXPECT_EQ(Steps(), 1);
}

TEST_F(PropertyBrowser, AFormInUtf8HoldsEveryTextButNotInTheCompanion) {
    BrowsedForm utf8(
        FormWith("   Begin VB.TextBox T\n      Height = 300\n"
                 "      Tag = \"\xC3\xA9\"\n   End\n"));
    utf8.Select({u"T"});
    utf8.browser->Edit(u"ToolTipText");
    qobject_cast<QLineEdit*>(QApplication::focusWidget())->insert(QString::fromUtf8("語"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(utf8.Message(), "");
    EXPECT_EQ(utf8.Shown(u"ToolTipText"), "語");
    auto* const dialog = utf8.More<lumenform::TextDialog>(u"Text");
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QPlainTextEdit*>()->insertPlainText(QString::fromUtf8("語"));
    EXPECT_EQ(dialog->Message(), QString());
    dialog->findChild<QPlainTextEdit*>()->insertPlainText(QStringLiteral("\n"));
    EXPECT_THAT(dialog->Message().toStdString(), HasSubstr("cannot be written"))
        << "texts with line breaks are in the companion, which is never in UTF-8";
}

TEST_F(PropertyBrowser, WhatIsBeingTypedIsNotForTheNextSelection) {
    form.Select({u"Label1"});
    form.browser->Edit(u"Caption");
    QTest::keyClicks(QApplication::focusWidget(), "x");
    form.Select({u"List1"});
    EXPECT_EQ(Steps(), 0);
    for (const QLineEdit* line : form.browser->Table().findChildren<QLineEdit*>()) {
        EXPECT_FALSE(line->isVisible());
    }
}

// ---- Several controls

TEST_F(PropertyBrowser, SeveralControlsShowWhatTheyHaveInCommon) {
    form.Select({u"Label1", u"Memo1", u"List1"});
    EXPECT_EQ(form.browser->Heading(), "3 controls");
    EXPECT_THAT(NamesIn(form),
                ElementsAre("CausesValidation", "DragMode", "Enabled", "Font", "Height",
                            "HelpContextID", "Left", "TabStop", "Tag", "ToolTipText", "Top",
                            "Visible", "WhatsThisHelpID", "Width"));
    EXPECT_EQ(form.Shown(u"Left"), "");
    EXPECT_EQ(form.Shown(u"Width"), "2000");
    form.Type(u"Left", "300");
    EXPECT_EQ(Steps(), 1);
    for (const TextView name : {u"Label1", u"Memo1", u"List1"}) {
        EXPECT_EQ(Stored(name, u"Left"), "300");
    }
    EXPECT_EQ(Stored(u"Label1", u"_ExtentX"), "3528");
    Undo();
    EXPECT_EQ(Stored(u"Memo1", u"Left"), "2400");
}

TEST_F(PropertyBrowser, OursAndOthersAreSetInOneStep) {
    form.Select({u"Memo1", u"Text1"});
    form.Choose(u"Enabled", "False");
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(Stored(u"Memo1", u"Enabled"), "0   'False");
    EXPECT_EQ(Stored(u"Text1", u"Enabled"), "0   'False");
    EXPECT_EQ(form.design.SelectedNames(), (std::vector<Text>{u"Memo1", u"Text1"}));
    form.Type(u"Text", "both");
    EXPECT_EQ(ToText(form.Automation(u"Memo1").Get(u"Text")), u"both");
    EXPECT_EQ(Stored(u"Text1", u"Text"), "\"both\"");
    Undo();
    Undo();
    EXPECT_EQ(form.Saved(), FormWith(controls).Write().form);
}

TEST_F(PropertyBrowser, WhatOneRefusesIsSetForNone) {
    form.Select({u"Text1", u"Label1"});
    const std::string before = form.Saved();
    form.Type(u"Width", "-5");
    EXPECT_EQ(form.Message(), "Width: Invalid property value");
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(form.design.SelectedNames(), (std::vector<Text>{u"Text1", u"Label1"}));
}

// ---- Properties that the container adds

TEST_F(PropertyBrowser, PlacesAreInTwipsWhateverTheUnitsOfTheForm) {
    BrowsedForm pixels(
        FormOf("VERSION 5.00\nBegin VB.Form F\n   ClientHeight = 3000\n   ClientWidth = 4500\n"
               "   ScaleHeight = 200\n   ScaleMode = 3\n   ScaleWidth = 300\n"
               "   Begin lumenkit.VMemo M\n      Height = 400\n      Left = 100\n      Top = 200\n"
               "      Width = 300\n   End\nEnd\n"));
    pixels.Select({u"M"});
    EXPECT_EQ(pixels.Shown(u"Left"), "100");
    pixels.Type(u"Left", "120");
    EXPECT_THAT(pixels.Saved(), HasSubstr("Left = 120\n"));
    EXPECT_THAT(pixels.Saved(), HasSubstr("Top = 200\n"));
    EXPECT_EQ(pixels.design.View().Find(u"M")->Place().left, 120);
}

TEST_F(PropertyBrowser, TagVisibleAndTabStopStandInTheBlock) {
    form.Select({u"Label1"});
    form.Type(u"Tag", "mine");
    form.Choose(u"Visible", "False");
    form.Choose(u"TabStop", "False");
    EXPECT_THAT(form.Saved(), HasSubstr("      TabIndex        =   0\n"
                                        "      TabStop         =   0   'False\n"
                                        "      Tag             =   \"mine\"\n"
                                        "      Top             =   60\n"
                                        "      Visible         =   0   'False\n"
                                        "      Width           =   2000\n"
                                        "      _ExtentX        =   3528\n"));
    form.Choose(u"Visible", "True");
    EXPECT_THAT(form.Saved(), Not(HasSubstr("Visible")));
    Undo();
    Undo();
    Undo();
    Undo();
    EXPECT_EQ(form.Saved(), FormWith(controls).Write().form);
}

TEST_F(PropertyBrowser, EveryVisibleControlHasHelpNumbersAndATag) {
    for (const TextView name : {u"Label1", u"Memo1", u"List1", u"Text1"}) {
        form.Select({Text(name)});
        form.Type(u"HelpContextID", "12");
        form.Type(u"WhatsThisHelpID", "13");
        EXPECT_EQ(Stored(name, u"HelpContextID"), "12");
        EXPECT_EQ(Stored(name, u"WhatsThisHelpID"), "13");
        EXPECT_TRUE(form.Has(u"Tag"));
        form.Type(u"HelpContextID", "0");
        EXPECT_EQ(Stored(name, u"HelpContextID"), "") << "the default is not stored";
    }
    form.Select({});
    form.Type(u"Tag", "the form");
    EXPECT_EQ(Stored({}, u"Tag"), "\"the form\"");
    form.Type(u"HelpContextID", "7");
    EXPECT_EQ(Stored({}, u"HelpContextID"), "7");
}

TEST_F(PropertyBrowser, ALabelHasNoHelpForF1) {
    BrowsedForm label(
        FormWith("   Begin VB.Label L\n      Height = 300\n   End\n"
                 "   Begin VB.Timer T\n   End\n"
                 "   Begin VB.Line X\n      X2 = 300\n   End\n"));
    label.Select({u"L"});
    EXPECT_FALSE(label.Has(u"HelpContextID"));
    EXPECT_TRUE(label.Has(u"WhatsThisHelpID"));
    for (const TextView name : {u"T", u"X"}) {
        label.Select({Text(name)});
        EXPECT_FALSE(label.Has(u"WhatsThisHelpID"));
        EXPECT_TRUE(label.Has(u"Tag"));
    }
}

TEST_F(PropertyBrowser, WhatTheFileSaysOfAControlOfTheLibraryIsShown) {
    BrowsedForm memo(
        FormWith("   Begin lumenkit.VMemo M\n      Height = 300\n      ToolTipText = \"tip\"\n"
                 "      DragMode = 1\n      Odd = 3\n      Text = \"t\"\n   End\n"));
    memo.Select({u"M"});
    EXPECT_EQ(memo.Shown(u"ToolTipText"), "tip");
    EXPECT_EQ(memo.Shown(u"DragMode"), "1 - By mouse");
    EXPECT_EQ(memo.Shown(u"Odd"), "3");
    memo.Type(u"Odd", "4");
    memo.Type(u"ToolTipText", "other");
    EXPECT_THAT(memo.Saved(), HasSubstr("      ToolTipText = \"other\"\n"));
    EXPECT_THAT(memo.Saved(), HasSubstr("      Odd = 4\n"));
    EXPECT_THAT(memo.Saved(), HasSubstr("      Text = \"t\"\n"));
}

TEST_F(PropertyBrowser, TheClassesHaveTheirOtherProperties) {
    form.Select({u"Text1"});
    EXPECT_EQ(form.Shown(u"Appearance"), "1 - 3D");
    EXPECT_EQ(form.Shown(u"HideSelection"), "True");
    form.Choose(u"MousePointer", "11");
    EXPECT_EQ(Stored(u"Text1", u"MousePointer"), "11");
    EXPECT_EQ(form.Shown(u"MousePointer"), "11 - Hourglass");
    form.Select({});
    EXPECT_EQ(form.Shown(u"ShowInTaskbar"), "True");
    EXPECT_EQ(form.Shown(u"AutoRedraw"), "False");
}

TEST_F(PropertyBrowser, TheOthersMakeRoomInTheTabOrder) {
    form.Select({u"Text1"});
    form.Type(u"TabIndex", "1");
    EXPECT_EQ(Stored(u"Label1", u"TabIndex"), "0");
    EXPECT_EQ(Stored(u"Text1", u"TabIndex"), "1");
    EXPECT_EQ(Stored(u"Memo1", u"TabIndex"), "2");
    EXPECT_EQ(Stored(u"List1", u"TabIndex"), "3");
    form.Type(u"TabIndex", "-1");
    EXPECT_EQ(form.Message(), "TabIndex: Invalid property value");
    form.Type(u"TabIndex", "99");
    EXPECT_EQ(form.Shown(u"TabIndex"), "3");
}

// ---- Names

TEST_F(PropertyBrowser, AControlIsRenamed) {
    form.Select({u"Memo1"});
    form.Type(u"(Name)", "txtNotes");
    EXPECT_THAT(form.Saved(), HasSubstr("   Begin lumenkit.VMemo txtNotes\n"));
    EXPECT_EQ(form.design.SelectedNames(), std::vector<Text>{u"txtNotes"});
    EXPECT_EQ(form.browser->Heading(), "txtNotes  VMemo");
    form.Type(u"(Name)", "TXTNotes");
    EXPECT_EQ(form.design.SelectedNames(), std::vector<Text>{u"TXTNotes"}) << "in other letters";
    Undo();
    Undo();
    EXPECT_EQ(form.design.SelectedNames(), std::vector<Text>{u"Memo1"});
}

TEST_F(PropertyBrowser, NamesThatAreNoneAreRefused) {
    form.Select({u"Memo1"});
    const std::string before = form.Saved();
    for (const char* name : {"1st", "two words", "_x", "", "a-b"}) {
        form.Type(u"(Name)", name);
        EXPECT_THAT(form.Message(), HasSubstr("A name begins with a letter")) << name;
    }
    form.Type(u"(Name)", std::string(41, 'x'));
    EXPECT_THAT(form.Message(), HasSubstr("at most 40"));
    form.Type(u"(Name)", "form1");
    EXPECT_THAT(form.Message(), HasSubstr("The form itself has the name"));
    form.Type(u"(Name)", "LABEL1");
    EXPECT_THAT(form.Message(), HasSubstr("\"Label1\" is already a control of another class"));
    EXPECT_EQ(form.Saved(), before);
    EXPECT_EQ(form.Shown(u"(Name)"), "Memo1");
    form.Type(u"(Name)", std::string(40, 'x'));
    EXPECT_EQ(form.Message(), "");
}

TEST_F(PropertyBrowser, ControlsWithAnIndexShareAName) {
    BrowsedForm two(
        FormWith("   Begin lumenkit.VMemo A\n      Height = 300\n      Left = 0\n   End\n"
                 "   Begin lumenkit.VMemo B\n      Height = 300\n      Left = 900\n   End\n"));
    two.Select({u"B"});
    two.Type(u"(Name)", "A");
    EXPECT_THAT(two.Message(), HasSubstr("already a control \"A\". Give both an index"));
    two.Type(u"Index", "1");
    two.Select({u"A"});
    two.Type(u"Index", "0");
    two.Select({u"B(1)"});
    two.Type(u"(Name)", "A");
    EXPECT_EQ(two.Message(), "");
    EXPECT_EQ(two.design.SelectedNames(), std::vector<Text>{u"A(1)"});
    EXPECT_THAT(two.Saved(), HasSubstr("      Height = 300\n      Index           =   1\n"));
    two.Type(u"Index", "0");
    EXPECT_THAT(two.Message(), HasSubstr("already a control \"A(0)\""));
    two.Type(u"Index", "");
    EXPECT_THAT(two.Message(), HasSubstr("Give both an index"));
    two.Type(u"Index", "-1");
    EXPECT_THAT(two.Message(), HasSubstr("An index must be from 0 to 32767"));
    EXPECT_EQ(two.Shown(u"Index"), "1");
}

// ---- Plain controls and the form

TEST_F(PropertyBrowser, APlainControlShowsTheUsualPropertiesOfItsClass) {
    form.Select({u"Text1"});
    EXPECT_EQ(form.Shown(u"BackColor"), "Window background");
    EXPECT_EQ(form.Shown(u"ForeColor"), "Window text");
    EXPECT_EQ(form.Shown(u"MultiLine"), "False");
    EXPECT_EQ(form.Shown(u"ScrollBars"), "0 - None");
    EXPECT_EQ(form.Shown(u"Font"), "MS Sans Serif, 8.25 pt");
    EXPECT_EQ(form.Shown(u"Text"), "plain");
}

TEST_F(PropertyBrowser, APlainControlIsEditedInItsBlock) {
    form.Select({u"Text1"});
    form.Choose(u"MultiLine", "True");
    form.Type(u"ForeColor", "&HFF&");
    form.Type(u"MaxLength", "12.6");
    form.Choose(u"ScrollBars", "3");
    form.Type(u"Font", "Courier, 10 pt");
    EXPECT_THAT(form.Saved(),
                HasSubstr("   Begin VB.TextBox Text1\n      Height          =   375\n"));
    EXPECT_EQ(Stored(u"Text1", u"ForeColor"), "&H000000FF&");
    EXPECT_EQ(Stored(u"Text1", u"MaxLength"), "13");
    EXPECT_EQ(Stored(u"Text1", u"ScrollBars"), "3");
    EXPECT_THAT(form.Saved(),
                HasSubstr("BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}"));
    EXPECT_EQ(Steps(), 5);
    form.Type(u"MaxLength", "x");
    EXPECT_EQ(form.Message(), "MaxLength: Type mismatch");
    form.Type(u"MaxLength", "0");
    EXPECT_EQ(Stored(u"Text1", u"MaxLength"), "") << "as if nothing was said";
    while (form.design.History().canUndo()) {
        Undo();
    }
    EXPECT_EQ(form.Saved(), FormWith(controls).Write().form);
}

TEST_F(PropertyBrowser, WhatIsNotKnownIsShownAsItIsWritten) {
    BrowsedForm unknown(forms::Load(sampleForms / "unknown.frm"));
    unknown.Select({u"Thing1"});
    EXPECT_EQ(unknown.Shown(u"BLOB"), "(companion)");
    EXPECT_FALSE(unknown.CanEdit(u"BLOB"));
    EXPECT_EQ(unknown.Shown(u"Format"), "{6B263850-900B-11D0-9484-00A0C91110ED}");
    EXPECT_FALSE(unknown.CanEdit(u"Format"));
    EXPECT_EQ(unknown.Shown(u"Ratio"), "-0.5");
    EXPECT_EQ(unknown.Shown(u"Mask"), "255");
    EXPECT_EQ(unknown.Shown(u"Item(0)"), "zero");
    unknown.Type(u"Ratio", "0.25");
    EXPECT_THAT(unknown.Saved(), HasSubstr("Ratio           =   0.25\r\n"));
    EXPECT_FALSE(unknown.Has(u"_Version"));
}

TEST_F(PropertyBrowser, TheFormHasProperties) {
    EXPECT_EQ(form.Shown(u"(Name)"), "Form1");
    EXPECT_EQ(form.Shown(u"BackColor"), "Button face");
    form.Type(u"Caption", "Orders");
    EXPECT_EQ(form.design.View().Caption(), u"Orders");
    EXPECT_THAT(form.Saved(), HasSubstr("Begin VB.Form Form1\n"));
    form.Choose(u"BorderStyle", "3");
    EXPECT_EQ(Stored({}, u"BorderStyle"), "3");
    form.Type(u"ClientHeight", "-1");
    EXPECT_EQ(form.Message(), "ClientHeight: Invalid property value");
    EXPECT_EQ(form.Shown(u"ClientHeight"), "3000");
    Undo();
    Undo();
    EXPECT_EQ(form.Saved(), FormWith(controls).Write().form);
}

TEST_F(PropertyBrowser, TheFormIsRenamedWithItsAttribute) {
    BrowsedForm memo(forms::Load(sampleForms / "memo.frm"));
    memo.Type(u"(Name)", "frmNotes");
    EXPECT_EQ(memo.Message(), "");
    EXPECT_EQ(memo.browser->Heading(), "frmNotes  Form");
    EXPECT_THAT(memo.Saved(), HasSubstr("Begin VB.Form frmNotes \r\n"));
    EXPECT_THAT(memo.Saved(), HasSubstr("\r\nAttribute VB_Name = \"frmNotes\"\r\n"));
    memo.Type(u"(Name)", "VMemo1");
    EXPECT_THAT(memo.Message(), HasSubstr("VMemo1"));
    EXPECT_EQ(memo.Shown(u"(Name)"), "frmNotes");
}

TEST_F(PropertyBrowser, TheCoordinatesOfAFormFollowItsSize) {
    BrowsedForm sized(forms::Load(sampleForms / "memo.frm"));
    sized.Type(u"ClientHeight", "4000");
    EXPECT_THAT(sized.Saved(), HasSubstr("   ClientHeight    =   4000\r\n"));
    EXPECT_THAT(sized.Saved(), HasSubstr("   ScaleHeight     =   4000\r\n"));
    EXPECT_THAT(sized.Saved(), HasSubstr("   ScaleWidth      =   4680\r\n"));
}

TEST_F(PropertyBrowser, EverySampleCanBeLookedAtWithoutBeingChanged) {
    for (const auto& entry : std::filesystem::directory_iterator(sampleForms)) {
        if (entry.path().extension() != ".frm" || entry.path().stem() == "polish" ||
            entry.path().stem() == "cyrillic") {
            continue;
        }
        BrowsedForm sample(forms::Load(entry.path()));
        const std::string before = sample.Saved();
        for (const auto& control : sample.design.View().Controls()) {
            sample.design.Select({control.get()});
            EXPECT_TRUE(sample.Has(u"(Name)"));
        }
        EXPECT_EQ(sample.Saved(), before) << entry.path();
    }
}

// ---- Keys

TEST_F(PropertyBrowser, TheRowStaysWhenTheSelectionIsAnother) {
    form.Select({u"Label1"});
    lumenform::PropertyTable& table = form.browser->Table();
    table.GoTo(form.Row(u"Font"));
    form.Select({u"Memo1"});
    EXPECT_EQ(table.currentIndex().row(), form.Row(u"Font"));
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(table.currentIndex().row(), form.Row(u"Font") + 1);
    QTest::keyClick(&table, Qt::Key_Up);
    QTest::keyClick(&table, Qt::Key_Home);
    EXPECT_EQ(table.currentIndex().row(), 0);
}

TEST_F(PropertyBrowser, EditorsHaveTheNamesOfTheirProperties) {
    form.Select({u"Memo1"});
    form.browser->Edit(u"MaxLines");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "MaxLines");
    EXPECT_EQ(QApplication::focusWidget()->accessibleDescription(),
              "Maximum number of lines allowed");
}

}  // namespace
}  // namespace lumenkit::testing
