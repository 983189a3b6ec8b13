// "lumenform render", and the messages of the program when it fails.
#include <QImage>
#include <filesystem>

#include <gmock/gmock.h>

#include "tests/apps/lumenform/loaded_view.h"
#include "tests/apps/program.h"

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
    EXPECT_EQ(missing.errors, "lumenform: no/such.frm: cannot be read\n");

    const Outcome unwritable =
        RunProgram("render " + (sampleForms / "label.frm").string() + " -o /no/such/picture.png");
    EXPECT_EQ(unwritable.status, 2);
    EXPECT_EQ(unwritable.errors, "lumenform: cannot write /no/such/picture.png\n");
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

TEST_F(RenderCommand, WithoutADisplayRunSaysSo) {
    const Outcome outcome = RunProgram("--version");
    EXPECT_EQ(outcome.output, "7.1.0\n");
    const std::string form = (sampleForms / "label.frm").string();
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        qunsetenv(name);
    }
    const Outcome unseen = RunProgram("run " + form);
    qputenv("QT_QPA_PLATFORM", platform);
    if (!display.isEmpty()) {
        qputenv("DISPLAY", display);
    }
    if (!wayland.isEmpty()) {
        qputenv("WAYLAND_DISPLAY", wayland);
    }
    EXPECT_EQ(unseen.status, 2);
    EXPECT_THAT(unseen.errors, StartsWith("lumenform: there is no display"));
}

}  // namespace
}  // namespace lumenkit::testing
