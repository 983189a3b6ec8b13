// "lumenkit check": compares its output with texts written by hand.
#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using Json = nlohmann::ordered_json;

const std::string here = LUMENKIT_SOURCE_DIR "/tests/apps/check/";

// The texts written by hand give paths relative to this folder.
std::string FromHere(std::string output) {
    for (auto at = output.find(here); at != std::string::npos; at = output.find(here)) {
        output.erase(at, here.size());
    }
    return output;
}

std::string Compact(const std::string& json) {
    return Json::parse(json).dump() + '\n';
}

// A separate folder for each test, removed with it.
class CheckFolder : public ::testing::Test {
 protected:
    CheckFolder()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "check_test_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()) {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    ~CheckFolder() override { fs::remove_all(folder); }

    void Write(const std::string& name, const std::string& bytes) const {
        fs::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    void WriteForms(int count, const std::string& caption) const {
        for (int i = 100; i < 100 + count; ++i) {
            Write("form" + std::to_string(i) + ".frm", FormWith(caption));
        }
    }
    static std::string FormWith(const std::string& caption) {
        return "VERSION 5.00\nBegin VB.Form F\n Begin lumenkit.VLabel L\n  Caption = \"" + caption +
               "\"\n End\nEnd\n";
    }
    Outcome Check(const std::string& arguments = "") const {
        return RunProgram("check " + arguments + " " + folder.string());
    }

    const fs::path folder;
};

TEST(CheckCommand, TellsWhatIsWrongWithForms) {
    const Outcome outcome = RunProgram("check " + here + "forms");
    EXPECT_EQ(FromHere(outcome.output), FileBytes(here + "forms_expected.txt"));
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 1);
}

TEST(CheckCommand, TellsWhatIsWrongWithCaptionsInJson) {
    const Outcome outcome = RunProgram("check --json --caption " + here + "captions");
    EXPECT_EQ(FromHere(outcome.output), Compact(FileBytes(here + "captions_expected.json")));
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 1);
}

TEST(CheckCommand, GoesOnBehindAFormThatCannotBeRead) {
    const Outcome json = RunProgram("check --json " + here + "broken");
    EXPECT_EQ(FromHere(json.output), Compact(FileBytes(here + "broken_expected.json")));
    EXPECT_EQ(json.errors, "");
    EXPECT_EQ(json.status, 2);

    const Outcome text = RunProgram("check " + here + "broken");
    EXPECT_EQ(
        FromHere(text.output),
        "broken/lost.frm:3:25: warning: memLost: no label with a text is directly before the memo "
        "in "
        "the tab order; screen readers have no name for it [unnamed-control]\n"
        "broken/lost.frm:4:27: warning: memLost.Text: lost.frx cannot be read: No such file or "
        "directory; its texts and "
        "pictures "
        "are missing "
        "[not-understood]\n"
        "broken/readable.frm:4:28: warning: lblReadable.Caption: unknown command \"Blod\"; did you "
        "mean \"bold\"? [unknown-command]\n"
        "2 files checked: 3 findings, 1 error\n");
    EXPECT_EQ(FromHere(text.errors),
              "lumenkit: broken/cut.frm:5:1: expected End of lblCut (begun in line 3), found the "
              "end of the file\n");
    EXPECT_EQ(text.status, 2);
}

TEST(CheckCommand, NotesTheGuessedCodePage) {
    const std::string form = std::string(LUMENKIT_SOURCE_DIR) + "/samples/forms/japanese.frm";
    const std::string note =
        "read as Japanese (Shift JIS), code page 932, because its fonts have this character set; "
        "--code-page names another one";
    const Outcome text = RunProgram("check " + form);
    EXPECT_EQ(text.errors, "lumenkit: note: " + form + ":3:18: " + note + "\n");
    const Outcome json = RunProgram("check --json " + form);
    EXPECT_THAT(json.output, HasSubstr(R"("notes":[{"file":")" + form +
                                       R"(","line":3,"column":18,"message":")" + note + "\"}]"));
    for (const char* const name : {"932", "shift_jis", "cp932"}) {
        const Outcome named =
            RunProgram(std::string("check --json --code-page ") + name + ' ' + form);
        EXPECT_EQ(named.errors, "") << name;
        EXPECT_THAT(named.output, ::testing::Not(HasSubstr("notes"))) << name;
    }
}

