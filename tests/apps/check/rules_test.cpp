// Checks that the manual and the help list every rule and that an example shows it.
#include "apps/lumenkit/check/rules.h"

#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include <gmock/gmock.h>

#include "tests/apps/program.h"

namespace lumenkit::check {
namespace {

using ::testing::HasSubstr;
using ::testing::SizeIs;

std::string Read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Rules, HaveNamesOfTheirOwn) {
    std::set<std::string_view> names;
    for (const Rule& rule : Rules()) {
        names.insert(rule.name);
    }
    EXPECT_THAT(names, SizeIs(Rules().size()));
}

TEST(Rules, AreInTheManualAndTheHelp) {
    const std::string manual = Read(LUMENKIT_SOURCE_DIR "/docs/check.md");
    const std::string help = lumenkit::testing::RunProgram("check --help").output;
    for (const Rule& rule : Rules()) {
        EXPECT_THAT(manual, HasSubstr("| `" + std::string(rule.name) + "` |"));
        EXPECT_THAT(help, HasSubstr("\n  " + std::string(rule.name) + ' '));
    }
}

TEST(Rules, AreShownByAnExample) {
    const std::string expected =
        Read(LUMENKIT_SOURCE_DIR "/tests/apps/check/forms_expected.txt") +
        lumenkit::testing::RunProgram("check --caption -", std::string(32768, 'x')).output +
        lumenkit::testing::RunProgram("check --caption " LUMENKIT_SOURCE_DIR
                                      "/tests/apps/check/captions/too_many_lines.txt")
            .output;
    for (const Rule& rule : Rules()) {
        EXPECT_THAT(expected, HasSubstr(" [" + std::string(rule.name) + "]\n"));
    }
}

}  // namespace
}  // namespace lumenkit::check
