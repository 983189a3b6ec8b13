// Checks that the manual and the help list every rule and that an example shows it.
#include "apps/lumenkit/check/rules.h"

#include <set>
#include <string>

#include <gmock/gmock.h>

#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::FileBytes;
using ::testing::HasSubstr;
using ::testing::SizeIs;

TEST(Rules, HaveNamesOfTheirOwn) {
    std::set<std::string_view> names;
    for (const Rule& rule : allRules) {
        names.insert(rule.name);
    }
    EXPECT_THAT(names, SizeIs(allRules.size()));
}

TEST(Rules, AreInTheManualAndTheHelp) {
    const std::string manual = FileBytes(LUMENKIT_SOURCE_DIR "/docs/check.md");
    const std::string help = lumenkit::testing::RunProgram("check --help").output;
    for (const Rule& rule : allRules) {
        EXPECT_THAT(manual, HasSubstr("| `" + std::string(rule.name) + "` |"));
        EXPECT_THAT(help, HasSubstr("\n  " + std::string(rule.name) + ' '));
    }
}

TEST(Rules, AreShownByAnExample) {
    const std::string expected =
        FileBytes(LUMENKIT_SOURCE_DIR "/tests/apps/check/forms_expected.txt") +
        lumenkit::testing::RunProgram("check --caption -", std::string(32768, 'x')).output +
        lumenkit::testing::RunProgram("check --caption " LUMENKIT_SOURCE_DIR
                                      "/tests/apps/check/captions/too_many_lines.txt")
            .output;
    for (const Rule& rule : allRules) {
        EXPECT_THAT(expected, HasSubstr(" [" + std::string(rule.name) + "]\n"));
    }
}

}  // namespace
}  // namespace lumenkit::check
