// Forms on the screen: the places of controls, their look, and the saved form.
#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>

#include "forms/file.h"
#include "forms/form_error.h"
#include "runtime/qt/palette_color.h"
#include "tests/apps/lumenform/loaded_view.h"
#include "tests/support/file_bytes.h"
#include "tests/support/qt_keys.h"

namespace lumenkit::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::HasSubstr;

bool IsForm(const fs::path& path) {
    const std::string extension = path.extension().string();
    return extension == ".frm" || extension == ".ctl" || extension == ".pag" || extension == ".dob";
}

int CodePageOf(const fs::path& path) {
    return path.stem() == "polish"     ? 1250
           : path.stem() == "cyrillic" ? 1251
                                       : forms::guessedCodePage;
}

// Returns the first warning of a form.
std::string MessageOf(const std::string& inner) {
    const LoadedView view(FormWith(inner));
    EXPECT_THAT(view.document.Write().form, HasSubstr(inner));
    const std::vector<forms::Warning> warnings = view.document.Warnings();
    return warnings.empty() ? ""
                            : forms::FormError(view.document.Name(), warnings.front().place,
                                               warnings.front().text)
                                  .what();
}

TEST(FormView, TheMnemonicOfALabelLeadsToTheNextControlOfAnyKind) {
    const LoadedView view(forms::Load(sampleForms / "order.frm"));
    QTest::keyClick(view.window.focusWidget(), Qt::Key_Y, Qt::AltModifier);
    EXPECT_EQ(view.window.focusWidget(), &view.Control(u"txtName").Widget());
    QTest::keyClick(view.window.focusWidget(), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(view.Control(u"memPrint").Widget().isAncestorOf(view.window.focusWidget()));
}

TEST(FormView, EverySampleOpensAndIsSavedAsItWas) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(sampleForms)) {
        if (!IsForm(entry.path())) {
            continue;
        }
        for (const lumenform::Mode mode : {lumenform::Mode::Run, lumenform::Mode::Design}) {
            LoadedView view(forms::Load(entry.path(), CodePageOf(entry.path())), mode);
            EXPECT_EQ(view.Saved(), FileBytes(entry.path())) << entry.path();
            EXPECT_TRUE(view.surface.interaction.said.empty()) << entry.path();
            EXPECT_TRUE(view.surface.errors.empty()) << entry.path();
        }
        ++count;
    }
    EXPECT_GE(count, 25);
}

TEST(FormView, LiesAsTheFileSays) {
    const LoadedView view(forms::Load(sampleForms / "all_three.frm"));
    EXPECT_EQ(view.view->Caption(), u"All three");
    EXPECT_EQ(view.view->Client().size(), QSize(312, 213));
    const QWidget& memo = view.Control(u"VMemo1").Widget();
    EXPECT_EQ(memo.geometry(), QRect(160, 16, 145, 185));
    const QWidget& label = view.Control(u"VLabel1").Widget();
    EXPECT_EQ(label.mapTo(&view.view->Client(), QPoint(0, 0)), QPoint(8 + 8, 8 + 16));
    EXPECT_EQ(label.parentWidget(), &view.Control(u"picInner").Inside().widget);
}

TEST(FormView, TheFirstInTheFileIsInFrontAndLabelsAreBehind) {
    const LoadedView view(
        FormWith("   Begin VB.Label L\n Width = 900\n Height = 900\n End\n"
                 "   Begin VB.PictureBox First\n Width = 900\n Height = 900\n End\n"
                 "   Begin lumenkit.VMemo Second\n Width = 900\n Height = 900\n End\n"));
    lumenform::ClientArea& client = view.view->Client();
    EXPECT_TRUE(view.Control(u"First").Widget().isAncestorOf(client.childAt(30, 30)));
    view.Control(u"First").Widget().hide();
    EXPECT_TRUE(view.Control(u"Second").Widget().isAncestorOf(client.childAt(30, 30)));
}

TEST(FormView, HasItsColour) {
    const LoadedView view(FormWith("   BackColor = &H00C08040&\n"));
    const QImage picture = view.view->grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() / 2, picture.height() / 2),
              QColor(0x40, 0x80, 0xC0));
}

TEST(FormView, ControlsSeeTheColourAndFontOfWhatTheyLieIn) {
    const LoadedView view(
        FormWith("   Begin VB.Frame F\n BackColor = &H000000FF&\n Width = 3000\n Height = 2000\n"
                 "      BeginProperty Font\n Name = \"Arial\"\n Size = 12\n EndProperty\n"
                 "      Begin lumenkit.VLabel A\n Width = 900\n Height = 900\n End\n"
                 "   End\n"));
    const qt::HostedControl& label = *view.Control(u"A").Hosted();
    EXPECT_EQ(label.Host().ambient.BackColor(), Rgb(255, 0, 0));
    EXPECT_EQ(label.Host().ambient.AmbientFont()->Name(), u"Arial");
    EXPECT_EQ(label.Host().ambient.AmbientFont()->Size(), 12.0F);
}

