// "lumenkit check --fix" and "--diff", as a user runs them.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"
#include "tests/support/file_size_limit.h"

namespace lumenkit::testing {

namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::string FormWith(const std::string& caption) {
    return "VERSION 5.00\r\nBegin VB.Form F\r\n Begin lumenkit.VLabel L\r\n  Caption = \"" +
           caption + "\"\r\n End\r\nEnd\r\n";
}

class FixCommand : public ::testing::Test {
 protected:
    FixCommand()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "fix_command_test_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()) {
        fs::remove_all(folder);
        fs::create_directories(folder / ".git");
    }
    ~FixCommand() override {
        fs::permissions(folder, fs::perms::owner_all);
        fs::remove_all(folder);
    }

    void Write(const std::string& name, std::string_view bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name) const { return FileBytes(folder / name); }
    Outcome Check(const std::string& options, const std::string& file = "") const {
        return RunProgram("check " + options + ' ' + (folder / file).string());
    }
    std::ptrdiff_t Count() const {
        return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
    }

    const fs::path folder;
};

TEST_F(FixCommand, MendsFormsAndReportsTheRest) {
    Write("a.frm", FormWith("|u:1|x|Blod:1|y"));
    const std::string name = (folder / "a.frm").string();
    const Outcome outcome = Check("--fix");
    EXPECT_EQ(outcome.output,
              name +
                  ":4:14: fixed: L.Caption: the command \"u\" draws italic text, not underlined "
                  "text [underline-is-italic]\n" +
                  name +
                  ":4:20: warning: L.Caption: unknown command \"Blod\"; did you mean \"bold\"? "
                  "[unknown-command]\n"
                  "1 file checked: 1 finding, 1 fixed (1 more with --fix=all)\n");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(Read("a.frm"), FormWith("|i:1|x|Blod:1|y"));
    EXPECT_EQ(Check("--fix").output.find("fixed:"), std::string::npos);
    EXPECT_EQ(Check("--fix=all").status, 0);
    EXPECT_EQ(Read("a.frm"), FormWith("|i:1|x|bold:1|y"));
    EXPECT_EQ(Check("--fix=all").output, "1 file checked: 0 findings\n");
    EXPECT_EQ(Count(), 2) << "only .git and the form";
}

TEST_F(FixCommand, PlacesOfTheRestAreThoseOfTheMendedFile) {
    Write("a.frm", FormWith("|size:1|x|xyzzy:1|y"));
    EXPECT_THAT(Check("--fix").output, HasSubstr("a.frm:4:15: warning: "));
}

TEST_F(FixCommand, MendsCaptionsAndKeepsTheEndOfTheFile) {
    for (const char* const end : {"", "\n", "\r\n"}) {
        Write("a.txt", "\xEF\xBB\xBF|u:1|\xC3\xA4" + std::string(end));
        EXPECT_EQ(Check("--caption --fix", "a.txt").status, 0);
        EXPECT_EQ(Read("a.txt"), "\xEF\xBB\xBF|i:1|\xC3\xA4" + std::string(end));
    }
    Write("a.txt", "one\r\ntwo\r\n");
    EXPECT_EQ(Check("--caption --fix", "a.txt").status, 1);
    EXPECT_EQ(Read("a.txt"), "one\r\ntwo\r\n");
    EXPECT_EQ(Check("--caption --fix=all", "a.txt").status, 0);
    EXPECT_EQ(Read("a.txt"), "one|CR|two\r\n");
}

TEST_F(FixCommand, MendsTextsInTheCompanionAndBothFilesTogether) {
    const fs::path sample = fs::path(LUMENKIT_SOURCE_DIR) / "tests/apps/check/forms";
    fs::copy(sample / "labels.frm", folder);
    fs::copy(sample / "labels.frx", folder);
    const std::string companion = Read("labels.frx");
    const Outcome diff = Check("--diff", "labels.frm");
    EXPECT_THAT(diff.output,
                HasSubstr("labels.frm:34: lblElsewhere.Caption, in labels.frx\n# @@ -1,2 +1,2 @@\n"
                          "# -tab\\u0009here\\u000D\n# +tab here\\u000D\n#  |b:1|x|it:1|\n"));
    EXPECT_THAT(diff.output, HasSubstr("    Caption         =   $\"labels.frx\":0000\n"))
        << "as context, without a change";
    EXPECT_EQ(Read("labels.frx"), companion);
    EXPECT_EQ(Check("--fix --rule control-character", "labels.frm").status, 1);
    EXPECT_EQ(Read("labels.frx"), companion +
                                      "\x16"
                                      "tab here\r\n|b:1|x|it:1|");
    EXPECT_THAT(Check("", "labels.frm").output, HasSubstr("offset 8: the line end"));
}

