// What bash, zsh and fish offer, by their own completion.
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "tests/apps/manual/shell_output.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;
using ::testing::Not;

using Words = std::vector<std::string>;

// The word itself, without the folders before it, the option before it and the slash after it,
// which the shells add or leave out.
std::string Bare(std::string word) {
    while (word.ends_with('/') || word.ends_with('=') || word.ends_with(' ')) {
        word.pop_back();
    }
    std::erase(word, '\\');  // zsh writes "my\ form"
    return word.substr(word.find_last_of("/=") + 1);
}

class Completion : public ::testing::TestWithParam<std::string> {
 protected:
    Completion() : folder_(fs::path(LUMENKIT_BINARY_DIR) / "completion_files" / GetParam()) {
        fs::remove_all(folder_);
        fs::create_directories(folder_ / "forms" / "sub");
        for (const char* name : {"a.frm", "B.CTL", "my form.dob", "notes.md", "one.txt",
                                 "known.json", "picture.png"}) {
            std::ofstream(folder_ / "forms" / name) << "x";
        }
    }
    ~Completion() override { fs::remove_all(folder_); }

    std::string RunLine(const std::string& line) const {
        const std::string program = line.substr(0, line.find(' '));
        const ShellOutput output =
            OutputOf("cd " + folder_.string() + " && HOME=" + folder_.string() + " timeout 60 " +
                     GetParam() + (GetParam() == "fish" ? " --no-config " : " ") +
                     LUMENKIT_SOURCE_DIR + "/tests/apps/manual/complete." + GetParam() + ' ' +
                     LUMENKIT_BINARY_DIR "/manual/" + program + " '" + line + "'");
        EXPECT_EQ(output.status, 0) << line << '\n' << output.text;
        return output.text;
    }

    // In alphabetical order. Where nothing else fits, zsh offers options too.
    Words Offered(const std::string& line) const {
        const bool isOption = line[line.rfind(' ') + 1] == '-';
        std::istringstream lines(RunLine(line));
        std::set<std::string> words;
        for (std::string word; std::getline(lines, word);) {
            if (!word.empty() && (isOption || !word.starts_with('-'))) {
                words.insert(Bare(word));
            }
        }
        return {words.begin(), words.end()};
    }

 private:
    const fs::path folder_;
};

struct Row {
    std::string line;
    Words offered;
};

TEST_P(Completion, OffersCommandsOptionsAndValues) {
    const std::vector<Row> rows = {
        {"lumenkit ", {"check", "compile", "completion", "drive", "help"}},
        {"lumenkit ch", {"check"}},
        {"lumenkit --color always dr", {"drive"}},
        {"lumenkit --color=always dr", {"drive"}},
        {"lumenkit --col", {"--color"}},
        {"lumenkit --color ", {"always", "auto", "never"}},
        {"lumenkit check --sev", {"--severity"}},
        {"lumenkit check --no-r", {"--no-rule"}},
        {"lumenkit check --severity ", {"error", "note", "warning"}},
        {"lumenkit check --format=", {"github", "json", "sarif", "text"}},
        {"lumenkit check --format j", {"json"}},
        {"lumenkit check --json --color=a", {"always", "auto"}},
        {"lumenkit --color never check --rule unread-", {"unread-property"}},
        {"lumenkit check --code-page shift", {"shift_jis"}},
        {"lumenkit check --jobs ", {}},
        {"lumenkit compile --te", {"--text"}},
        {"lumenkit completion ", {"bash", "fish", "zsh"}},
        {"lumenkit completion bash ", {}},
        {"lumenkit help d", {"drive"}},
        {"lumenkit write", {}},
    };
    for (const Row& row : rows) {
        EXPECT_THAT(Offered(row.line), ElementsAreArray(row.offered)) << row.line;
    }
}

TEST_P(Completion, OffersFilesByTheirExtensions) {
    const std::vector<Row> rows = {
        {"lumenkit check forms/", {"B.CTL", "a.frm", "my form.dob", "one.txt", "sub"}},
        {"lumenkit check --caption x.txt forms/a", {"a.frm"}},
        {"lumenkit check --baseline forms/", {"known.json", "sub"}},
        {"lumenkit check --baseline=forms/k", {"known.json"}},
        {"lumenkit compile --json forms/", {"one.txt", "sub"}},
        {"lumenkit drive forms/", {}},
    };
    for (const Row& row : rows) {
        EXPECT_THAT(Offered(row.line), ElementsAreArray(row.offered)) << row.line;
    }
}

#ifdef LUMENKIT_FORM_PROGRAM
TEST_P(Completion, OffersFormsToTheDesigner) {
    const std::vector<Row> rows = {
        {"lumenform re", {"render"}},
        {"lumenform forms/a", {"a.frm"}},
        {"lumenform render forms/", {"B.CTL", "a.frm", "my form.dob", "sub"}},
        {"lumenform render forms/a.frm -o forms/", {"picture.png", "sub"}},
        {"lumenform render forms/a.frm --output=forms/p", {"picture.png"}},
        {"lumenform render forms/a.frm --da", {"--dark"}},
        {"lumenform render forms/a.frm forms/", {}},
    };
    for (const Row& row : rows) {
        EXPECT_THAT(Offered(row.line), ElementsAreArray(row.offered)) << row.line;
    }
}
#endif

TEST_P(Completion, TheProgramPrintsTheInstalledScript) {
    const std::string shell = GetParam();
    const std::string name = shell == "zsh"    ? "_lumenkit"
                             : shell == "fish" ? "lumenkit.fish"
                                               : "lumenkit";
    const ShellOutput printed = OutputOf(LUMENKIT_PROGRAM " completion " + shell);
    EXPECT_EQ(printed.status, 0);
    EXPECT_EQ(printed.text,
              FileBytes(LUMENKIT_BINARY_DIR "/manual/lumenkit/" + shell + '/' + name));
    EXPECT_THAT(printed.text, Not(HasSubstr("write-manual")));
}

INSTANTIATE_TEST_SUITE_P(Shells, Completion, ::testing::Values("bash", "zsh", "fish"),
                         [](const auto& shell) { return shell.param; });

TEST(CompletionCommand, RefusesAnotherShell) {
    EXPECT_EQ(OutputOf(LUMENKIT_PROGRAM " completion csh").status, 2);
    EXPECT_EQ(OutputOf(LUMENKIT_PROGRAM " completion").status, 2);
    EXPECT_EQ(OutputOf(LUMENKIT_PROGRAM " completion bash >/dev/full").status, 2);
}

}  // namespace

}  // namespace lumenkit::testing
