// The options of "lumenkit check" that select findings, and the exceptions of projects and forms.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

// A form with a note, a warning and an error.
constexpr std::string_view form =
    "VERSION 5.00\n"
    "Begin VB.Form F\n"
    "   Begin lumenkit.VLabel lblTitle\n"
    "      Alignment = 1\n"
    "      BorderStyle = 7\n"
    "      Caption = \"|Blod:1|Title\"\n"
    "   End\n"
    "End\n";

class CheckOptions : public ::testing::Test {
 protected:
    CheckOptions()
        : folder(fs::path(LUMENKIT_BINARY_DIR) / "check_options_files" /
                 ::testing::UnitTest::GetInstance()->current_test_info()->name()) {
        fs::remove_all(folder);
        fs::create_directories(folder / ".git");
        Write("order.frm", form);
    }
    ~CheckOptions() override { fs::remove_all(folder); }

    void Write(const std::string& name, std::string_view bytes) const {
        fs::create_directories((folder / name).parent_path());
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    Outcome Check(const std::string& options, const std::string& path = ".") const {
        return RunProgram("check " + options + ' ' + (folder / path).lexically_normal().string());
    }
    // The rules of the findings, "a b c".
    std::string Rules(const std::string& options, const std::string& path = ".") const {
        const std::string output = Check(options, path).output;
        std::string rules;
        for (auto end = output.find("]\n"); end != std::string::npos;
             end = output.find("]\n", end + 1)) {
            const auto begin = output.rfind('[', end) + 1;
            rules += (rules.empty() ? "" : " ") + output.substr(begin, end - begin);
        }
        return rules;
    }

    const fs::path folder;
};

constexpr const char* all = "unread-property unreadable-value unknown-command";

TEST_F(CheckOptions, SelectByRule) {
    EXPECT_EQ(Rules(""), all);
    EXPECT_EQ(Rules("--rule unknown-command"), "unknown-command");
    EXPECT_EQ(Rules("--rule unknown-command --rule unread-property"),
              "unread-property unknown-command");
    EXPECT_EQ(Rules("--no-rule unknown-command"), "unread-property unreadable-value");
    EXPECT_EQ(Check("--rule lone-bar").status, 0);
    const Outcome wrong = Check("--rule unknown-comand");
    EXPECT_EQ(wrong.status, 2);
    EXPECT_THAT(wrong.errors, HasSubstr("there is no rule \"unknown-comand\""));
}

TEST_F(CheckOptions, SelectBySeverity) {
    EXPECT_EQ(Rules("--severity note"), all);
    EXPECT_EQ(Rules("--severity warning"), "unreadable-value unknown-command");
    EXPECT_EQ(Rules("--severity error"), "unreadable-value");
    EXPECT_EQ(Check("--severity error").status, 1);
    EXPECT_EQ(Check("--severity error --no-rule unreadable-value").status, 0);
    EXPECT_EQ(Check("--severity fatal").status, 2);
}

TEST_F(CheckOptions, AFileLeavesOutAcceptedFindings) {
    Write(".lumenkit", "# comment\n\nunread-property # everywhere\n");
    EXPECT_EQ(Rules(""), "unreadable-value unknown-command");
    Write(".lumenkit", "* other.frm\nunknown-command order.frm LBLTITLE\n");
    EXPECT_EQ(Rules(""), "unread-property unreadable-value");
    Write(".lumenkit", "* * lblTitle.Caption\n* * lblOther\n");
    EXPECT_EQ(Rules(""), "unread-property unreadable-value");
}

TEST_F(CheckOptions, AFileAppliesToItsFolderAndBelow) {
    Write("old/deep/order.frm", form);
    Write("old/.lumenkit", "unknown-command deep/*.frm\r\nunread-property\r\n");
    EXPECT_EQ(Rules("", "old"), "unreadable-value");
    EXPECT_EQ(Rules("", "order.frm"), all);
    fs::create_directories(folder / "old/deep/.git");
    EXPECT_EQ(Rules("", "old"), all) << "another project";
}

TEST_F(CheckOptions, AMalformedFileEndsTheRun) {
    Write(".lumenkit", "unread-property\nunknown-rule\n");
    const Outcome outcome = Check("");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, AllOf(StartsWith("lumenkit: "),
                                      HasSubstr(".lumenkit:2: there is no rule \"unknown-rule\"")));
    Write(".lumenkit", "* a b c\n");
    EXPECT_THAT(Check("").errors, HasSubstr(".lumenkit:1: expected a rule, a path and a control"));
}

