// User controls of the same program, drawn from the files beside the form.
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>

#include "apps/lumenform/form_view/labelled_box.h"
#include "apps/lumenform/form_view/likeness/user_control_files.h"
#include "apps/lumenform/form_view/likeness/user_control_picture.h"
#include "forms/file.h"
#include "tests/apps/lumenform/loaded_view.h"

namespace lumenkit::testing {
namespace {

namespace fs = std::filesystem;
using lumenform::LabelledBox;
using lumenform::Mode;
using lumenform::UserControlPicture;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const QColor gaugeGreen(0x20, 0xC0, 0x40);

// A folder of a program's files.
class ProgramFolder {
 public:
    void Add(const std::string& name, const std::string& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
    }
    /// Adds a user control with a green background.
    void AddControl(const std::string& name, const std::string& inner = "") const {
        Add(name + ".ctl", "VERSION 5.00\nBegin VB.UserControl " + name +
                               " \n   BackColor = &H0040C020&\n   ClientHeight = 1500\n"
                               "   ClientWidth = 1500\n" +
                               inner + "End\nAttribute VB_Name = \"" + name + "\"\n");
    }
    /// Loads a form with these lines from the folder.
    forms::Document Form(const std::string& inner) const {
        Add("form.frm",
            "VERSION 5.00\nBegin VB.Form F\n   ClientHeight = 3000\n   ClientWidth = 4500\n" +
                inner + "End\n");
        return forms::Load(Path("form.frm"));
    }
    fs::path Path(const std::string& name) const {
        return fs::path(folder_.path().toStdString()) / name;
    }

