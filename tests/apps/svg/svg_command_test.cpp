// "lumenkit compile --svg".
#include <filesystem>
#include <string>

#include <gmock/gmock.h>

#include "tests/apps/program.h"
#include "tests/apps/svg/svg_reader.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;
using ::testing::StartsWith;

const std::string captions = LUMENKIT_SOURCE_DIR "/samples/captions/";

TEST(SvgCommand, DrawsACaption) {
    const Outcome outcome = RunProgram("compile --svg", "|B:1|Note:|B:0| <mind> the gap\n");
    EXPECT_EQ(outcome.output, R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" role="img" width="138" height="18" viewBox="0 0 103.5 13.5">
<title>Note: &lt;mind&gt; the gap</title>
<rect x="0" y="0" width="103.5" height="13.5" fill="#ffffff" shape-rendering="crispEdges"/>
<g font-family="'MS Sans Serif', 'Arial', sans-serif" font-size="10" fill="#000000">
<text xml:space="preserve" x="0" y="9.5" textLength="27.5" lengthAdjust="spacingAndGlyphs" font-weight="bold">Note:</text>
<text xml:space="preserve" x="27.5" y="9.5" textLength="75" lengthAdjust="spacingAndGlyphs"> &lt;mind&gt; the gap</text>
</g>
</svg>
)");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST(SvgCommand, DrawsEverySample) {
    int count = 0;
    for (const auto& sample : std::filesystem::directory_iterator(captions)) {
        const Outcome outcome = RunProgram("compile --svg " + sample.path().string());
        EXPECT_EQ(outcome.status, 0) << sample.path();
        EXPECT_EQ(outcome.errors, "") << sample.path();
        EXPECT_FALSE(ReadSvg(outcome.output).runs.empty()) << sample.path();
        ++count;
    }
    EXPECT_GE(count, 6);
}

TEST(SvgCommand, DrawsALabelWithTheGivenProperties) {
    const Outcome outcome = RunProgram(
        "compile --svg --width 1500 --font 'Times New Roman,7.5,bold,strikeout' "
        "--fore-color 255,128,0 --back-color 0,0,64 --bullet-prefix '- ' --bullet-indent -30",
        "- aaaaaaaa bbbbbbbb cccccccc");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const SvgDrawing drawing = ReadSvg(outcome.output);
    EXPECT_EQ(drawing.width, 100);
    EXPECT_EQ(drawing.background.fill, "#000040");
    // At 7.5 points, a bold unit is 82.5 twips wide: 18 of them fit in 1530 twips.
    ASSERT_THAT(drawing.runs, SizeIs(2));
    EXPECT_EQ(drawing.runs[0].text, u"aaaaaaaa bbbbbbbb ");
    EXPECT_EQ(drawing.runs[0].x, -1.5);
    EXPECT_EQ(drawing.runs[0].length, 18 * 4.125);
    EXPECT_EQ(drawing.runs[0].family, "'Times New Roman', serif");
    EXPECT_EQ(drawing.runs[0].decoration, "line-through");
    EXPECT_EQ(drawing.runs[0].fill, "#ff8000");
    EXPECT_EQ(drawing.runs[1].text, u"cccccccc");
    ASSERT_FALSE(drawing.boxes.empty());
    EXPECT_EQ(drawing.boxes[0].fill, "#ff8000");
}

TEST(SvgCommand, TakesEveryStyleAndANameWithCommas) {
    const SvgDrawing drawing =
        ReadSvg(RunProgram("compile --svg --font 'A, B,9,italic,underline'", "x").output);
    ASSERT_THAT(drawing.runs, SizeIs(1));
    EXPECT_EQ(drawing.runs[0].family, "'A, B', 'Arial', sans-serif");
    EXPECT_EQ(drawing.runs[0].size, 9);
    EXPECT_TRUE(drawing.runs[0].italic);
    EXPECT_FALSE(drawing.runs[0].bold);
    EXPECT_EQ(drawing.runs[0].decoration, "underline");
}