TEST(FormView, ControlsInAColouredContainerHaveTheirOwnColours) {
    const LoadedView view(
        FormWith("   Begin VB.Frame F\n BackColor = &H000000FF&\n ForeColor = &H0000FF00&\n"
                 " Width = 3000\n Height = 2000\n"
                 "      Begin VB.TextBox T\n End\n"
                 "      Begin VB.Label L\n End\n"
                 "      Begin VB.CheckBox C\n End\n"
                 "      Begin VB.CommandButton B\n End\n"
                 "      Begin lumenkit.VMemo M\n End\n"
                 "   End\n"));
    const QPalette usual = QApplication::palette();
    const auto expectUsual = [&](const QWidget& widget, QPalette::ColorRole role) {
        EXPECT_EQ(widget.palette().color(role), usual.color(role)) << role;
    };
    EXPECT_EQ(view.Control(u"F").Widget().palette().color(QPalette::Window), QColor(Qt::red));
    expectUsual(view.Control(u"T").Widget(), QPalette::Base);
    expectUsual(view.Control(u"T").Widget(), QPalette::Text);
    expectUsual(view.Control(u"L").Widget(), QPalette::Window);
    expectUsual(view.Control(u"L").Widget(), QPalette::WindowText);
    expectUsual(view.Control(u"C").Widget(), QPalette::Window);
    expectUsual(view.Control(u"B").Widget(), QPalette::ButtonText);
    expectUsual(view.Part(u"M", u"Text1"), QPalette::Base);
    expectUsual(view.Part(u"M", u"Text1"), QPalette::Text);
}

TEST(FormView, HiddenControlsAreSeenInDesignOnly) {
    const std::string inner =
        "   Begin lumenkit.VMemo A\n Visible = 0 'False\n End\n"
        "   Begin VB.TextBox B\n Visible = 0 'False\n End\n"
        "   Begin VB.Timer T\n End\n"
        "   Begin Some.Component C\n Left = 1\n End\n"
        "   Begin Some.Gauge D\n Left = 1\n Width = 100\n End\n";
    const LoadedView run(FormWith(inner));
    const LoadedView design(FormWith(inner), lumenform::Mode::Design);
    for (const TextView name : {u"A", u"B", u"T", u"C"}) {
        EXPECT_FALSE(run.Control(name).Widget().isVisible());
        EXPECT_TRUE(design.Control(name).Widget().isVisible());
    }
    EXPECT_TRUE(run.Control(u"D").Widget().isVisible());
}

TEST(FormView, ControlsHaveTheirNamesAndTags) {
    const LoadedView view(
        FormWith("   Begin lumenkit.VMemo M\n Index = 2\n Tag = \"mine\"\n End\n"
                 "   Begin lumenkit.VMemo M\n Index = 0\n End\n"));
    EXPECT_EQ(view.Control(u"m(2)").Hosted()->Tag(), u"mine");
    EXPECT_EQ(view.Control(u"M(0)").Hosted()->Name(), u"M(0)");
}

TEST(FormView, AMemoHoldsItsLimitUnderTheKeys) {
    LoadedView view(
        FormWith("   Begin lumenkit.VMemo M\n      Height = 900\n      Width = 2000\n"
                 "      MaxCharsPerLine = 3\n      MaxLines = 1\n   End\n"));
    QWidget& box = view.Part(u"M", u"Text1");
    box.setFocus();
    TypeKeys(box, u"abcdef");
    EXPECT_EQ(ToText(view.Control(u"M").Hosted()->Automation().Get(u"Text")), u"abc");
    EXPECT_THAT(view.raised, Contains("M.Change"));
    EXPECT_THAT(view.Saved(), HasSubstr("      Text            =   \"abc\"\n"));
}

TEST(FormView, WritesOnlyWhatWasChanged) {
    const std::string inner =
        "   Begin lumenkit.VLabel A\n      caption=\"x\" ' mine\n      WordWrap=1\n"
        "      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}\n"
        "         Name=\"Arial\"\n         Size=9\n         Charset=0\n         Weight=400\n"
        "         Underline=0\n         Italic=0\n         Strikethrough=0\n      EndProperty\n   "
        "End\n"
        "   Begin VB.TextBox B\n      Left=15\n      Width=300\n   End\n";
    LoadedView view(FormWith(inner));
    const std::string before = view.Saved();
    ToObject(view.Control(u"A").Hosted()->Automation().Get(u"Font"))->Let(u"Size", 12.0F);
    view.Control(u"B").Move({.left = 30, .top = 0, .width = 300, .height = 495});
    std::string expected = before;
    expected.replace(expected.find("Size=9"), 6, "Size=12");
    expected.replace(expected.find("Left=15"), 7, "Left=30");
    EXPECT_EQ(view.Saved(), expected);
    EXPECT_EQ(view.Saved(), expected) << "again";
}