TEST_F(FixCommand, KeepsBytesThatAreNotInTheValues) {
    // Windows-1252, and a byte order mark.
    Write("a.frm",
          "VERSION 5.00\nBegin VB.Form F\n Caption = \"\xE4\"\n Begin lumenkit.VLabel L\n"
          "  Caption = \"\xFC|u:1|\xDF\" '\xD6\n End\nEnd\n' \x80\n");
    std::string mended = Read("a.frm");
    mended.replace(mended.find("u:1"), 1, "i");
    EXPECT_EQ(Check("--fix", "a.frm").status, 0);
    EXPECT_EQ(Read("a.frm"), mended);
    Write("b.frm", "\xEF\xBB\xBF" + FormWith("\xC3\xA4|u:1|"));
    EXPECT_EQ(Check("--fix", "b.frm").status, 0);
    EXPECT_EQ(Read("b.frm"), "\xEF\xBB\xBF" + FormWith("\xC3\xA4|i:1|"));
}

TEST_F(FixCommand, MendsOnlySelectedFindings) {
    const std::string form = FormWith("|u:1|x|Blod:1|y|size:1|");
    const auto fixed = [&](const std::string& options) {
        Write("a.frm", form);
        Check("--fix=all " + options);
        return Read("a.frm");
    };
    EXPECT_EQ(fixed("--rule unknown-command"), FormWith("|u:1|x|bold:1|y|size:1|"));
    EXPECT_EQ(fixed("--no-rule unknown-command"), FormWith("|i:1|x|Blod:1|y"));
    EXPECT_EQ(fixed("--severity warning"), FormWith("|u:1|x|bold:1|y|size:1|"));
    Write("a.frm", FormWith("|Blod:1|"));
    const std::string known = (folder / "known.json").string();
    EXPECT_EQ(Check("--write-baseline " + known).status, 0);
    EXPECT_EQ(fixed("--baseline " + known), FormWith("|i:1|x|Blod:1|y"));
    Write(".lumenkit", "underline-is-italic a.frm\n");
    EXPECT_EQ(fixed(""), FormWith("|u:1|x|bold:1|y"));
}

TEST_F(FixCommand, DiffWritesNoFileAndIsAPatch) {
    const std::string form = FormWith("|u:1|x|Blod:1|y");
    Write("a.frm", form);
    Write("b c.frm", FormWith("|u:1|"));
    Write("good.frm", FormWith("x"));
    for (const std::string options : {"--diff", "--fix --diff", "--fix=all --diff"}) {
        Write("a.frm", form);
        Write("b c.frm", FormWith("|u:1|"));
        const Outcome diff = RunOnTerminal("check " + options + " . >diff 2>errors",
                                           "cd '" + folder.string() + "' &&");
        EXPECT_EQ(diff.status, 1);
        EXPECT_EQ(Read("a.frm"), form);
        EXPECT_THAT(Read("errors"), StartsWith("3 files checked: "));
        const std::string patch =
            "cd '" + folder.string() + "' && patch -p1 -s --no-backup-if-mismatch <diff";
        ASSERT_EQ(std::system(patch.c_str()), 0);
        const std::string patched = Read("a.frm");
        Write("a.frm", form);
        EXPECT_EQ(Read("b c.frm"), FormWith("|i:1|"));
        Check(options.starts_with("--fix=all") ? "--fix=all" : "--fix", "a.frm");
        EXPECT_EQ(Read("a.frm"), patched);
        EXPECT_NE(patched, form);
    }
}

TEST_F(FixCommand, DiffWithoutDifferencesIsEmpty) {
    Write("a.frm", FormWith("|xyzzy:1|"));
    const Outcome diff = Check("--fix=all --diff");
    EXPECT_EQ(diff.output, "");
    EXPECT_EQ(diff.errors, "1 file checked: 0 findings would be fixed\n");
    EXPECT_EQ(diff.status, 0);
    Write("b.frm", "no form");
    EXPECT_EQ(Check("--diff").status, 2);
}

TEST_F(FixCommand, ADiffOnATerminalHasColorsAndNoControlCharacters) {
    Write("a.frm", FormWith("|u:1|\xC2\x9B"));
    const Outcome diff = RunOnTerminal("check --diff " + (folder / "a.frm").string());
    EXPECT_THAT(diff.output, HasSubstr("\x1b[31m-  Caption = \"|u:1|"));
    EXPECT_THAT(diff.output, Not(HasSubstr("\xC2\x9B")));
}

