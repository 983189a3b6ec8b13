// Controls of other libraries that are shown as likenesses: they look like the controls and do
// nothing.
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QHeaderView>
#include <QImage>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSlider>
#include <QTest>
#include <QTreeWidget>
#include <map>
#include <set>
#include <sstream>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/labelled_box.h"
#include "apps/lumenform/form_view/likeness/likeness_table.h"
#include "apps/lumenform/form_view/likeness/list_pictures.h"
#include "apps/lumenform/form_view/likeness/rtf_text.h"
#include "forms/file.h"
#include "frame/utf8.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/file_bytes.h"
#include "tests/support/rows.h"

namespace lumenkit::testing {
namespace {

using lumenform::Mode;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

template <typename T>
T& Drawn(const LoadedView& view, TextView name) {
    return dynamic_cast<T&>(view.Control(name).Widget());
}

struct NamedClass {
    const lumenform::LikenessRow& row;
    std::string name;  // with a library: "MSComctlLib.Slider"
    std::string control;
};

// Returns all rows with each of their libraries.
std::vector<NamedClass> AllClasses() {
    std::vector<NamedClass> classes;
    for (const lumenform::LikenessRow& row : lumenform::LikenessRows()) {
        std::istringstream libraries(ToUtf8(row.libraries));
        for (std::string library; libraries >> library;) {
            classes.push_back({row, library + '.' + ToUtf8(row.kind.className),
                               'X' + std::to_string(classes.size())});
        }
    }
    return classes;
}

std::string LikenessBlock(const NamedClass& named, const std::string& properties) {
    return "   Begin " + named.name + ' ' + named.control + '\n' + properties + "   End\n";
}

constexpr const char* likenessSize = "      Height = 1500\n      Width = 3000\n";

// Returns the lines of a control for each class.
std::string AllLikenesses() {
    std::string blocks;
    for (const NamedClass& named : AllClasses()) {
        blocks += LikenessBlock(named, named.row.kind.isSeen ? likenessSize : "");
    }
    return blocks;
}

QWidget& WidgetOf(const LoadedView& view, const NamedClass& named) {
    return view.Control(Text(named.control.begin(), named.control.end())).Widget();
}

std::size_t ColorsIn(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    std::set<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colors.insert(picture.pixel(x, y));
        }
    }
    return colors.size();
}

TEST(Likeness, EveryRowShowsSomethingInTheDesignerThatIsNoPlaceholder) {
    const LoadedView view(FormWith(AllLikenesses()), Mode::Design);
    for (const NamedClass& named : AllClasses()) {
        QWidget& widget = WidgetOf(view, named);
        EXPECT_EQ(dynamic_cast<lumenform::LabelledBox*>(&widget), nullptr) << named.name;
        EXPECT_TRUE(widget.isVisible()) << named.name;
        EXPECT_EQ(widget.accessibleName().toStdString(), named.control) << named.name;
        EXPECT_EQ(widget.size(), named.row.kind.isSeen ? QSize(200, 100) : QSize(28, 28))
            << named.name;
        EXPECT_GE(ColorsIn(widget), 2U) << named.name;
    }
    EXPECT_THAT(view.document.Warnings(), IsEmpty());
}

TEST(Likeness, ClassesThatProgramsDoNotShowAreIconsOnlyInTheDesigner) {
    const LoadedView view(FormWith(AllLikenesses()));
    std::set<std::string> hidden;
    for (const NamedClass& named : AllClasses()) {
        EXPECT_EQ(WidgetOf(view, named).isVisible(), named.row.kind.isSeen) << named.name;
        if (!named.row.kind.isSeen) {
            hidden.insert(ToUtf8(named.row.kind.className));
        }
    }
    EXPECT_THAT(hidden, ElementsAre("CommonDialog", "ImageList", "Inet", "MSComm", "PictureClip",
                                    "Timer", "Winsock"));
}

TEST(Likeness, ShowingChangesNothingInTheFile) {
    std::string blocks;
    for (const NamedClass& named : AllClasses()) {
        blocks += LikenessBlock(named, "      Align = 2\n");
    }
    for (const Mode mode : {Mode::Run, Mode::Design}) {
        LoadedView view(FormWith(blocks), mode);
        EXPECT_THAT(view.Saved(), HasSubstr(blocks));
    }
}

