// "lumenform render", and the messages of the program when it fails.
#include <QByteArray>
#include <QImage>
#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <string>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"
#include "tests/support/file_size_limit.h"

namespace lumenkit::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class RenderCommand : public ::testing::Test {
 protected:
    ~RenderCommand() override { fs::remove(picture_); }

    Outcome Render(const std::string& form, const std::string& options = "") {
        return RunProgram("render " + form + " -o " + picture_ + ' ' + options);
    }
    QImage Drawn(const std::string& form, const std::string& options = "") {
        const Outcome outcome = Render((sampleForms / form).string(), options);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "");
        return QImage(QString::fromStdString(picture_));
    }

    const std::string picture_ = LUMENKIT_BINARY_DIR "/lumenform_test.png";
};

TEST_F(RenderCommand, DrawsAtEachScale) {
    // 4680 by 3195 twips are 312 by 213 pixels.
    EXPECT_EQ(Drawn("label.frm").size(), QSize(312, 213));
    EXPECT_EQ(Drawn("label.frm", "--scale 1.25").size(), QSize(390, 266));
    EXPECT_EQ(Drawn("label.frm", "--scale 2").size(), QSize(624, 426));
}

TEST_F(RenderCommand, DrawsTheControlsWhereTheyAre) {
    // The label's background is a system colour; around it is the background of the form.
    for (const int scale : {1, 2}) {
        const QImage picture = Drawn("label.frm", "--scale " + std::to_string(scale));
        EXPECT_EQ(picture.pixelColor(290 * scale, 80 * scale), QColor(Qt::white));
        EXPECT_EQ(picture.pixelColor(4 * scale, 4 * scale), QColor(0xEF, 0xEF, 0xEF));
    }
    const QImage dark = Drawn("label.frm", "--dark");
    EXPECT_LT(dark.pixelColor(290, 80).lightness(), 60);
    EXPECT_LT(dark.pixelColor(4, 4).lightness(), 80);
}

TEST_F(RenderCommand, DrawsTheTextInItsColour) {
    const QImage picture = Drawn("label.frm");
    int red = 0;
    for (int y = 8; y < 89; ++y) {
        for (int x = 8; x < 297; ++x) {
            red += picture.pixelColor(x, y) == QColor(255, 0, 0) ? 1 : 0;
        }
    }
    EXPECT_GT(red, 100);
}

TEST_F(RenderCommand, SaysWhereABrokenFormIsBroken) {
    const std::string form = FileWith("VERSION 5.00\nBegin VB.Form F\n   Caption = \"x\"\n");
    const Outcome outcome = Render(form);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, StartsWith("lumenform: " + form + ":4:1: expected End of F"));
    EXPECT_FALSE(fs::exists(picture_));

    EXPECT_EQ(RunProgram("run " + form).status, 2);
}

TEST_F(RenderCommand, DrawsAFormWithOddValuesAndTellsWhereTheyAre) {
    const std::string form = FileWith(
        "VERSION 5.00\nBegin VB.Form F\n   Begin VB.Label L\n      Left = \"x\"\n"
        "      Tag = 1,5\n   End\nEnd\n");
    const std::string expected = "lumenform: warning: " + form +
                                 ":4:14: Left: Type mismatch\nlumenform: warning: " + form +
                                 ":5:14: expected the end of the line, found ,5\n";
    const Outcome drawn = Render(form);
    EXPECT_EQ(drawn.status, 0);
    EXPECT_EQ(drawn.errors, expected);
    EXPECT_TRUE(fs::exists(picture_));
    const Outcome designed = Render(form + " --design");
    EXPECT_EQ(designed.status, 0);
    EXPECT_EQ(designed.errors, expected);
}

TEST_F(RenderCommand, SaysWhatItCannotReadOrWrite) {
    const Outcome missing = Render("no/such.frm");
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.errors,
              "lumenform: no/such.frm: cannot be read: No such file or directory\n");

    const Outcome unwritable =
        RunProgram("render " + (sampleForms / "label.frm").string() + " -o /no/such/picture.png");
    EXPECT_EQ(unwritable.status, 2);
    EXPECT_EQ(unwritable.errors,
              "lumenform: /no/such/picture.png: cannot be written: No such file or directory\n");
}

TEST_F(RenderCommand, SaysTheErrorsOfDrawing) {
    const std::string form = FileWith(
        "VERSION 5.00\nBegin VB.Form F\n   Begin lumenkit.VLabel L\n"
        "      Caption = \"|size:5000|x\"\n   End\nEnd\n");
    for (const char* options : {"", "--design"}) {
        const Outcome drawn = Render(form, options);
        EXPECT_EQ(drawn.status, 1) << options;
        EXPECT_THAT(drawn.errors, HasSubstr("LUMENKIT ERROR\n")) << options;
        EXPECT_THAT(drawn.errors, HasSubstr("Error Code =380")) << options;
        EXPECT_TRUE(fs::exists(picture_));
    }
}