// Czech in code page 1250, read as 1252: 9D is a letter there and a control character here.
TEST_F(FixCommand, KeepsLettersOfAnotherCodePage) {
    const std::string form = FormWith("Zvolte s\xED\x9D");
    for (const std::string options : {"--fix", "--fix=all"}) {
        Write("a.frm", form);
        EXPECT_THAT(Check(options, "a.frm").output, HasSubstr("[control-character]"));
        EXPECT_EQ(Read("a.frm"), form);
    }
    Write("a.frm", FormWith("s\xED\x9D\tx"));
    EXPECT_EQ(Check("--fix --code-page 1250", "a.frm").status, 0);
    EXPECT_EQ(Read("a.frm"), FormWith("s\xED\x9D x"));
}

TEST_F(FixCommand, RefusesFoldersOfTextsThatNeedNotBeCaptions) {
    Write("CMakeLists.txt", "project(x)\nadd_library(y)\n");
    const Outcome outcome = Check("--caption --fix=all");
    EXPECT_THAT(outcome.errors, HasSubstr("is a folder"));
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(Read("CMakeLists.txt"), "project(x)\nadd_library(y)\n");
    EXPECT_THAT(Check("--caption --fix=all --diff").output, HasSubstr("CMakeLists.txt"));
}

TEST_F(FixCommand, ForcedColoursDoNotSpoilADiffForAProgram) {
    Write("a.frm", FormWith("|u:1|"));
    EXPECT_THAT(Check("--diff --color=always", "a.frm").output, Not(HasSubstr("\x1b")));
}

TEST_F(FixCommand, IsAFilter) {
    const Outcome caption = RunProgram("check --caption --fix -", "|u:1|x\r\n");
    EXPECT_EQ(caption.output, "|i:1|x\r\n");
    EXPECT_THAT(caption.errors, EndsWith("1 file checked: 0 findings, 1 fixed\n"));
    EXPECT_EQ(caption.status, 0);
    EXPECT_EQ(RunProgram("check --caption --fix /dev/stdin", "|u:1|x").output, "|i:1|x");
    EXPECT_EQ(RunProgram("check --caption --fix -", "").output, "");
    const Outcome form = RunProgram("check --fix=all -", FormWith("|Blod:1|"));
    EXPECT_EQ(form.output, FormWith("|bold:1|"));
    const Outcome json = RunProgram("check --fix --json -", FormWith("x"));
    EXPECT_EQ(json.output, FormWith("x"));
    EXPECT_EQ(json.errors,
              "{\"version\":1,\"files\":1,\"findings\":[],\"errors\":[],\"fixed\":[]}\n");
    const Outcome diff = RunProgram("check --diff -", FormWith("|u:1|"));
    EXPECT_THAT(diff.output, StartsWith("--- a/-\n+++ b/-\n@@ -1,6 +1,6 @@\n"));
}

TEST_F(FixCommand, AFilterLosesNothing) {
    const Outcome form = RunProgram("check --fix -", "no form\n");
    EXPECT_EQ(form.output, "no form\n");
    EXPECT_EQ(form.status, 2);
    const Outcome caption = RunProgram("check --caption --fix -", "|u:1|\xFF\n");
    EXPECT_EQ(caption.output, "|u:1|\xFF\n");
    EXPECT_EQ(caption.status, 2);
}

TEST_F(FixCommand, JsonHasTheMendedFindings) {
    Write("a.frm", FormWith("|u:1|x|Blod:1|y"));
    const auto json = nlohmann::json::parse(Check("--fix --json").output);
    ASSERT_EQ(json["fixed"].size(), 1U);
    EXPECT_EQ(json["fixed"][0]["rule"], "underline-is-italic");
    EXPECT_EQ(json["findings"].size(), 1U);
    EXPECT_FALSE(nlohmann::json::parse(Check("--json").output).contains("fixed"));
    for (const char* const format : {"sarif", "github"}) {
        Write("a.frm", FormWith("|u:1|x|Blod:1|y"));
        const Outcome outcome = Check(std::string("--fix --format ") + format);
        EXPECT_THAT(outcome.output, HasSubstr("unknown command"));
        EXPECT_THAT(outcome.output, Not(HasSubstr("not underlined")));
        EXPECT_EQ(Read("a.frm"), FormWith("|i:1|x|Blod:1|y"));
    }
}

