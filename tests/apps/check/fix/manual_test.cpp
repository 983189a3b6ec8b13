// The manual shows what each mending does, and which rules have one.
#include <istream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/fix/file_fixes.h"
#include "apps/lumenkit/check/fix/mending_table.h"
#include "apps/lumenkit/check/rules.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "tests/apps/check/fix/drawn_labels.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::FileBytes;

std::istringstream Manual() {
    return std::istringstream(FileBytes(LUMENKIT_SOURCE_DIR "/docs/check.md"));
}

// A rule's example with its mending, "```caption" or "```frm".
struct Example {
    std::string kind;
    std::string faulty;
    std::string heading;  // the line above the mending
    std::string mended;
};

Example ExampleOf(std::string_view rule) {
    std::istringstream manual = Manual();
    const std::string title = "#### " + std::string(rule);
    std::string line;
    while (std::getline(manual, line) && line != title) {
    }
    Example example;
    std::string last;
    for (std::string* const text : {&example.faulty, &example.mended}) {
        while (std::getline(manual, line) && !line.starts_with("```")) {
            last = line;
        }
        example.kind = line.substr(3);
        example.heading = last;
        while (std::getline(manual, line) && line != "```") {
            *text += (text->empty() ? "" : "\n") + line;
        }
    }
    return example;
}

forms::Document FormOf(const Example& example, const std::string& text) {
    const std::string controls = example.kind == "caption" ? "Begin lumenkit.VLabel L\nEnd" : text;
    auto form = forms::Document::Parse(
        "x.frm", "VERSION 5.00\nBegin VB.Form F\n" + controls + "\nEnd\n", {});
    if (example.kind == "caption") {
        form.Root().Controls().front()->Set(u"Caption", forms::TextLiteral(FromUtf8(text)));
    }
    return form;
}

std::string Fixed(const Example& example, FixScope scope) {
    if (example.kind == "caption") {
        return ToUtf8(
            FixCaptionFile("x", FromUtf8(example.faulty), lumenkitClasses, {.scope = scope})
                .caption);
    }
    const forms::Document form = FormOf(example, example.faulty);
    FormFixer(form, lumenkitClasses, {.scope = scope}).Fix();
    return form.Write().form;
}

// As Fixed returns it.
std::string Expected(const Example& example, const std::string& text) {
    return example.kind == "caption" ? text : FormOf(example, text).Write().form;
}

// The rows of the table of mendings: the rule, and whether --fix makes its mending.
std::map<std::string, std::string> Table() {
    std::istringstream manual = Manual();
    std::map<std::string, std::string> rows;
    std::string line;
    while (std::getline(manual, line) && line != "| rule | mending | with `--fix` |") {
    }
    std::getline(manual, line);
    while (std::getline(manual, line) && line.starts_with("| `")) {
        const std::size_t end = line.find('`', 3);
        const std::size_t last = line.rfind("| ", line.size() - 2);
        rows[line.substr(3, end - 3)] = line.substr(last + 2, line.size() - last - 4);
    }
    return rows;
}

TEST(ManualOfFixes, HasEachMendingInItsTable) {
    std::set<std::string> rules;
    for (const auto& [rule, scope] : Table()) {
        rules.insert(rule);
    }
    std::set<std::string> mended;
    for (const RuleMending& mending : AllMendings()) {
        mended.emplace(mending.rule);
        EXPECT_NE(FindRule(mending.rule), nullptr);
        EXPECT_NE(mending.ofCaption == nullptr, mending.ofProperty == nullptr) << mending.rule;
    }
    EXPECT_EQ(rules, mended);
}

TEST(ManualOfFixes, ShowsWhatFixMakesOfEachExample) {
    int safe = 0;
    for (const Rule& rule : allRules) {
        const Example example = ExampleOf(rule.name);
        SCOPED_TRACE(rule.name);
        const std::string faulty = Expected(example, example.faulty);
        const std::string mended = Expected(example, example.mended);
        if (example.heading == "Mended by `--fix`:") {
            ++safe;
            EXPECT_EQ(Fixed(example, FixScope::Safe), mended);
            EXPECT_EQ(Fixed(example, FixScope::All), mended);
            std::string why;
            EXPECT_TRUE(lumenkit::testing::DrawTheSame(FormOf(example, example.faulty),
                                                       FormOf(example, example.mended), why));
        } else if (example.heading == "Mended by `--fix=all`:") {
            EXPECT_EQ(Fixed(example, FixScope::Safe), faulty);
            EXPECT_EQ(Fixed(example, FixScope::All), mended);
        } else {
            EXPECT_EQ(FindMending(rule.name), nullptr);
            EXPECT_EQ(Fixed(example, FixScope::All), faulty);
        }
    }
    EXPECT_EQ(safe, 4);
}

TEST(ManualOfFixes, SaysWhichRulesFixNeverMends) {
    for (const auto& [rule, scope] : Table()) {
        const std::string heading = ExampleOf(rule).heading;
        if (scope == "no") {
            EXPECT_EQ(heading, "Mended by `--fix=all`:") << rule;
        }
        if (scope == "yes") {
            EXPECT_EQ(heading, "Mended by `--fix`:") << rule;
        }
    }
}

}  // namespace
}  // namespace lumenkit::check
