// "lumenkit compile": compares its output with texts written by hand.
#include <filesystem>
#include <sstream>
#include <string>

#include <gmock/gmock.h>

#include "tests/apps/program.h"

namespace lumenkit::testing {

namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string samples = LUMENKIT_SOURCE_DIR "/samples/captions/";

TEST(CompileCommand, PrintsLinesAndCommands) {
    const Outcome outcome = RunProgram("compile " + samples + "bullets.txt");
    EXPECT_EQ(outcome.output,
              "line \"|Before you start|\"\n"
              "  b = \"1\"\n"
              "  b = \"0\"\n"
              "line \"* Save your work\"\n"
              "line \"* Close all other programs\"\n"
              "line \"* Press \\\"Next\\\"\"\n"
              "line \"This may take |a few minutes|.\"\n"
              "  i = \"1\"\n"
              "  i = \"0\"\n");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 0);
}

TEST(CompileCommand, PrintsTextWhenAskedTo) {
    EXPECT_EQ(RunProgram("compile --text", "|B:1|x").output, "line \"|x\"\n  b = \"1\"\n");
}

TEST(CompileCommand, PrintsJson) {
    EXPECT_EQ(
        RunProgram("compile --json " + samples + "quotes.txt").output,
        R"({"version":1,"lines":["She said \"Grüß Gott, 世界\" and left.","\"|Bold|\" inside quotes."],)"
        R"("commands":[{"name":"b","parameter":"1"},{"name":"b","parameter":"0"}]})"
        "\n");
}

TEST(CompileCommand, PrintsJsonOfTheEmptyCaption) {
    EXPECT_EQ(RunProgram("compile --json").output,
              "{\"version\":1,\"lines\":[\"\"],\"commands\":[]}\n");
}

TEST(CompileCommand, PrintsStoredForms) {
    EXPECT_EQ(RunProgram("compile --json " + samples + "sizes.txt").output,
              R"({"version":1,"lines":["|small |medium |LARGE",)"
              R"("The size of |one| word lengthens its line."],"commands":[)"
              R"({"name":"size","parameter":" 8"},{"name":"size","parameter":" 10.5"},)"
              R"({"name":"size","parameter":" 24"},{"name":"size","parameter":" 24"},)"
              R"({"name":"size","parameter":" 10"}]})"
              "\n");
}

TEST(CompileCommand, ReadsTheStandardInput) {
    const std::string expected = "line \"a\"\nline \"b\"\n";
    EXPECT_EQ(RunProgram("compile", "a|CR|b").output, expected);
    EXPECT_EQ(RunProgram("compile -", "a|CR|b").output, expected);
}

TEST(CompileCommand, LeavesOutOneFinalLineBreak) {
    EXPECT_EQ(RunProgram("compile", "a\n").output, "line \"a\"\n");
    EXPECT_EQ(RunProgram("compile", "a\r\n").output, "line \"a\"\n");
    EXPECT_EQ(RunProgram("compile", "a\n\n").output, "line \"a\\n\"\n");
    EXPECT_EQ(RunProgram("compile", "\na\r").output, "line \"\\na\\r\"\n");
    EXPECT_EQ(RunProgram("compile",
                         "\xEF\xBB\xBF"
                         "a")
                  .output,
              "line \"\xEF\xBB\xBF"
              "a\"\n");
}

TEST(CompileCommand, EverySampleCompilesWithoutAReport) {
    int count = 0;
    for (const auto& sample : std::filesystem::directory_iterator(samples)) {
        const Outcome outcome = RunProgram("compile " + sample.path().string());
        EXPECT_EQ(outcome.status, 0) << sample.path();
        EXPECT_EQ(outcome.errors, "") << sample.path();
        EXPECT_THAT(outcome.output, StartsWith("line ")) << sample.path();
        ++count;
    }
    EXPECT_GE(count, 6);
}

TEST(CompileCommand, ReportsOverflowAndPrintsTheRest) {
    const Outcome outcome = RunProgram("compile", "|Fore:99999999999|a|B:1|b");
    EXPECT_EQ(outcome.output, "line \"|a|b\"\n  b = \"1\"\n  (missing)\n");
    EXPECT_EQ(outcome.errors,
              "LUMENKIT ERROR\n"
              "Exe = lumenkit\n"
              "Form = VLABEL\n"
              "Proc = CompileCommand\n"
              "Error Line =0\n"
              "Error Code =6\n"
              "Message: Overflow\n");
    EXPECT_EQ(outcome.status, 1);
}

TEST(CompileCommand, ReportsACaptionThatIsTooLong) {
    const Outcome outcome = RunProgram("compile --json", "|b:1|a|CR|" + std::string(32768, 'x'));
    EXPECT_EQ(
        outcome.output,
        "{\"version\":1,\"lines\":[\"|a\"],\"commands\":[{\"name\":\"b\",\"parameter\":\"1\"}]}\n");
    EXPECT_THAT(outcome.errors, HasSubstr("\nProc = CompileCaption\n"));
    EXPECT_EQ(outcome.status, 1);
}