TEST_F(FixCommand, ReadOnlyFilesStayAndAreReported) {
    Write("a.frm", FormWith("|u:1|"));
    Write("a.txt", "|u:1|");
    Write("b.frm", FormWith("|u:1|"));
    for (const char* const name : {"a.frm", "a.txt"}) {
        fs::permissions(folder / name, fs::perms::owner_read);
        const std::string options = std::string(name) == "a.txt" ? "--caption --fix" : "--fix";
        const Outcome outcome = Check(options, name);
        EXPECT_EQ(outcome.errors, "lumenkit: " + (folder / name).string() + ": is read-only\n");
        EXPECT_THAT(outcome.output, HasSubstr("[underline-is-italic]"));
        EXPECT_THAT(outcome.output, EndsWith("1 file checked: 1 finding, 1 error\n"));
        EXPECT_EQ(outcome.status, 2);
    }
    EXPECT_EQ(Check("--fix").status, 2);
    EXPECT_EQ(Read("a.frm"), FormWith("|u:1|"));
    EXPECT_EQ(Read("b.frm"), FormWith("|i:1|")) << "the next file was mended";
    EXPECT_EQ(Check("--diff", "a.frm").status, 1) << "a diff needs no permission to write";
}

TEST_F(FixCommand, AFullDiskLosesNothing) {
    const std::string text(20000, 'x');
    Write("a.frm", FormWith("|u:1|" + text));
    Write("a.txt", "|u:1|" + text);
    {
        const FileSizeLimit limit(8192);
        EXPECT_EQ(Check("--fix", "a.frm").status, 2);
        EXPECT_EQ(Check("--caption --fix", "a.txt").status, 2);
    }
    EXPECT_EQ(Read("a.frm"), FormWith("|u:1|" + text));
    EXPECT_EQ(Read("a.txt"), "|u:1|" + text);
    EXPECT_EQ(Count(), 3);
}

TEST_F(FixCommand, PipesAndLinks) {
    const std::string pipe = (folder / "pipe").string();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string options : {"--fix", "--caption --fix"}) {
        const Outcome outcome = RunProgram("check " + options + ' ' + pipe);
        EXPECT_EQ(outcome.errors, "lumenkit: " + pipe + ": is not a plain file\n");
        EXPECT_EQ(outcome.status, 2);
    }
    EXPECT_TRUE(fs::is_fifo(pipe));
    // What came from a pipe of the shell cannot be written back.
    const Outcome shell = RunOnTerminal("check --caption --fix /dev/fd/3 3<&0", "echo '|u:1|' |");
    EXPECT_THAT(shell.output, HasSubstr("/dev/fd/3: is not a plain file"));
    EXPECT_EQ(shell.status, 2);
    Write("a.txt", "|u:1|");
    fs::permissions(folder / "a.txt", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("a.txt", folder / "link.txt");
    EXPECT_EQ(Check("--caption --fix", "link.txt").status, 0);
    EXPECT_EQ(Read("a.txt"), "|i:1|");
    EXPECT_TRUE(fs::is_symlink(folder / "link.txt"));
    EXPECT_EQ(fs::status(folder / "a.txt").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(FixCommand, SeveralAtATimeLoseNothing) {
    for (int round = 0; round < 10; ++round) {
        Write("a.frm", FormWith("|u:1|a|Blod:1|b"));
        Write("a.txt", "|u:1|a|Blod:1|b");
        const auto start = [&](const std::string& options, const std::string& file) {
            const std::string command = LUMENKIT_PROGRAM " check " + options + ' ' +
                                        (folder / file).string() + " >/dev/null 2>&1";
            static_cast<void>(std::system(command.c_str()));
        };
        {
            const std::jthread one(start, "--fix", "a.frm");
            const std::jthread two(start, "--fix=all", "a.frm");
            const std::jthread three(start, "--caption --fix", "a.txt");
            const std::jthread four(start, "--caption --fix=all", "a.txt");
        }
        const std::string form = Read("a.frm");
        EXPECT_TRUE(form == FormWith("|i:1|a|Blod:1|b") || form == FormWith("|i:1|a|bold:1|b"));
        const std::string caption = Read("a.txt");
        EXPECT_TRUE(caption == "|i:1|a|Blod:1|b" || caption == "|i:1|a|bold:1|b");
        EXPECT_EQ(Count(), 3);
    }
}

TEST_F(FixCommand, RefusesOptionsThatDoNotGoTogether) {
    Write("a.frm", FormWith("|u:1|"));
    for (const std::string options :
         {"--diff --json", "--diff --format text", "--diff --write-baseline x",
          "--fix --write-baseline x", "--fix=some"}) {
        EXPECT_EQ(Check(options).status, 2) << options;
    }
    EXPECT_EQ(Read("a.frm"), FormWith("|u:1|"));
}

}  // namespace

}  // namespace lumenkit::testing
