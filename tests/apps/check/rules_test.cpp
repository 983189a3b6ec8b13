// The manual and the help describe every rule, and the examples of the manual show it.
#include "apps/lumenkit/check/rules.h"

#include <istream>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/file_checks.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "tests/apps/program.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::FileBytes;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

// A fenced block of the manual: "```caption repeated 302".
struct Example {
    std::string kind;
    int repeated = 1;
    std::string text;
};

struct RulePage {
    std::string introduction;  // the line under the heading
    std::vector<Example> examples;
};

Example ReadExample(const std::string& fence, std::istream& manual) {
    Example example;
    std::istringstream words(fence.substr(3));
    std::string repeated;
    words >> example.kind;
    if (words >> repeated) {
        words >> example.repeated;
    }
    for (std::string line; std::getline(manual, line) && !line.starts_with("```");) {
        example.text += (example.text.empty() ? "" : "\n") + line;
    }
    return example;
}

std::optional<RulePage> PageOf(const Rule& rule) {
    std::istringstream manual(FileBytes(LUMENKIT_SOURCE_DIR "/docs/check.md"));
    const std::string heading = "#### " + std::string(rule.name);
    std::string line;
    while (std::getline(manual, line) && line != heading) {
    }
    RulePage page;
    if (!std::getline(manual, page.introduction)) {
        return std::nullopt;
    }
    while (std::getline(manual, line) && !line.starts_with('#')) {
        if (line.starts_with("```")) {
            page.examples.push_back(ReadExample(line, manual));
        }
    }
    return page;
}

std::set<std::string_view> RulesIn(const Example& example) {
    std::string text;
    for (int i = 0; i < example.repeated; ++i) {
        text += example.text;
    }
    const std::string form = "VERSION 5.00\nBegin VB.Form F\n" + text + "\nEnd\n";
    std::set<std::string_view> rules;
    for (const Finding& finding :
         example.kind == "caption"
             ? CheckCaptionFile("x.txt", FromUtf8(text))
             : CheckForm(forms::Document::Parse("x.frm", form, {}), lumenkitClasses)) {
        rules.insert(finding.rule);
    }
    return rules;
}

TEST(Rules, HaveNamesOfTheirOwn) {
    std::set<std::string_view> names;
    for (const Rule& rule : allRules) {
        names.insert(rule.name);
        EXPECT_EQ(FindRule(rule.name)->meaning, rule.meaning);
    }
    EXPECT_THAT(names, SizeIs(allRules.size()));
    EXPECT_EQ(FindRule("no-rule"), nullptr);
}

TEST(Rules, AreInTheHelp) {
    const std::string help = lumenkit::testing::RunProgram("check --help").output;
    for (const Rule& rule : allRules) {
        EXPECT_THAT(help, HasSubstr("\n  " + std::string(rule.name) + ' '));
    }
}

TEST(Rules, AreInTheManualWithTheirSeverity) {
    for (const Rule& rule : allRules) {
        const std::optional<RulePage> page = PageOf(rule);
        ASSERT_TRUE(page) << rule.name;
        std::string severity(NameOf(rule.severity));
        severity.front() = static_cast<char>(severity.front() - 'a' + 'A');
        EXPECT_EQ(page->introduction.substr(0, severity.size() + 2), severity + ". ") << rule.name;
    }
}

TEST(Rules, AreShownByAnExampleAndItsMending) {
    for (const Rule& rule : allRules) {
        const std::optional<RulePage> page = PageOf(rule);
        ASSERT_TRUE(page) << rule.name;
        ASSERT_THAT(page->examples, SizeIs(2)) << rule.name;
        EXPECT_THAT(RulesIn(page->examples[0]), Contains(rule.name));
        EXPECT_THAT(RulesIn(page->examples[1]), Not(Contains(rule.name)));
    }
}

}  // namespace
}  // namespace lumenkit::check