TEST(Likeness, AClassHasOneWithAnyCaseAndVersion) {
    for (const TextView className :
         {u"MSComctlLib.ListView", u"ComctlLib.ListView", u"mscomctllib.listview",
          u"MSComctlLib.ListViewCtrl", u"MSComctlLib.ListViewCtrl.2", u"ComctlLib.ListView2"}) {
        EXPECT_EQ(lumenform::LikenessOf(className), lumenform::LikenessOf(u"ComctlLib.ListView"));
        EXPECT_NE(lumenform::LikenessOf(className), nullptr) << ToUtf8(className);
    }
    for (const TextView className : {u"Other.ListView", u"ListView", u"MSComctlLib.ListViewer",
                                     u"MSComctlLib.", u".Timer", u"", u"VB.TimerTimer"}) {
        EXPECT_EQ(lumenform::LikenessOf(className), nullptr) << ToUtf8(className);
    }
    const LoadedView view(FormWith("   Begin Other.ListView X\n Width = 900\n End\n"));
    EXPECT_NE(dynamic_cast<lumenform::LabelledBox*>(&view.Control(u"X").Widget()), nullptr);
}

// ---- The properties that likenesses show

TEST(Likeness, AListHasTheColumnsOfTheFile) {
    const LoadedView view(forms::Load(sampleForms / "likeness_lists.frm"));
    const auto& details = Drawn<QTreeWidget>(view, u"lvwFiles");
    ASSERT_EQ(details.columnCount(), 3);
    EXPECT_FALSE(details.isHeaderHidden());
    EXPECT_EQ(details.headerItem()->text(0), "Name");
    EXPECT_EQ(details.headerItem()->text(2), "Changed");
    EXPECT_EQ(details.header()->sectionSize(0), 96) << "an inch";
    EXPECT_TRUE(Drawn<QTreeWidget>(view, u"lvwIcons").isHeaderHidden());
}

TEST(Likeness, BoxesHaveTheTextsOfTheFile) {
    const LoadedView view(forms::Load(sampleForms / "likeness_texts.frm"));
    EXPECT_EQ(Drawn<QPlainTextEdit>(view, u"rtfNote").toPlainText(), "Café bold\nsecond line");
    EXPECT_EQ(Drawn<QPlainTextEdit>(view, u"rtfLetter").toPlainText(),
              "Dear reader,\n\nthis text is in the companion file: €\t12.50");
    EXPECT_EQ(Drawn<QLineEdit>(view, u"mskDate").text(), "__/__/____");
    EXPECT_EQ(Drawn<QLineEdit>(view, u"mskPhone").text(), "555-0123");
    EXPECT_EQ(Drawn<QDateTimeEdit>(view, u"dtpDay").text(), "2003-01-01");
    EXPECT_EQ(Drawn<QDateTimeEdit>(view, u"dtpTime").text(), "18:00:00");
    EXPECT_EQ(Drawn<QDateTimeEdit>(view, u"dtpOwn").text(), "01.01.2003");
}

TEST(Likeness, RangesShowTheirValue) {
    const LoadedView view(
        FormWith("   Begin MSComctlLib.ProgressBar P\n Min = 10\n Max = 20\n Value = 15\n End\n"
                 "   Begin MSComctlLib.Slider S\n Orientation = 1\n Value = 2\n End\n"));
    const auto& bar = Drawn<QProgressBar>(view, u"P");
    EXPECT_EQ(2 * (bar.value() - bar.minimum()), bar.maximum() - bar.minimum());
    const auto& slider = Drawn<QSlider>(view, u"S");
    EXPECT_EQ(slider.orientation(), Qt::Vertical);
    EXPECT_EQ(5 * (slider.value() - slider.minimum()), slider.maximum() - slider.minimum());
}

TEST(Likeness, ToolBarsFindThePicturesOfTheirImageList) {
    const forms::Document document = forms::Load(sampleForms / "likeness_bars.frm");
    forms::Block* bar = nullptr;
    for (forms::Block* control : document.Root().Controls()) {
        bar = control->Name() == u"tlbMain" ? control : bar;
    }
    ASSERT_NE(bar, nullptr);
    lumenform::ListPictures pictures(lumenform::BlockReader(document, *bar));
    forms::Block& buttons = *bar->FindGroup(u"Buttons");
    const auto picture = [&](TextView button) {
        const lumenform::BlockReader reader(document, *buttons.FindGroup(button));
        return pictures.Of(reader, u"ImageIndex", u"ImageKey");
    };
    EXPECT_EQ(picture(u"Button1").toImage().pixelColor(8, 8), QColor(0, 80, 200));
    EXPECT_EQ(picture(u"Button2").toImage().pixelColor(8, 8), QColor(0, 160, 0)) << "by key";
    EXPECT_TRUE(picture(u"Button3").isNull());
}

struct RichTextWords : ::testing::TestWithParam<Row<TextView, TextView>> {};

TEST_P(RichTextWords, AreWithoutMarkup) {
    EXPECT_EQ(lumenform::WordsOfRichText(GetParam().input, 1252), GetParam().expected);
}