TEST(CheckCommand, SaysSoWhenNothingIsWrong) {
    const Outcome form = RunProgram("check " + here + "forms/good.frm");
    EXPECT_EQ(form.output, "1 file checked: 0 findings\n");
    EXPECT_EQ(form.status, 0);
    const Outcome caption = RunProgram("check --json --caption " + here + "captions/good.txt");
    EXPECT_EQ(caption.output, "{\"version\":1,\"files\":1,\"findings\":[],\"errors\":[]}\n");
    EXPECT_EQ(caption.status, 0);
}

TEST(CheckCommand, ReadsACaptionFromTheStandardInput) {
    const Outcome outcome = RunProgram("check --caption -", "a\n|U:1|b\n");
    EXPECT_EQ(outcome.output,
              "-:1:2: warning: Caption: the line end in the caption is drawn as a blank and begins "
              "no new "
              "line; did you mean \"|CR|\"? [control-character]\n"
              "-:2:1: note: Caption: the command \"u\" draws italic text, not underlined text "
              "[underline-is-italic]\n"
              "1 file checked: 2 findings\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(RunProgram("check --caption -").status, 0);
}

TEST(CheckCommand, SaysWhichInputsCannotBeRead) {
    const Outcome form = RunProgram("check no/such.frm " + here + "forms/good.frm");
    EXPECT_EQ(form.errors, "lumenkit: no/such.frm: cannot be read: No such file or directory\n");
    EXPECT_EQ(form.output, "1 file checked: 0 findings, 1 error\n");
    EXPECT_EQ(form.status, 2);
    const Outcome caption = RunProgram("check --caption no/such.txt");
    EXPECT_EQ(caption.errors, "lumenkit: cannot read no/such.txt: No such file or directory\n");
    EXPECT_EQ(caption.status, 2);
    const Outcome bytes = RunProgram("check --caption -", "a\xFF");
    EXPECT_EQ(bytes.errors, "lumenkit: standard input: not valid UTF-8 at byte 1\n");
    EXPECT_EQ(bytes.status, 2);
}

TEST_F(CheckFolder, GoesOnBehindWhatIsNoFileOrTooLarge) {
    const std::string pipe = (folder / "pipe.frm").string();
    const std::string large = (folder / "large.frm").string();
    const std::string caption = (folder / "large.txt").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    for (const std::string& file : {large, caption}) {
        std::ofstream(file, std::ios::binary) << "VERSION";
        fs::resize_file(file, std::uintmax_t{3} << 30U);  // takes no room on the disk
    }
    const Outcome forms = RunProgram("check " + pipe + ' ' + large + ' ' + here + "forms/good.frm");
    EXPECT_EQ(forms.errors, "lumenkit: " + pipe + ": is not a plain file\nlumenkit: " + large +
                                ": is larger than 256 MB\n");
    EXPECT_EQ(forms.output, "1 file checked: 0 findings, 2 errors\n");
    EXPECT_EQ(forms.status, 2);
    const Outcome captions =
        RunProgram("check --caption " + caption + ' ' + here + "captions/good.txt");
    EXPECT_EQ(captions.errors, "lumenkit: " + caption + ": is larger than 256 MB\n");
    EXPECT_EQ(captions.output, "1 file checked: 0 findings, 1 error\n");
}

TEST(CheckCommand, SaysThatFindingsCannotBeWritten) {
    for (const std::string arguments : {"", "--json "}) {
        const Outcome outcome =
            RunOnTerminal("check " + arguments + here + "forms/good.frm >/dev/full");
        EXPECT_EQ(outcome.output, "\x1b[31mlumenkit: cannot write the findings\x1b[0m\r\n");
        EXPECT_EQ(outcome.status, 2);
    }
}

TEST(CheckCommand, RefusesWrongArguments) {
    for (const char* arguments : {"check", "check --xml x.frm", "check --code-page 437 x.frm",
                                  "check --code-page east x.frm"}) {
        const Outcome outcome = RunProgram(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
        EXPECT_NE(outcome.errors, "") << arguments;
    }
}

TEST(CheckCommand, ShowsHelpWithExamples) {
    const Outcome outcome = RunProgram("check --help");
    EXPECT_THAT(outcome.output, HasSubstr("\nExamples:\n  lumenkit check "));
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(CheckFolder, CountsColumnsInTheCodePage) {
    // In Windows-1250 every byte is a unit. In UTF-8 the two bytes of "ä" are one unit.
    Write("a.frm", FormWith("\xF8|blod:1|"));
    EXPECT_THAT(Check("--code-page 1250").output, HasSubstr("a.frm:4:15: "));
    Write("a.frm", FormWith("\xC3\xA4|blod:1|"));
    EXPECT_THAT(Check().output, HasSubstr("a.frm:4:15: "));
}

TEST_F(CheckFolder, LooksForFormsByTheirExtensions) {
    for (const char* name :
         {"a.frm", "B.CTL", "c.Pag", "deep/er/d.dob", "e.txt", "f.frx", "frm", "g.frm.bak"}) {
        Write(name, FormWith("|blod:1|"));
    }
    Write("e.txt", "|blod:1|");
    fs::create_directories(folder / "folder.frm");
    EXPECT_THAT(Check().output, EndsWith("\n4 files checked: 4 findings\n"));
    EXPECT_THAT(Check("--caption").output, EndsWith("\n1 file checked: 1 finding\n"));
}

TEST_F(CheckFolder, FollowsNoLinksInCircles) {
    Write("deep/a.frm", FormWith("x"));
    fs::create_directory_symlink("..", folder / "deep" / "up");
    EXPECT_EQ(Check().output, "1 file checked: 0 findings\n");
}

TEST_F(CheckFolder, AFolderThatCannotBeReadIsAnError) {
    if (geteuid() == 0) {
        // Permissions do not stop root, so the test uses a name that is too long.
        const Outcome outcome = RunProgram("check " + std::string(5000, 'x'));
        EXPECT_EQ(outcome.status, 2);
        return;
    }
    Write("closed/a.frm", FormWith("x"));
    Write("open/a.frm", FormWith("x"));
    fs::permissions(folder / "closed", fs::perms::none);
    const Outcome outcome = Check();
    fs::permissions(folder / "closed", fs::perms::owner_all);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors,
              "lumenkit: " + (folder / "closed").string() + ": Permission denied\n");
    EXPECT_EQ(outcome.output, "1 file checked: 0 findings, 1 error\n");
}

TEST_F(CheckFolder, NamesInFilesAndOfFilesCommandNoTerminal) {
    Write("a\x1b[31m\xFF.frm", FormWith("|\x0b:1|"));
    Write("b.frm", FormWith("|\x7f\xc2\x9b:1|"));
    for (const std::string arguments : {"", "--json"}) {
        const Outcome outcome = Check(arguments);
        for (const char command : {'\x1b', '\x0b', '\x7f'}) {
            EXPECT_THAT(outcome.output + outcome.errors, Not(HasSubstr(std::string(1, command))));
        }
    }
}

TEST_F(CheckFolder, ShowsNoBarAndNoColorsWhereNobodyLooks) {
    WriteForms(30, "|blod:1|");
    const Outcome outcome = Check();
    EXPECT_THAT(outcome.output, Not(HasSubstr("\x1b")));
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(CheckFolder, ShowsABarAndColorsOnATerminal) {
    WriteForms(30, "x");
    Write("form999.frm", FormWith("|blod:1|"));
    const Outcome outcome = RunOnTerminal("check " + folder.string());
    EXPECT_THAT(outcome.output, StartsWith("\r\x1b[K[" + std::string(30, '.') + "] 0%"));
    EXPECT_THAT(outcome.output, HasSubstr("#"));
    // The bar is erased before a finding is written, and at the end.
    EXPECT_THAT(outcome.output, HasSubstr("%\r\x1b[K\x1b[1m" + folder.string()));
    EXPECT_THAT(outcome.output, HasSubstr("\x1b[33mwarning:\x1b[0m"));
    EXPECT_THAT(outcome.output, EndsWith("\r\n31 files checked: 1 finding\r\n"));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(CheckFolder, ShowsNoBarForAFewFiles) {
    WriteForms(19, "x");
    EXPECT_EQ(RunOnTerminal("check " + folder.string()).output, "19 files checked: 0 findings\r\n");
}

TEST_F(CheckFolder, ColorsCanBeTurnedOff) {
    WriteForms(1, "|blod:1|");
    const std::string arguments = "check " + folder.string();
    EXPECT_THAT(RunOnTerminal(arguments).output, HasSubstr("\x1b[1m"));
    EXPECT_THAT(RunOnTerminal(arguments, "NO_COLOR=1").output, Not(HasSubstr("\x1b")));
    EXPECT_THAT(RunOnTerminal(arguments, "TERM=dumb").output, Not(HasSubstr("\x1b")));
    EXPECT_THAT(RunOnTerminal(arguments + " --json").output, Not(HasSubstr("\x1b")));
}

TEST_F(CheckFolder, ColorsAreChosenByAnOptionBeforeOrAfterTheCommand) {
    WriteForms(1, "|blod:1|");
    const std::string path = folder.string();
    for (const std::string option : {"--color=always", "--color always"}) {
        EXPECT_THAT(RunProgram("check " + option + ' ' + path).output, HasSubstr("\x1b[1m"));
        EXPECT_THAT(RunProgram(option + " check " + path).output, HasSubstr("\x1b[1m"));
        EXPECT_THAT(RunOnTerminal(option + " check " + path, "NO_COLOR=1 TERM=dumb").output,
                    HasSubstr("\x1b[1m"));
    }
    EXPECT_THAT(RunOnTerminal("check --color=never " + path).output, Not(HasSubstr("\x1b")));
    EXPECT_THAT(RunOnTerminal("--color=never check " + path, "CLICOLOR_FORCE=1").output,
                Not(HasSubstr("\x1b")));
    EXPECT_THAT(RunOnTerminal("--color never check --color auto " + path).output,
                HasSubstr("\x1b[1m"));
    EXPECT_THAT(RunProgram("check --color=auto " + path).output, Not(HasSubstr("\x1b")));
    EXPECT_EQ(RunProgram("check --color=red " + path).status, 2);
    EXPECT_EQ(RunProgram("--color check " + path).status, 2);
    EXPECT_EQ(RunProgram("--colour=never check " + path).status, 2);
}

TEST_F(CheckFolder, ColorsAreForcedByTheEnvironmentUnlessItForbidsThem) {
    WriteForms(1, "|blod:1|");
    const std::string arguments = "check " + folder.string();
    const std::string file = (folder / "output").string();
    const auto written = [&](const std::string& variables) {
        RunOnTerminal(arguments + " >" + file, variables);
        return FileBytes(file);
    };
    EXPECT_THAT(written(""), Not(HasSubstr("\x1b")));
    EXPECT_THAT(written("CLICOLOR_FORCE=1"), HasSubstr("\x1b[1m"));
    EXPECT_THAT(written("CLICOLOR_FORCE=0"), Not(HasSubstr("\x1b")));
    EXPECT_THAT(written("CLICOLOR_FORCE=1 NO_COLOR=1"), Not(HasSubstr("\x1b")));
    EXPECT_THAT(RunOnTerminal(arguments, "NO_COLOR=").output, HasSubstr("\x1b[1m"));
}

TEST_F(CheckFolder, ErrorsOfEveryCommandAreRed) {
    for (const char* arguments : {"compile no/such/file", "check --baseline no/such/file x.frm"}) {
        EXPECT_THAT(RunOnTerminal(arguments).output, StartsWith("\x1b[31mlumenkit: ")) << arguments;
        EXPECT_THAT(RunProgram(std::string("--color=always ") + arguments).errors,
                    AllOf(StartsWith("\x1b[31mlumenkit: "), EndsWith("\x1b[0m\n")))
            << arguments;
    }
    EXPECT_THAT(RunOnTerminal("compile --color=never no/such/file").output, StartsWith("lumenkit"));
}

TEST_F(CheckFolder, EachStreamHasColorsOfItsOwn) {
    Write("a.frm", "no form");
    Write("b.frm", FormWith("|blod:1|"));
    const std::string arguments = "check " + folder.string();
    const std::string elsewhere = (folder / "elsewhere").string();
    EXPECT_THAT(RunOnTerminal(arguments + " 2>" + elsewhere).output, HasSubstr("\x1b[1m"));
    EXPECT_THAT(FileBytes(elsewhere), AllOf(StartsWith("lumenkit: "), Not(HasSubstr("\x1b"))));
    EXPECT_THAT(RunOnTerminal(arguments + " >" + elsewhere).output, StartsWith("\x1b[31mlumenkit"));
    EXPECT_THAT(FileBytes(elsewhere), Not(HasSubstr("\x1b")));
}

TEST_F(CheckFolder, WaitsForNoPipe) {
    ASSERT_EQ(mkfifo((folder / "pipe.frm").c_str(), 0600), 0);
    fs::create_symlink("nowhere", folder / "link.frm");
    const Outcome outcome = Check();
    EXPECT_EQ(outcome.errors, "lumenkit: " + (folder / "link.frm").string() +
                                  ": cannot be read: No such file or directory\n");
    EXPECT_EQ(outcome.output, "0 files checked: 0 findings, 1 error\n");
}

TEST_F(CheckFolder, WaitsForNoNamedPipeThatIsACaption) {
    const std::string pipe = (folder / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    fs::create_symlink("pipe", folder / "link.txt");
    const Outcome outcome = RunProgram("check --caption " + pipe);
    EXPECT_EQ(outcome.errors, "lumenkit: " + pipe + ": is not a plain file\n");
    EXPECT_EQ(outcome.status, 2);
    const std::string link = (folder / "link.txt").string();
    EXPECT_EQ(RunProgram("check --caption " + link).errors,
              "lumenkit: " + link + ": is not a plain file\n");
}

TEST_F(CheckFolder, ReadsCaptionsFromPipesOfAShell) {
    for (const char* const name : {"-", "/dev/stdin", "/dev/fd/0"}) {
        EXPECT_EQ(RunProgram(std::string("check --caption ") + name, "|blod:1|\n").status, 1)
            << name;
    }
    // The program's standard input itself is a named pipe, and another one has no name.
    const std::string pipe = (folder / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(RunOnTerminal("check --caption /dev/stdin <" + pipe + " & echo '|u:1|' >" + pipe +
                            "; wait $!")
                  .status,
              1);
    EXPECT_EQ(RunOnTerminal("check --caption /dev/fd/3 3<&0", "echo '|u:1|' |").status, 1);
}

TEST_F(CheckFolder, TheBarIsTheErrorStreamsOwn) {
    WriteForms(30, "|blod:1|");
    const std::string found = (folder / "found").string();
    const Outcome outcome = RunOnTerminal("check " + folder.string() + " >" + found);
    EXPECT_THAT(outcome.output, HasSubstr("] 0%"));
    EXPECT_THAT(FileBytes(found), Not(HasSubstr("\x1b")));
    EXPECT_THAT(FileBytes(found), EndsWith("\n30 files checked: 30 findings\n"));
}

}  // namespace

}  // namespace lumenkit::testing
