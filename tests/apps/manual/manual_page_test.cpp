// The manual pages, compared with the help of each command.
#include "apps/command_line/manual/manual_page.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "apps/command_line/manual/roff.h"
#include "tests/apps/manual/shell_output.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

struct Program {
    std::string name;
    std::string path;
};

const std::vector<Program> programs = {
    {"lumenkit", LUMENKIT_PROGRAM},
#ifdef LUMENKIT_FORM_PROGRAM
    {"lumenform", LUMENKIT_FORM_PROGRAM},
#endif
};

std::set<std::string> Found(const std::string& text, const std::string& pattern) {
    std::set<std::string> found;
    const std::regex expression(pattern, std::regex::multiline);
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end;
         ++match) {
        found.insert((*match)[1]);
    }
    return found;
}

// The lines of help from a heading up to the next empty line.
std::string PartOf(const std::string& help, const std::string& heading) {
    const std::size_t begin = help.find('\n' + heading + ":\n");
    return begin == std::string::npos ? ""
                                      : help.substr(begin, help.find("\n\n", begin + 1) - begin);
}

std::string Plain(const std::string& page) {
    const ShellOutput output = OutputOf("MANWIDTH=300 man -l -Tutf8 '" + page + "' | col -bx");
    EXPECT_EQ(output.status, 0);
    return output.text;
}

struct Page {
    std::string file;
    std::string help;
};

std::vector<Page> Pages() {
    std::vector<Page> pages;
    for (const Program& program : programs) {
        const std::string folder = LUMENKIT_BINARY_DIR "/manual/" + program.name + "/man1/";
        const std::string help = OutputOf(program.path + " --help").text;
        pages.push_back({folder + program.name + ".1", help});
        for (const std::string& command :
             Found(PartOf(help, "Subcommands"), "^  ([a-z][a-z-]*) ")) {
            pages.push_back({folder + program.name + '-' + command + ".1",
                             OutputOf(program.path + ' ' + command + " --help").text});
        }
    }
    return pages;
}

TEST(ManualPages, ThereIsOneForEachCommand) {
    std::set<std::string> expected;
    for (const Page& page : Pages()) {
        expected.insert(page.file);
    }
    std::set<std::string> written;
    for (const Program& program : programs) {
        for (const auto& entry :
             fs::directory_iterator(LUMENKIT_BINARY_DIR "/manual/" + program.name + "/man1")) {
            written.insert(entry.path().string());
        }
    }
    EXPECT_EQ(written, expected);
    EXPECT_GE(expected.size(), 5U);
}

TEST(ManualPages, AreFormattedWithoutAWarning) {
    for (const Page& page : Pages()) {
        const ShellOutput groff = OutputOf("groff -man -Tutf8 -ww -z '" + page.file + '\'');
        EXPECT_EQ(groff.text, "") << page.file;
        EXPECT_EQ(groff.status, 0) << page.file;
        const ShellOutput man = OutputOf("man --warnings -l -Tutf8 '" + page.file + "' >/dev/null");
        EXPECT_EQ(man.text, "") << page.file;
        EXPECT_EQ(man.status, 0) << page.file;
    }
}

TEST(ManualPages, HaveEveryOptionAndExitStatusOfTheHelp) {
    for (const Page& page : Pages()) {
        const std::string plain = Plain(page.file);
        const std::set<std::string> options =
            Found(PartOf(page.help, "Options"), "^  (-[^ ]*(?: [A-Z]+)?)");
        EXPECT_FALSE(options.empty()) << page.file;
        for (const std::string& option : options) {
            std::string written = option;
            if (const std::size_t comma = written.find(','); comma != std::string::npos) {
                written.insert(comma + 1, " ");
            }
            EXPECT_THAT(plain, HasSubstr("\n       " + written)) << page.file;
        }
        const std::set<std::string> statuses =
            Found(PartOf(page.help, "Exit status"), "^  ([0-9]) ");
        EXPECT_GE(statuses.size(), 2U) << page.file;
        const std::string part = plain.substr(std::min(plain.find("EXIT STATUS"), plain.size()));
        for (const std::string& status : statuses) {
            EXPECT_THAT(part, HasSubstr("\n       " + status + ' ')) << page.file;
        }
    }
}