constexpr Row<TextView, TextView> richTexts[] = {
    {"PlainTextStays", u"a {b} \\c", u"a {b} \\c"},
    {"GroupsAndWords", u"{\\rtf1 a{\\b b}c}", u"abc"},
    {"TablesAreSilent", u"{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\*\\generator x;}a}", u"a"},
    {"Paragraphs", u"{\\rtf1 a\\par b\\line\r\n c\\par }", u"a\nb\n c"},
    {"Escapes", u"{\\rtf1 \\{\\\\\\}\\~\\tab.}", u"{\\}\u00A0\t."},
    {"Bytes", u"{\\rtf1 \\'e4\\'80\\'zz}", u"ä€zz"},
    {"Units", u"{\\rtf1\\u8364?\\u-3?{\\uc0\\u228}x}", u"€\uFFFDäx"},
    {"CutInAWord", u"{\\rtf1 a\\pa", u"a"},
    {"CutInAByte", u"{\\rtf1 a\\'4", u"a4"},
    {"CutAfterABackslash", u"{\\rtf1 a\\", u"a"},
    {"NothingAfterTheEnd", u"{\\rtf1 a}}}b{", u"a"},
    {"HugeNumber", u"{\\rtf1\\fs99999999999999999999 a}", u"a"},
};
INSTANTIATE_TEST_SUITE_P(Texts, RichTextWords, ::testing::ValuesIn(richTexts), RowName());

TEST(Likeness, ScreenReadersGetItsRole) {
    const LoadedView view(FormWith(AllLikenesses()));
    const std::map<TextView, QAccessible::Role> roles = {
        {u"DataCombo", QAccessible::ComboBox},      {u"DataList", QAccessible::List},
        {u"MaskEdBox", QAccessible::EditableText},  {u"MSFlexGrid", QAccessible::Table},
        {u"ProgressBar", QAccessible::ProgressBar}, {u"RichTextBox", QAccessible::EditableText},
        {u"Slider", QAccessible::Slider},           {u"SSTab", QAccessible::PageTabList},
        {u"StatusBar", QAccessible::StatusBar},     {u"Toolbar", QAccessible::ToolBar},
        {u"TreeView", QAccessible::Tree},           {u"UpDown", QAccessible::SpinBox}};
    std::size_t found = 0;
    for (const NamedClass& named : AllClasses()) {
        if (const auto role = roles.find(named.row.kind.className); role != roles.end()) {
            EXPECT_EQ(QAccessible::queryAccessibleInterface(&WidgetOf(view, named))->role(),
                      role->second)
                << named.name;
            ++found;
        }
    }
    EXPECT_GE(found, roles.size());
}

// ---- Likenesses do nothing

TEST(Likeness, TakesTheFocusButNoInput) {
    const LoadedView view(
        FormWith("   Begin VB.CommandButton Ok\n Default = -1 'True\n TabIndex = 0\n End\n"
                 "   Begin RichTextLib.RichTextBox R\n Text = \"abc\"\n TabIndex = 1\n"
                 " Height = 900\n Width = 1500\n Top = 600\n End\n"
                 "   Begin MSComctlLib.Slider S\n Value = 2\n TabIndex = 2\n Top = 1800\n"
                 " Height = 600\n Width = 1500\n End\n"
                 "   Begin VB.DriveListBox D\n TabIndex = 3\n Left = 2000\n End\n"
                 "   Begin MSDataListLib.DataCombo C\n TabIndex = 4\n Left = 2000\n Top = 600\n"
                 " Text = \"Berlin\"\n End\n"));
    auto& slider = Drawn<QSlider>(view, u"S");
    auto& drives = Drawn<QComboBox>(view, u"D");
    const int value = slider.value();
    for (const TextView name : {u"R", u"S", u"D", u"C"}) {
        QWidget& widget = view.Control(name).Widget();
        QTest::mouseClick(&widget, Qt::LeftButton);
        EXPECT_TRUE(widget.hasFocus());
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_F4}) {
            QTest::keyClick(&widget, key);
        }
    }
    EXPECT_EQ(Drawn<QPlainTextEdit>(view, u"R").toPlainText(), "abc");
    QInputMethodEvent committing;
    committing.setCommitString(QStringLiteral("x"));
    auto& combo = Drawn<QComboBox>(view, u"C");
    QApplication::sendEvent(combo.lineEdit(), &committing);
    EXPECT_EQ(combo.currentText(), "Berlin");
    EXPECT_EQ(slider.value(), value);
    EXPECT_FALSE(drives.view()->isVisible());
    EXPECT_THAT(view.raised, IsEmpty());
    QTest::keyClick(&slider, Qt::Key_Return);
    EXPECT_THAT(view.raised, ElementsAre("Ok.Click"));
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_Tab);
    EXPECT_TRUE(drives.hasFocus());
}

