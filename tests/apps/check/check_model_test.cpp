// Compares the checks with literal models of the compiler, of restrictions and of contents, on
// generated texts.
#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/caption_check.h"
#include "apps/lumenkit/check/caption_outline.h"
#include "apps/lumenkit/check/contents_check.h"
#include "apps/lumenkit/check/memo_check.h"
#include "apps/lumenkit/check/rules.h"
#include "frame/numbers.h"
#include "frame/utf8.h"
#include "tests/model/caption_generator.h"
#include "tests/model/literal_caption_compiler.h"
#include "tests/model/literal_restrictions.h"
#include "tests/support/test_seed.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::CompileLiterally;
using lumenkit::testing::LiteralCaption;

// Whether every command draws something, judged by the compiled lists only.
bool DrawsAll(const LiteralCaption& literal) {
    for (std::size_t i = 0; i < literal.CommandNames.size(); ++i) {
        const Text& name = literal.CommandNames[i];
        const Text& parameter = literal.CommandParams[i];
        const bool isSwitch = name == u"b" || name == u"i";
        if (!isSwitch && name != u"color" && name != u"size" && name != u"before") {
            return false;
        }
        if ((isSwitch && parameter != u"0" && parameter != u"1") ||
            (name == u"size" && ParseNumber(parameter) <= 1)) {
            return false;
        }
    }
    return literal.reports.empty();
}

// Whether one of the remarks is about a fault that the compiled lists show.
bool FaultsCommands(const Remarks& remarks) {
    const std::set<std::string_view> rules = {
        rules::unknownCommand.name, rules::ineffectiveSize.name, rules::numberOverflow.name};
    return std::any_of(remarks.begin(), remarks.end(),
                       [&](const Remark& remark) { return rules.contains(remark.rule); });
}

void CheckOutline(TextView caption, const LiteralCaption& literal) {
    const CaptionOutline outline = OutlineOf(caption);
    EXPECT_EQ(outline.lines, literal.CaptionLines.size());
    std::vector<Text> parameters;
    for (const WrittenCommand& command : outline.commands) {
        EXPECT_EQ(caption.substr(command.offset, 1), u"|");
        if (command.text.find(u'"') == Text::npos) {
            EXPECT_EQ(caption.substr(command.offset + 1, command.text.size()), command.text);
            const TextView behind = caption.substr(command.offset + 1 + command.text.size());
            EXPECT_TRUE(command.closed ? behind.starts_with(u'|')
                                       : behind.empty() || behind.starts_with(u'|'));
        }
        if (command.kept) {
            parameters.push_back(command.parameter);
        }
    }
    // A line that does not compile to its end leaves its commands in the compiled lists.
    ASSERT_LE(parameters.size(), literal.CommandParams.size());
    EXPECT_TRUE(std::equal(parameters.begin(), parameters.end(), literal.CommandParams.begin()));
    EXPECT_TRUE(outline.overflows || parameters.size() == literal.CommandParams.size());
}

TEST(CheckModel, CaptionsAreOutlinedAndFaultedAsTheyCompile) {
    lumenkit::testing::CaptionGenerator generator(lumenkit::testing::TestSeed());
    int drawsAll = 0;
    int faulted = 0;
    for (int i = 0; i < 4000; ++i) {
        const Text caption = generator.Caption();
        const LiteralCaption literal = CompileLiterally(caption);
        CheckOutline(caption, literal);
        const Remarks remarks = CheckCaption(caption);
        for (const Remark& remark : remarks) {
            ASSERT_LE(remark.offset, caption.size());
        }
        if (DrawsAll(literal)) {
            ++drawsAll;
            EXPECT_FALSE(FaultsCommands(remarks)) << ToUtf8(caption);
        } else {
            ++faulted;
            EXPECT_FALSE(remarks.empty()) << ToUtf8(caption);
        }
        ASSERT_FALSE(HasFailure()) << ToUtf8(caption);
    }
    EXPECT_GT(drawsAll, 100);
    EXPECT_GT(faulted, 1000);
}

class TextGenerator {
 public:
    explicit TextGenerator(std::uint32_t seed) : engine_(seed) {}

    int Below(int bound) { return static_cast<int>(engine_() % static_cast<unsigned>(bound)); }
    Text Of(std::initializer_list<TextView> pieces, int most) {
        Text text;
        for (int count = Below(most); count > 0; --count) {
            text += pieces.begin()[Below(static_cast<int>(pieces.size()))];
        }
        return text;
    }

 private:
    std::mt19937 engine_;
};

TEST(CheckModel, MemosAreFaultedWhereRestrictingChangesThem) {
    TextGenerator generator(lumenkit::testing::TestSeed());
    int faulted = 0;
    for (int i = 0; i < 20000; ++i) {
        const Text text = generator.Of({u"a", u"bc", u" ", u"\r\n", u"\r", u"\n"}, 16);
        const auto maxChars = static_cast<std::int16_t>(generator.Below(6));
        const auto maxLines = static_cast<std::int16_t>(generator.Below(4));
        const bool changes =
            (maxChars != 0 || maxLines != 0) &&
            lumenkit::testing::RestrictLiterally(text, maxChars, maxLines, false).s != text;
        const Remarks remarks = CheckMemoText(text, {maxChars, maxLines});
        EXPECT_EQ(!remarks.empty(), changes) << ToUtf8(text) << ' ' << maxChars << ' ' << maxLines;
        faulted += changes ? 1 : 0;
    }
    EXPECT_GT(faulted, 1000);
}

// Splits contents by the same grammar, unit by unit.
std::vector<Text> ValuesLiterally(const Text& contents) {
    std::vector<Text> values(1);
    bool inCaption = false;
    for (std::size_t i = 0; i < contents.size(); ++i) {
        if (contents[i] == u'|') {
            inCaption = false;
            if (i + 1 < contents.size()) {
                values.emplace_back();
            }
        } else if (contents[i] == u';') {
            inCaption = true;
        } else if (!inCaption) {
            values.back() += contents[i];
        }
    }
    return values;
}

TEST(CheckModel, ContentsAreFaultedForEachValueThatWasThereBefore) {
    TextGenerator generator(lumenkit::testing::TestSeed());
    std::size_t faulted = 0;
    for (int i = 0; i < 20000; ++i) {
        const Text contents = generator.Of({u"a", u"A", u"b", u"|", u"|", u";", u" "}, 14);
        std::vector<Text> values = ValuesLiterally(contents);
        std::set<Text> different;
        for (const Text& value : values) {
            different.insert(LCase(value));
        }
        const ContentsCheck check = CheckContents(contents);
        EXPECT_EQ(check.itemCount, values.size()) << ToUtf8(contents);
        EXPECT_EQ(check.remarks.size(), values.size() - different.size()) << ToUtf8(contents);
        faulted += check.remarks.size();
    }
    EXPECT_GT(faulted, 1000U);
}

}  // namespace
}  // namespace lumenkit::check