TEST_F(RenderCommand, SaysThatAFormIsTooLarge) {
    const std::string form = FileWith(
        "VERSION 5.00\nBegin VB.Form F\n   ClientHeight = 240000\n   ClientWidth = 240000\n"
        "End\n");
    const Outcome outcome = Render(form);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors,
              "lumenform: " + form + ": the picture would have more than 100 million pixels\n");
    EXPECT_FALSE(fs::exists(picture_));
}

TEST_F(RenderCommand, NeedsNoDisplay) {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    qputenv("DISPLAY", ":4567");
    qputenv("WAYLAND_DISPLAY", "no-such-session");
    for (const char* value : {"xcb", "wayland", "no-such-platform"}) {
        qputenv("QT_QPA_PLATFORM", value);
        EXPECT_FALSE(Drawn("label.frm").isNull()) << value;
    }
    qputenv("QT_QPA_PLATFORM", platform);
    display.isEmpty() ? qunsetenv("DISPLAY") : qputenv("DISPLAY", display);
    wayland.isEmpty() ? qunsetenv("WAYLAND_DISPLAY") : qputenv("WAYLAND_DISPLAY", wayland);
}

TEST_F(RenderCommand, ReplacesNoFileOfTheForm) {
    const fs::path folder = LUMENKIT_BINARY_DIR "/lumenform_render_test_files";
    fs::remove_all(folder);
    fs::create_directories(folder);
    fs::copy_file(sampleForms / "memo.frm", folder / "memo.frm");
    fs::copy_file(sampleForms / "memo.frx", folder / "memo.frx");
    fs::create_symlink("memo.frm", folder / "form.png");
    fs::create_hard_link(folder / "memo.frm", folder / "same.PNG");
    fs::create_symlink("memo.frx", folder / "companion.png");
    fs::create_symlink("/dev/full", folder / "device.png");
    const std::string form = FileBytes(folder / "memo.frm");
    const std::string companion = FileBytes(folder / "memo.frx");
    const auto refusal = [&](const std::string& picture, const std::string& options = "") {
        const std::string path = (folder / picture).string();
        const Outcome outcome =
            RunProgram("render " + (folder / "memo.frm").string() + " -o " + path + ' ' + options);
        EXPECT_EQ(outcome.status, 2) << picture;
        const std::string start = "lumenform: " + path + ": ";
        EXPECT_THAT(outcome.errors, StartsWith(start));
        return outcome.errors.substr(std::min(start.size(), outcome.errors.size()));
    };
    const std::string isForm = "is the form itself; it is not replaced by a picture\n";
    const std::string isCompanion =
        "is the companion of the form; it is not replaced by a picture\n";
    EXPECT_EQ(refusal("memo.frm"), "the name of a picture ends in .png\n");
    EXPECT_EQ(refusal("picture.jpg"), "the name of a picture ends in .png\n");
    EXPECT_EQ(refusal("form.png"), isForm);
    EXPECT_EQ(refusal("same.PNG"), isForm);
    EXPECT_EQ(refusal("../lumenform_render_test_files/form.png", "--design"), isForm);
    EXPECT_EQ(refusal("companion.png"), isCompanion);
    EXPECT_EQ(refusal("companion.png", "--design"), isCompanion);
    EXPECT_EQ(refusal("device.png"), "is not a plain file\n");
    EXPECT_EQ(FileBytes(folder / "memo.frm"), form);
    EXPECT_EQ(FileBytes(folder / "memo.frx"), companion);
    fs::remove_all(folder);
}

TEST_F(RenderCommand, AFullDiskLeavesTheOldPicture) {
    ASSERT_EQ(Render((sampleForms / "label.frm").string()).status, 0);
    const std::string old = FileBytes(picture_);
    const FileSizeLimit limit(512);
    const Outcome outcome = Render((sampleForms / "memo.frm").string());
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "lumenform: " + picture_ + ": cannot be written: File too large\n");
    EXPECT_EQ(FileBytes(picture_), old);
}