TEST(Likeness, TheMnemonicOfALabelLeadsToIt) {
    const LoadedView view(forms::Load(sampleForms / "likeness_texts.frm"));
    QWidget& first = view.Control(u"rtfNote").Widget();
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(view.Control(u"mskDate").Widget().hasFocus());
    EXPECT_EQ(view.Control(u"mskDate").Widget().accessibleName(), "Date:");
}

// ---- Docking

// The form has 300 by 200 pixels.
TEST(Docking, BarsLieAlongTheEdgesOfTheForm) {
    LoadedView view(
        FormWith("   Begin MSComctlLib.StatusBar S\n Align = 2\n Height = 300\n Width = 90\n"
                 " Top = 15\n End\n"
                 "   Begin MSComctlLib.Toolbar Second\n Align = 1\n Height = 450\n Top = 300\n"
                 " End\n"
                 "   Begin MSComctlLib.Toolbar First\n Align = 1\n Height = 300\n End\n"
                 "   Begin MSComctlLib.Toolbar Gone\n Align = 1\n Height = 300\n"
                 " Visible = 0 'False\n End\n"
                 "   Begin VB.PictureBox P\n Align = 3\n Width = 600\n End\n"
                 "   Begin MSAdodcLib.Adodc R\n Align = 4\n Width = 750\n End\n"
                 "   Begin MSComctlLib.Toolbar Free\n Left = 900\n Top = 1500\n Width = 600\n"
                 " Height = 300\n End\n"));
    const auto place = [&](TextView name) { return view.Control(name).Widget().geometry(); };
    EXPECT_EQ(place(u"First"), QRect(0, 0, 300, 20));
    EXPECT_EQ(place(u"Second"), QRect(0, 20, 300, 30));
    EXPECT_EQ(place(u"S"), QRect(0, 180, 300, 20));
    EXPECT_EQ(place(u"P"), QRect(0, 50, 40, 130));
    EXPECT_EQ(place(u"R"), QRect(250, 50, 50, 130));
    EXPECT_EQ(place(u"Free"), QRect(60, 100, 40, 20));
    const std::string before = view.document.Write().form;
    EXPECT_EQ(view.Saved(), before);
}

TEST(Docking, AMovedBarSavesOnlyWhatHasChanged) {
    LoadedView view(FormWith("   Begin MSComctlLib.StatusBar S\n      Align = 2\n"
                             "      Height = 300\n      Top = 15\n   End\n"),
                    Mode::Design);
    host::Placement place = view.Control(u"S").Place();
    EXPECT_EQ(place, (host::Placement{0, 2700, 4500, 300}));
    place.height = 450;
    view.Control(u"S").Move(place);
    EXPECT_THAT(view.Saved(), HasSubstr("      Height = 450\n      Top = 15\n   End\n"));
}

// ---- Odd values

// Returns lines in which all numbers that likenesses read have the same value.
std::string LinesWith(const std::string& number) {
    std::string lines = likenessSize;
    for (const char* name :
         {"Rows",         "Cols",        "FixedRows",   "FixedCols",      "RowHeightMin",
          "Min",          "Max",         "Value",       "TickFrequency",  "TickStyle",
          "Orientation",  "Style",       "View",        "Tabs",           "Tab",
          "TabsPerRow",   "TabHeight",   "TabMaxWidth", "TabOrientation", "ButtonWidth",
          "ButtonHeight", "CurrentDate", "Format",      "ScrollBars",     "BorderStyle",
          "Align",        "Placement"}) {
        lines += std::string("      ") + name + " = " + number + '\n';
    }
    const auto group = [](const std::string& name, const std::string& inner) {
        return "      BeginProperty " + name + '\n' + inner + "      EndProperty\n";
    };
    const std::string item = "      Object.Width = " + number + "\n      Alignment = " + number +
                             "\n      Style = " + number + "\n      ImageIndex = " + number + '\n';
    return lines + group("Panels", group("Panel1", item)) +
           group("Buttons", group("Button1", item)) + group("ColumnHeader(1)", item);
}

TEST(Likeness, DrawsWhateverNumbersTheFileHas) {
    for (const char* number : {"-1", "0", "2147483647", "-2147483648", "1E+30", "-1E+30"}) {
        std::string blocks;
        for (const NamedClass& named : AllClasses()) {
            blocks += LikenessBlock(named, LinesWith(number));
        }
        LoadedView view(FormWith(blocks), Mode::Design);
        for (const NamedClass& named : AllClasses()) {
            EXPECT_FALSE(WidgetOf(view, named).grab().isNull()) << named.name << ' ' << number;
        }
        EXPECT_THAT(view.Saved(), HasSubstr(blocks));
    }
}

}  // namespace
}  // namespace lumenkit::testing