TEST(FormView, AMovedControlSavesItsExtents) {
    LoadedView view(
        FormWith("   Begin lumenkit.VLabel A\n      Height=1440\n      Width=1440\n"
                 "      _ExtentX=2540\n      _ExtentY=2540\n   End\n"));
    view.Control(u"A").Move({.left = 0, .top = 0, .width = 2880, .height = 1440});
    const std::string saved = view.Saved();
    EXPECT_THAT(saved, HasSubstr("      Width=2880\n      _ExtentX=5080\n      _ExtentY=2540\n"));
}

TEST(FormView, OpensWithOddValuesAndTellsWhereTheyAre) {
    EXPECT_EQ(MessageOf("   Begin lumenkit.VLabel A\n      Left = \"far\"\n   End\n"),
              "x.frm:6:14: Left: Type mismatch");
    EXPECT_EQ(MessageOf("   Begin VB.TextBox A\n      Enabled = \"maybe\"\n   End\n"),
              "x.frm:6:17: Enabled: Type mismatch");
    EXPECT_EQ(MessageOf("   Begin lumenkit.VLabel A\n      Width = -1\n   End\n"),
              "x.frm:6:15: Width: Invalid property value");
    EXPECT_EQ(MessageOf("   Begin VB.Label A\n      Width = -1\n   End\n"),
              "x.frm:6:15: Width: Invalid property value");
    EXPECT_EQ(MessageOf("   Begin VB.Label A\n      TabIndex = 4000000000\n   End\n"),
              "x.frm:6:18: TabIndex: Overflow");
    EXPECT_EQ(MessageOf("   Begin VB.Label A\n      Left = 1E+300\n   End\n"),
              "x.frm:6:14: Left: Overflow");
    EXPECT_EQ(MessageOf("   Begin lumenkit.VMemo A\n      Font = 4\n   End\n"),
              "x.frm:6:14: Font: expected a font");
    EXPECT_EQ(MessageOf("   Begin Some.Grid A\n      ColumnWidth = 764,787\n   End\n"),
              "x.frm:6:24: expected the end of the line, found ,787");
    EXPECT_EQ(MessageOf("   Begin VB.Label A\n      BeginProperty Font\n         Size = 8,25\n"
                        "      EndProperty\n   End\n"),
              "x.frm:6:21: Font: Type mismatch");
    EXPECT_EQ(MessageOf("   BackColor = \"red\"\n"), "x.frm:5:16: BackColor: Type mismatch");
    EXPECT_EQ(MessageOf("   Begin VB.Label A\n   End\n"), "");
}

TEST(FormView, ShowsTheOtherValuesOfAControlWithOddOnes) {
    const std::string inner =
        "   Begin lumenkit.VLabel A\n      Caption = \"fine\"\n      Height = 600\n"
        "      Left = \"far\"\n      Top = 300\n      Width = -1\n      WordWrap = 0\n"
        "      Font = \"x.frx\":0030\n      BulletPrefix = \"x.frx\":0040\n   End\n"
        "   Begin lumenkit.VMemo M\n      TabIndex = -4\n      Text = $\"x.frx\":0000\n"
        "      Height = 600\n      Width = 900\n   End\n";
    LoadedView view(FormWith(inner));
    const std::string before = view.Saved();
    EXPECT_THAT(before, HasSubstr(inner));
    Object& label = view.Control(u"A").Hosted()->Automation();
    EXPECT_EQ(ToText(label.Get(u"Caption")), u"fine");
    EXPECT_FALSE(ToBoolean(label.Get(u"WordWrap")));
    EXPECT_EQ(view.Control(u"A").Place().top, 300);
    EXPECT_EQ(view.Control(u"A").Place().height, 600);
    EXPECT_GT(view.Control(u"A").Place().width, 0);
    EXPECT_FALSE(view.Control(u"M").TabIndex());
    EXPECT_EQ(ToText(view.Control(u"M").Hosted()->Automation().Get(u"Text")), u"");
    EXPECT_TRUE(view.surface.interaction.said.empty());
    view.Control(u"M").Move({.left = 15, .top = 0, .width = 900, .height = 600});
    EXPECT_THAT(view.Saved(), HasSubstr("Text = $\"x.frx\":0000\n"));
}

TEST(FormView, FollowsThePalette) {
    const LoadedView view(FormWith("   Begin VB.Label A\n      ForeColor = &H80000005&\n   End\n"));
    const QPalette before = QApplication::palette();
    QPalette other = before;
    other.setColor(QPalette::Base, QColor(1, 2, 3));
    QApplication::setPalette(other);
    QApplication::processEvents();
    EXPECT_EQ(view.Control(u"A").Widget().palette().color(QPalette::WindowText), QColor(1, 2, 3));
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace lumenkit::testing