TEST(CompileCommand, NamesTheByteThatIsNotUtf8) {
    const std::string path = FileWith("a\xC3\xA4\xFFz");
    const Outcome outcome = RunProgram("compile " + path);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "lumenkit: " + path + ": not valid UTF-8 at byte 3\n");
    EXPECT_EQ(outcome.status, 2);

    EXPECT_EQ(RunProgram("compile", "\xC3").errors,
              "lumenkit: standard input: not valid UTF-8 at byte 0\n");
}

TEST(CompileCommand, SaysWhichFileCannotBeRead) {
    const Outcome missing = RunProgram("compile no/such/file");
    EXPECT_EQ(missing.output, "");
    EXPECT_EQ(missing.errors, "lumenkit: cannot read no/such/file: No such file or directory\n");
    EXPECT_EQ(missing.status, 2);

    const Outcome folder = RunProgram("compile " LUMENKIT_SOURCE_DIR);
    EXPECT_EQ(folder.errors, "lumenkit: cannot read " LUMENKIT_SOURCE_DIR ": Is a directory\n");
    EXPECT_EQ(folder.status, 2);
}

TEST(CompileCommand, SaysThatTheResultCannotBeWritten) {
    for (const std::string arguments : {"compile ", "compile --json "}) {
        const Outcome outcome = RunOnTerminal(arguments + FileWith("a|b:1|c") + " >/dev/full");
        EXPECT_EQ(outcome.output, "\x1b[31mlumenkit: cannot write the compiled caption\x1b[0m\r\n")
            << arguments;
        EXPECT_EQ(outcome.status, 2) << arguments;
    }
}

TEST(Program, RefusesWrongArguments) {
    for (const char* arguments :
         {"", "draw", "compile --xml", "compile --json --text", "compile a b"}) {
        const Outcome outcome = RunProgram(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_NE(outcome.errors, "") << arguments;
    }
}

TEST(Program, NamesAWrongWordAndOffersTheNearest) {
    const auto errors = [](const std::string& arguments) {
        const Outcome outcome = RunProgram(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        return outcome.errors.substr(0, outcome.errors.find('\n'));
    };
    EXPECT_EQ(errors("chekc order.frm"),
              "lumenkit: there is no command \"chekc\"; did you mean \"check\"?");
    EXPECT_EQ(errors("draw"), "lumenkit: there is no command \"draw\"");
    EXPECT_EQ(errors(""), "lumenkit: a command is required");
    EXPECT_EQ(errors("--verison"),
              "lumenkit: there is no option \"--verison\"; did you mean \"--version\"?");
    EXPECT_EQ(errors("check --severty=note x.frm"),
              "lumenkit check: there is no option \"--severty\"; did you mean \"--severity\"?");
    EXPECT_EQ(errors("check"), "lumenkit check: PATH is required");
    EXPECT_EQ(errors("compile a b"), "lumenkit compile: did not expect \"b\"");
    EXPECT_EQ(errors("--color never chekc x.frm"),
              "lumenkit: there is no command \"chekc\"; did you mean \"check\"?");
    EXPECT_EQ(errors("--colr always check x.frm"),
              "lumenkit: there is no option \"--colr\"; did you mean \"--color\"?");
    EXPECT_EQ(errors("--color never"), "lumenkit: a command is required");
    EXPECT_EQ(errors("--color never compile a b"), "lumenkit compile: did not expect \"b\"");
    EXPECT_EQ(errors("write-manul x"), "lumenkit: there is no command \"write-manul\"");
    EXPECT_EQ(errors("\"$(printf 'dr\\033[2Jaw\\377')\""),
              "lumenkit: there is no command \"dr\\u001B[2Jaw\xEF\xBF\xBD\"");
}

TEST(Program, HelpIsACommandToo) {
    EXPECT_EQ(RunProgram("help check").output, RunProgram("check --help").output);
    EXPECT_EQ(RunProgram("help").output, RunProgram("--help").output);
    EXPECT_EQ(RunProgram("--color=never help check").output, RunProgram("check --help").output);
    EXPECT_EQ(RunProgram("help").status, 0);
    EXPECT_EQ(RunProgram("help chekc").status, 2);
}

TEST(Program, HelpFitsATerminal) {
    for (const char* arguments :
         {"--help", "check --help", "compile --help", "drive --help", "completion --help"}) {
        std::istringstream help(RunProgram(arguments).output);
        for (std::string line; std::getline(help, line);) {
            EXPECT_LE(line.size(), 80U) << arguments << ": " << line;
        }
    }
}

TEST(Program, ShowsItsVersion) {
    const Outcome outcome = RunProgram("--version");
    EXPECT_EQ(outcome.output, "lumenkit 7.1.0\n");
    EXPECT_EQ(outcome.status, 0);
}

TEST(Program, ShowsHelpWithExamples) {
    for (const char* arguments : {"--help", "compile --help"}) {
        const Outcome outcome = RunProgram(arguments);
        EXPECT_THAT(outcome.output, HasSubstr("\nExamples:\n  lumenkit compile ")) << arguments;
        EXPECT_EQ(outcome.status, 0) << arguments;
    }
}

}  // namespace

}  // namespace lumenkit::testing