TEST(ManualPages, HaveTheExamplesOfTheHelp) {
    for (const Page& page : Pages()) {
        const std::string plain = Plain(page.file);
        std::istringstream examples(PartOf(page.help, "Examples") + '\n');
        std::string line;
        std::getline(examples, line);
        std::getline(examples, line);
        int count = 0;
        while (std::getline(examples, line) && !line.empty()) {
            EXPECT_THAT(plain, HasSubstr("\n       " + line.substr(2) + '\n')) << page.file;
            ++count;
        }
        EXPECT_GE(count, 1) << page.file;
    }
}

TEST(ManualPages, DependOnNothingButTheProgram) {
    const fs::path folder = fs::path(LUMENKIT_BINARY_DIR) / "manual_again";
    fs::remove_all(folder);
    ASSERT_EQ(
        OutputOf("cd / && env -i " + programs[0].path + " write-manual " + folder.string()).status,
        0);
    int count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            const fs::path first = fs::path(LUMENKIT_BINARY_DIR) / "manual" / programs[0].name /
                                   entry.path().lexically_relative(folder);
            EXPECT_EQ(FileBytes(entry.path()), FileBytes(first)) << first;
            ++count;
        }
    }
    EXPECT_GE(count, 8);
    fs::remove_all(folder);
}

TEST(ManualPages, AFolderThatCannotBeWrittenIsAnError) {
    const ShellOutput output = OutputOf(programs[0].path + " write-manual /dev/null/manual");
    EXPECT_EQ(output.status, 2);
    EXPECT_THAT(output.text, HasSubstr("/dev/null/manual"));
}

TEST(Roff, PrintsATextAsItIs) {
    const std::string text =
        ".br is no request\n'and neither is this\n\\fBbold\\fR -x --long \"q\" `a` ^ ~ C:\\x";
    const std::string file = LUMENKIT_BINARY_DIR "/roff_test.1";
    std::ofstream(file) << ".TH X 1\n.SH NAME\n.nf\n" << cli::roff::Escaped(text) << '\n';
    const std::string plain = Plain(file);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_THAT(plain, HasSubstr("       " + line + '\n'));
    }
    fs::remove(file);
}

TEST(ManualPages, ShowWhatACommandNeeds) {
    cli::DescribedCommand command{.name = "draw",
                                  .description = "Draw a form",
                                  .positionals = {},
                                  .options = {},
                                  .notes = {},
                                  .needsCommand = false,
                                  .commands = {}};
    command.options.push_back({.names = {"-o", "--output"},
                               .placeholder = "PICTURE",
                               .description = "The picture",
                               .offered = {},
                               .required = true});
    command.positionals.push_back({.names = {},
                                   .placeholder = "FORM",
                                   .description = "The forms",
                                   .offered = {},
                                   .required = true,
                                   .repeats = true});
    cli::DescribedCommand program{.name = "kit",
                                  .description = "Draws.",
                                  .positionals = {},
                                  .options = {},
                                  .notes = {},
                                  .needsCommand = true,
                                  .commands = {command}};
    const auto pages = cli::ManualPages(program, "kit 1.0");
    ASSERT_THAT(pages, SizeIs(2));
    EXPECT_EQ(pages[0].name, "kit.1");
    EXPECT_EQ(pages[1].name, "kit-draw.1");
    EXPECT_THAT(pages[0].text, HasSubstr("kit \\- draws\n"));
    EXPECT_THAT(pages[0].text, HasSubstr("\\fBkit\\fR [\\fIOPTIONS\\fR] \\fICOMMAND\\fR\n"));
    EXPECT_THAT(pages[1].text,
                HasSubstr("\\fBkit draw\\fR \\fB\\-o\\fR \\fIPICTURE\\fR [\\fIOPTIONS\\fR] "
                          "\\fIFORM\\fR...\n"));
    EXPECT_THAT(pages[1].text, HasSubstr("kit\\-draw \\- draw a form\n"));
}

}  // namespace

}  // namespace lumenkit::testing