TEST_F(CheckOptions, CommentsInTheCodeLeaveOutFindingsOfTheForm) {
    Write("order.frm", std::string(form) +
                           "Attribute VB_Name = \"F\"\n' lumenkit: allow unknown-command lblTitle\n"
                           "'LUMENKIT: ALLOW unread-property lbltitle.alignment\n"
                           "x = \"' lumenkit: allow *\"\n");
    EXPECT_EQ(Rules(""), "unreadable-value");
    Write("order.frm", std::string(form) + "  ' lumenkit: allow unknwon-command\n");
    EXPECT_EQ(Rules(""), std::string(all) + " not-understood");
    EXPECT_THAT(Check("").output,
                HasSubstr("order.frm:9:3: warning: there is no rule \"unknwon-command\""));
}

TEST_F(CheckOptions, ABaselineLeavesOnlyNewFindings) {
    const std::string file = (folder / "known.json").string();
    const Outcome written = Check("--write-baseline " + file);
    EXPECT_EQ(written.status, 0);
    EXPECT_EQ(Check("--baseline " + file).status, 0);
    // A line before the others, and a second unknown command.
    std::string changed(form);
    changed.insert(changed.find("   Begin lumenkit"), "   Caption = \"F\"\n");
    changed.replace(changed.find("Title\"\n"), 5, "|Blod:1|");
    Write("order.frm", changed);
    EXPECT_EQ(Rules("--baseline " + file), "unknown-command");
    EXPECT_EQ(Check("--baseline " + file).status, 1);
    fs::copy_file(folder / "order.frm", folder / "copy.frm");
    EXPECT_EQ(Rules("--baseline " + file, "copy.frm"),
              "unread-property unreadable-value unknown-command unknown-command");
}

TEST_F(CheckOptions, AnUnusableBaselineEndsTheRun) {
    const std::string file = (folder / "known.json").string();
    EXPECT_THAT(Check("--baseline " + file).errors, HasSubstr("known.json: cannot be read"));
    Write("known.json", "{\"version\":1}");
    EXPECT_THAT(Check("--baseline " + file).errors, HasSubstr("known.json: is no baseline"));
    Write("known.json", "{\"version\":2,\"findings\":[]}");
    EXPECT_THAT(Check("--baseline " + file).errors, HasSubstr("another version"));
    const Outcome unwritten = Check("--write-baseline " + (folder / "no/known.json").string());
    EXPECT_THAT(unwritten.errors, HasSubstr("known.json: cannot be written"));
    EXPECT_EQ(unwritten.status, 2);
    const std::string order = (folder / "order.frm").string();
    EXPECT_THAT(Check("--write-baseline " + order).errors, HasSubstr("order.frm: is no baseline"));
    EXPECT_EQ(FileBytes(order), form);
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_THAT(Check("--write-baseline " + file).errors,
                HasSubstr("known.json: is not a plain file"));
    EXPECT_TRUE(fs::is_fifo(file)) << "a device must not be replaced by a file";
    EXPECT_THAT(Check("--baseline " + file).errors, HasSubstr("known.json: is not a plain file"));
    ASSERT_EQ(mkfifo((folder / ".lumenkit").c_str(), 0600), 0);
    EXPECT_THAT(Check("").errors, HasSubstr(".lumenkit: is not a plain file"));
}

TEST_F(CheckOptions, ResultsAreInTheOrderOfTheFiles) {
    for (int i = 10; i < 60; ++i) {
        Write("many/form" + std::to_string(i) + ".frm",
              i % 7 == 0 ? std::string_view("VERSION 5.00\n") : form);
    }
    const Outcome one = Check("-j 1", "many");
    EXPECT_THAT(one.output, HasSubstr("form59.frm"));
    for (const char* jobs : {"-j 2", "-j 8", "--jobs 64", ""}) {
        const Outcome outcome = Check(jobs, "many");
        EXPECT_EQ(outcome.output, one.output) << jobs;
        EXPECT_EQ(outcome.errors, one.errors) << jobs;
        EXPECT_EQ(outcome.status, 2) << jobs;
    }
    EXPECT_EQ(Check("-j 0").status, 2);
}

TEST_F(CheckOptions, AFileNamedTwiceIsCheckedOnce) {
    fs::create_symlink("order.frm", folder / "link.frm");
    const std::string path = (folder / "order.frm").string();
    const Outcome outcome =
        RunProgram("check " + path + ' ' + (folder / "./order.frm").string() + ' ' +
                   (folder / "link.frm").string() + ' ' + folder.string());
    EXPECT_THAT(outcome.output, HasSubstr("1 file checked: 3 findings\n"));
}

TEST_F(CheckOptions, AFormIsReadFromTheStandardInput) {
    const Outcome outcome = RunProgram("check -", std::string(form));
    EXPECT_THAT(outcome.output, HasSubstr("-:6:18: warning: lblTitle.Caption: unknown command"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(RunProgram("check -", "no form").errors, StartsWith("lumenkit: -:1:1: expected"));
}

}  // namespace

}  // namespace lumenkit::testing