 private:
    QTemporaryDir folder_;
};

std::string Instance(const std::string& className, const std::string& name) {
    return "   Begin " + className + ' ' + name +
           "\n      Height = 600\n      Left = 300\n      Top = 300\n      Width = 1200\n   End\n";
}

template <typename T>
bool IsA(const LoadedView& view, TextView name) {
    return dynamic_cast<T*>(&view.Control(name).Widget()) != nullptr;
}

QColor SeenColor(const LoadedView& view, QPoint at) {
    const QPixmap picture = view.view->Client().grab();
    const double ratio = picture.devicePixelRatio();
    return picture.toImage().pixelColor((QPointF(at) * ratio).toPoint());
}

TEST(UserControl, IsDrawnFromItsFileAtTheSizeOnTheForm) {
    const ProgramFolder program;
    program.AddControl("Gauge",
                       "   Begin VB.Shape S\n      BackColor = &H000000FF&\n      BackStyle = 1\n"
                       "      BorderStyle = 0\n      Height = 150\n      Left = 150\n"
                       "      Top = 150\n      Width = 150\n   End\n");
    for (const char* className : {"Project1.Gauge", "Gauge", "other.GAUGE"}) {
        LoadedView view(program.Form(Instance(className, "G")));
        EXPECT_TRUE(IsA<UserControlPicture>(view, u"G")) << className;
        EXPECT_EQ(view.Control(u"G").Widget().geometry(), QRect(20, 20, 80, 40));
        EXPECT_EQ(SeenColor(view, {22, 22}), gaugeGreen);
        EXPECT_EQ(SeenColor(view, {98, 58}), gaugeGreen);
        EXPECT_EQ(SeenColor(view, {34, 34}), QColor(255, 0, 0));
        EXPECT_NE(SeenColor(view, {102, 30}), gaugeGreen);
        EXPECT_THAT(view.document.Warnings(), IsEmpty());
        const std::string before = view.document.Write().form;
        EXPECT_EQ(view.Saved(), before);
    }
}

TEST(UserControl, FollowsItsSize) {
    const ProgramFolder program;
    program.AddControl("Gauge");
    LoadedView view(program.Form(Instance("Gauge", "G")), Mode::Design);
    EXPECT_NE(SeenColor(view, {110, 30}), gaugeGreen);
    view.Control(u"G").Move({.left = 300, .top = 300, .width = 1500, .height = 600});
    EXPECT_EQ(SeenColor(view, {110, 30}), gaugeGreen);
}

TEST(UserControl, ShowsTheUserControlsAndLibraryControlsInIt) {
    const ProgramFolder program;
    program.AddControl("Inner");
    program.Add("Outer.ctl",
                "VERSION 5.00\nBegin VB.UserControl Outer\n   BackColor = &H00FFFFFF&\n" +
                    Instance("Project1.Inner", "I") +
                    "   Begin lumenkit.VLabel L\n      BackColor = &H000000FF&\n"
                    "      Height = 150\n      Width = 150\n   End\n"
                    "   Begin VB.Timer T\n      Left = 0\n      Top = 300\n   End\nEnd\n");
    const LoadedView view(program.Form(Instance("Project1.Outer", "O")), Mode::Design);
    EXPECT_EQ(SeenColor(view, {20 + 25, 20 + 25}), gaugeGreen);
    EXPECT_EQ(SeenColor(view, {20 + 4, 20 + 4}), QColor(255, 0, 0));
    EXPECT_EQ(SeenColor(view, {20 + 6, 20 + 26}), QColor(255, 255, 255)) << "the timer is not seen";
    EXPECT_TRUE(view.surface.interaction.said.empty());
}

TEST(UserControl, HasAFileOfAnyNameAndCase) {
    const ProgramFolder program;
    program.Add("ctlMeter.CTL", "VERSION 5.00\r\nbegin  VB.UserControl\tMeter \r\nEnd\r\n");
    program.Add("Gauge.ctl", "VERSION 5.00\r\nBegin VB.UserControl Other\r\nEnd\r\n");
    const LoadedView view(program.Form(Instance("Project1.Meter", "M") + Instance("Gauge", "G")));
    EXPECT_TRUE(IsA<UserControlPicture>(view, u"M"));
    EXPECT_TRUE(IsA<LabelledBox>(view, u"G")) << "the name in the file counts";
}

TEST(UserControl, WithoutAFileIsAPlaceholder) {
    const ProgramFolder program;
    program.AddControl("Gauge");
    const LoadedView view(program.Form(Instance("Project1.Missing", "M")));
    EXPECT_TRUE(IsA<LabelledBox>(view, u"M"));
    EXPECT_THAT(view.document.Warnings(), IsEmpty());
}

TEST(UserControl, ThatIsBrokenIsAPlaceholderWithAWarning) {
    const ProgramFolder program;
    program.Add("Gauge.ctl", "VERSION 5.00\nBegin VB.UserControl Gauge\n   Left = \n");
    const LoadedView view(program.Form(Instance("Project1.Gauge", "G")));
    EXPECT_TRUE(IsA<LabelledBox>(view, u"G"));
    ASSERT_THAT(view.document.Warnings(), SizeIs(1));
    const forms::Warning warning = view.document.Warnings().front();
    EXPECT_EQ(warning.place.line, 5U);
    EXPECT_THAT(warning.text, HasSubstr("Gauge.ctl:4:1: expected End of Gauge"));
}

TEST(UserControl, ThatContainsItselfIsDrawnOnce) {
    const ProgramFolder program;
    program.AddControl("Self", Instance("Project1.Self", "S"));
    program.AddControl("One", Instance("Project1.Two", "T"));
    program.AddControl("Two", Instance("Project1.One", "O"));
    const LoadedView view(program.Form(Instance("Self", "S") + Instance("One", "O")));
    EXPECT_TRUE(IsA<UserControlPicture>(view, u"S"));
    EXPECT_TRUE(IsA<UserControlPicture>(view, u"O"));
    EXPECT_EQ(SeenColor(view, {22, 22}), gaugeGreen);

    const LoadedView itself(forms::Load(program.Path("Self.ctl")));
    EXPECT_TRUE(IsA<LabelledBox>(itself, u"S")) << "the file on the screen itself";
}

TEST(UserControl, ManyInsideEachOtherComeToAnEnd) {
    const ProgramFolder program;
    std::string ten;
    for (int depth = 0; depth < 10; ++depth) {
        const std::string next = "C" + std::to_string(depth + 1);
        ten.clear();
        for (int count = 0; count < 10; ++count) {
            ten += Instance(next, "X" + std::to_string(count));
        }
        program.AddControl("C" + std::to_string(depth), ten);
    }
    program.AddControl("C10");
    const LoadedView view(program.Form(Instance("C0", "C") + Instance("C0", "D")));
    EXPECT_TRUE(IsA<UserControlPicture>(view, u"C"));
    EXPECT_TRUE(IsA<LabelledBox>(view, u"D")) << "200 are drawn";
}

TEST(UserControl, NamesComeFromTheBeginningOfAFile) {
    const ProgramFolder program;
    const auto named = [&](const std::string& bytes) {
        program.Add("x.ctl", bytes);
        return lumenform::UserControlIn(program.Path("x.ctl"));
    };
    EXPECT_EQ(named("VERSION 5.00\nBegin VB.UserControl A\n"), u"A");
    EXPECT_EQ(named("Begin VB.UserControl Abc"), u"Abc");
    EXPECT_EQ(named("Begin VB.UserControl \r\n"), u"");
    EXPECT_EQ(named("Begin VB.Form A\n"), u"");
    EXPECT_EQ(named(""), u"");
    EXPECT_EQ(lumenform::UserControlIn(program.Path("no.ctl")), u"");
}

}  // namespace
}  // namespace lumenkit::testing