TEST(SvgCommand, ReportsErrorsAndDrawsTheRest) {
    // The third marker has no command.
    const Outcome compiling = RunProgram("compile --svg", "|Fore:99999999999|a|B:1|b");
    EXPECT_THAT(compiling.errors, StartsWith("LUMENKIT ERROR\n"));
    EXPECT_THAT(compiling.errors, HasSubstr("\nProc = CompileCommand\n"));
    EXPECT_THAT(compiling.errors, HasSubstr("\nProc = ExecuteNextCommand\n"));
    EXPECT_EQ(compiling.status, 1);
    EXPECT_EQ(ReadSvg(compiling.output).Joined(), u"ab");

    const Outcome drawing = RunProgram("compile --svg", "a|Size:2161|b");
    EXPECT_THAT(drawing.errors, HasSubstr("\nProc = ExecuteNextCommand\n"));
    EXPECT_THAT(drawing.errors, HasSubstr("\nError Code =380\n"));
    EXPECT_EQ(drawing.status, 1);
    EXPECT_EQ(ReadSvg(drawing.output).Joined(), u"ab");

    const Outcome tooLong = RunProgram("compile --svg", "a|CR|" + std::string(32768, 'x'));
    EXPECT_EQ(tooLong.status, 1);
    EXPECT_EQ(ReadSvg(tooLong.output).Joined(), u"a");
}

TEST(SvgCommand, SaysThatTheDrawingCannotBeWritten) {
    const Outcome outcome = RunOnTerminal("compile --svg " + captions + "bullets.txt >/dev/full");
    EXPECT_EQ(outcome.output, "\x1b[31mlumenkit: cannot write the compiled caption\x1b[0m\r\n");
    EXPECT_EQ(outcome.status, 2);
}

TEST(SvgCommand, RefusesWrongProperties) {
    const auto errors = [](const std::string& arguments) {
        const Outcome outcome = RunProgram("compile " + arguments, "x");
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        return outcome.errors.substr(0, outcome.errors.find('\n'));
    };
    const std::string font =
        "lumenkit compile: --font: expected a name, a size above 0 and up to 2160 points, and "
        "styles, such as Arial,12,bold";
    for (const char* written : {"Arial", ",12", "Arial,0", "Arial,2161", "Arial,nan", "Arial,inf",
                                "Arial,12pt", "Arial,12,", "Arial,12,heavy", "Arial,bold", "''"}) {
        EXPECT_EQ(errors(std::string("--svg --font ") + written), font) << written;
    }
    for (const char* written :
         {"1,2", "1,2,3,4", "1,2,256", "1,-2,3", "1,2,3.5", "red", "1,,3", ",1,2,3", "''"}) {
        EXPECT_EQ(errors(std::string("--svg --fore-color ") + written),
                  "lumenkit compile: --fore-color: expected three numbers from 0 to 255, such as "
                  "0,128,0")
            << written;
    }
    EXPECT_THAT(errors("--svg --back-color 1"), StartsWith("lumenkit compile: --back-color: "));
    for (const char* width : {"14", "1000001", "-15", "1e3", "10px"}) {
        EXPECT_THAT(errors(std::string("--svg --width ") + width), HasSubstr("--width")) << width;
    }
    for (const char* indent : {"32768", "-32769", "x"}) {
        EXPECT_THAT(errors(std::string("--svg --bullet-indent ") + indent),
                    HasSubstr("--bullet-indent"))
            << indent;
    }
    EXPECT_EQ(errors("--svg --bullet-prefix \"$(printf '\\377')\""),
              "lumenkit compile: --bullet-prefix: not valid UTF-8 at byte 0");
    EXPECT_EQ(errors("--svg --font \"$(printf '\\377'),12\""),
              "lumenkit compile: --font: not valid UTF-8 at byte 0");
}

TEST(SvgCommand, HasPropertiesOfDrawingsOnlyForDrawings) {
    for (const char* option : {"--width 1500", "--font Arial,12", "--fore-color 0,0,0",
                               "--back-color 0,0,0", "--bullet-prefix x", "--bullet-indent 0"}) {
        const Outcome outcome = RunProgram(std::string("compile ") + option, "x");
        EXPECT_EQ(outcome.status, 2) << option;
        EXPECT_THAT(outcome.errors, HasSubstr(" requires --svg")) << option;
    }
    EXPECT_EQ(RunProgram("compile --svg --json", "x").status, 2);
    EXPECT_EQ(RunProgram("compile --svg --text", "x").status, 2);
}

TEST(SvgCommand, DrewThePictureOfTheDocument) {
    // The command is that of docs/caption-language.md.
    const Outcome outcome =
        RunProgram("compile --svg --font Arial,12 --bullet-prefix '* ' --bullet-indent 300 " +
                   captions + "bullets.txt");
    EXPECT_EQ(outcome.output, FileBytes(LUMENKIT_SOURCE_DIR "/docs/images/compiled-caption.svg"));
}

}  // namespace

}  // namespace lumenkit::testing