// Qt paints siblings by recursion. The usual stack has room for fewer labels.
TEST_F(RenderCommand, DrawsTensOfThousandsOfControlsInOneContainer) {
    std::string labels;
    constexpr int count = 30000;
    for (int i = 0; i < count; ++i) {
        labels += "Begin VB.Label L" + std::to_string(i) +
                  "\nHeight = 60\nLeft = " + std::to_string(i % 200 * 90) +
                  "\nTop = " + std::to_string(i / 200 * 75) + "\nWidth = 75\n" +
                  (i == count - 1 ? "BackColor = 255\n" : "") + "End\n";
    }
    const Outcome drawn =
        Render(FileWith("VERSION 5.00\nBegin VB.Form F\nClientHeight = 11250\n"
                        "ClientWidth = 18000\n" +
                        labels + "End\n"));
    EXPECT_EQ(drawn.status, 0);
    EXPECT_EQ(drawn.errors, "");
    EXPECT_EQ(QImage(QString::fromStdString(picture_)).pixelColor(1196, 747), QColor(255, 0, 0));
}

TEST_F(RenderCommand, SaysThatAContainerHasTooManyControls) {
    std::string components;
    for (int i = 0; i <= 100'000; ++i) {
        components += "Begin A B\nEnd\n";
    }
    const std::string form = FileWith("VERSION 5.00\nBegin VB.Form F\n" + components + "End\n");
    const Outcome outcome = Render(form);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "lumenform: " + form +
                                  ":2:15: F: has 100001 controls; at most 100000 can be shown in "
                                  "one container\n");
}

TEST_F(RenderCommand, RefusesWrongArguments) {
    for (const char* arguments :
         {"draw", "render", "render x.frm", "render -o y.png", "render x.frm -o y.png --page",
          "design x.frm", "design a b", "render x.frm -o y.png --scale 0",
          "render x.frm -o y.png --code-page 437"}) {
        const Outcome outcome = RunProgram(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_NE(outcome.errors, "") << arguments;
    }
}

TEST_F(RenderCommand, HelpHasExamples) {
    for (const char* arguments :
         {"--help", "design --help", "render --help", "run --help", "new --help"}) {
        EXPECT_THAT(RunProgram(arguments).output, HasSubstr("Examples:\n  lumenform "))
            << arguments;
    }
}

// Runs the program with only these of the variables that choose a display.
Outcome RunWithDisplay(const std::string& arguments, const std::map<QByteArray, QByteArray>& set) {
    const std::array<const char*, 3> names = {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"};
    std::map<QByteArray, QByteArray> former;
    for (const char* name : names) {
        if (qEnvironmentVariableIsSet(name)) {
            former[name] = qgetenv(name);
        }
        qunsetenv(name);
    }
    for (const auto& [name, value] : set) {
        qputenv(name.constData(), value);
    }
    Outcome outcome = RunProgram(arguments);
    for (const char* name : names) {
        qunsetenv(name);
    }
    for (const auto& [name, value] : former) {
        qputenv(name.constData(), value);
    }
    return outcome;
}

TEST_F(RenderCommand, ShowsItsVersion) {
    EXPECT_EQ(RunProgram("--version").output, "lumenform 7.1.0\n");
}

TEST_F(RenderCommand, WithoutADisplayRunSaysSo) {
    const Outcome outcome = RunWithDisplay("run " + (sampleForms / "label.frm").string(), {});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, StartsWith("lumenform: there is no display"));
}

TEST_F(RenderCommand, WithoutAUsableDisplayRunSaysWhy) {
    const std::string form = (sampleForms / "label.frm").string();
    const std::map<QByteArray, QByteArray> nowhere = {{"DISPLAY", ":4567"}};
    const Outcome x11 = RunWithDisplay("run " + form, nowhere);
    EXPECT_EQ(x11.status, 2);
    EXPECT_THAT(x11.errors, StartsWith("lumenform: the display cannot be used (could not connect "
                                       "to display :4567); "));
    for (const char* command : {"run ", "design ", ""}) {
        const Outcome wayland = RunWithDisplay(command + form, {{"WAYLAND_DISPLAY", "nothing"}});
        EXPECT_EQ(wayland.status, 2) << command;
        EXPECT_THAT(wayland.errors, HasSubstr("lumenform: the display cannot be used ("));
    }
    const Outcome unknown = RunWithDisplay("run " + form, {{"QT_QPA_PLATFORM", "nonsense"}});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_THAT(unknown.errors, HasSubstr("nonsense"));
}

TEST_F(RenderCommand, AFileAloneIsForTheDesigner) {
    const Outcome missing = RunProgram("no_such.frm");
    EXPECT_EQ(missing.status, 2);
    EXPECT_THAT(missing.errors, StartsWith("lumenform: no_such.frm: "));
    EXPECT_THAT(RunProgram("rnder").errors,
                StartsWith("lumenform: there is no command \"rnder\"; did you mean \"render\"?"));
}

}  // namespace
}  // namespace lumenkit::testing
