// Mends generated forms and compares them with those before, without the help of the fixes.
#include <algorithm>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/fix/file_fixes.h"
#include "apps/lumenkit/check/rules.h"
#include "forms/controls.h"
#include "forms/literal.h"
#include "project/lumenkit_classes.h"
#include "tests/apps/check/fix/drawn_labels.h"
#include "tests/model/caption_generator.h"
#include "tests/support/form_generator.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::check {
namespace {

using lumenkit::testing::CaptionGenerator;
using lumenkit::testing::DrawTheSame;
using lumenkit::testing::FormGenerator;
using lumenkit::testing::GeneratedForm;
using lumenkit::testing::MessagesOf;
using lumenkit::testing::Rounds;

// Puts faulty values into a generated form, which keeps its encoding, line ends and companion.
class FaultGenerator {
 public:
    explicit FaultGenerator(std::uint32_t seed) : random_(seed), captions_(seed), forms_(seed) {}

    forms::Document Form() {
        const GeneratedForm generated =
            forms_.Form({.companion = Below(2) == 0 ? lumenkit::testing::CompanionState::Present
                                                    : lumenkit::testing::CompanionState::None});
        forms::Document form = generated.Parse();
        for (int i = 0; i < 3; ++i) {
            AddControl(form.Root(), i);
        }
        return form.WithBytes(form.Write());
    }

    Text Caption() {
        Text caption = captions_.Caption();
        for (std::size_t i = Below(4); i > 0; --i) {
            caption.insert(Below(caption.size() + 1), faults_[Below(faults_.size())]);
        }
        std::erase_if(caption, [](char16_t unit) {
            return unit > 0x7E || (unit < blank && unit != u'\t' && unit != u'\r' && unit != u'\n');
        });
        return caption;
    }

 private:
    std::size_t Below(std::size_t bound) { return random_() % bound; }

    void AddControl(forms::Block& form, int number) {
        const bool isList = Below(4) == 0;
        forms::Block& block =
            form.AddControl(isList ? u"lumenkit.VOptList" : u"lumenkit.VLabel",
                            u"Added" + Text(1, static_cast<char16_t>(u'0' + number)));
        if (isList) {
            block.Set(u"Contents", Text(u"1;a|2;b"));
            block.Set(u"ListIndex", static_cast<std::int32_t>(Below(6)) - 2).AddComment(u" kept");
            return;
        }
        block.Set(u"BulletIndent", static_cast<std::int32_t>(Below(2) * 300));
        block.Set(u"BulletPrefix", Text(Below(2) == 0 ? u"* " : u""));
        if (Below(8) == 0) {
            block.Set(u"BorderStyle", 7);
        }
        const Text caption = Caption();
        const bool isInForm = caption.find_first_of(u"\r\n") == Text::npos && Below(3) > 0;
        block.Set(
            Below(16) == 0 ? u"Captoin" : u"Caption",
            isInForm ? forms::Literal(caption) : forms::Literal(forms::CompanionText{caption}));
        block.Set(u"Width", static_cast<std::int32_t>(900 + 600 * Below(4)));
        block.Set(u"WordWrap", Below(2) == 0);
    }

    std::mt19937 random_;
    CaptionGenerator captions_;
    FormGenerator forms_;
    const std::vector<Text> faults_ = {
        u"|b:yes|", u"|b:no|",   u"|Blod:1|", u"|size:1|",      u"|size:1e999|", u"||",
        u"|u:1|",   u"|b:1 x",   u"|x|",      u"|fore:300,0|",  u"\t",           u"\r\n",
        u"|b:1",    u"|before:", u"|b=1|",    u"|size:12points"};
};

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

bool MayDiffer(const std::string& line) {
    return std::ranges::any_of(
        std::vector<std::string>{"Caption", "Captoin", "ListIndex"}, [&](const std::string& name) {
            return line.substr(line.find_first_not_of(" \t") + 0).starts_with(name);
        });
}

// Whether the forms differ in values only.
void ExpectOtherBytesKept(const forms::FormBytes& before, const forms::FormBytes& after) {
    const std::vector<std::string> old = LinesOf(before.form);
    const std::vector<std::string> mended = LinesOf(after.form);
    ASSERT_EQ(old.size(), mended.size());
    for (std::size_t i = 0; i < old.size(); ++i) {
        if (old[i] != mended[i]) {
            EXPECT_TRUE(MayDiffer(old[i])) << old[i] << '\n' << mended[i];
            const std::size_t value = old[i].find('=');
            EXPECT_EQ(old[i].substr(value, 4), mended[i].substr(mended[i].find('='), 4));
            EXPECT_EQ(old[i].ends_with("' kept\r"), mended[i].ends_with("' kept\r"));
        }
    }
    EXPECT_TRUE(after.companion.starts_with(before.companion));
}

std::size_t ErrorsIn(const Findings& findings) {
    return static_cast<std::size_t>(std::ranges::count(findings, Severity::Error, SeverityOf));
}

class FixModel : public ::testing::TestWithParam<FixScope> {};

TEST_P(FixModel, MendsFormsAndKeepsAllElse) {
    FaultGenerator generator(lumenkit::testing::TestSeed());
    std::size_t mendings = 0;
    for (int round = Rounds(400); round > 0; --round) {
        const forms::Document form = generator.Form();
        const forms::FormBytes before = form.Write();
        const forms::Document original = form.WithBytes(before);
        const Findings findings = CheckForm(original, lumenkitClasses);

        const Findings fixed = FormFixer(form, lumenkitClasses, {.scope = GetParam()}).Fix();
        const forms::FormBytes after = form.Write();
        const forms::Document mended = form.WithBytes(after);
        const Findings left = CheckForm(mended, lumenkitClasses);
        SCOPED_TRACE(before.form + "\n\n" + after.form);
        ExpectOtherBytesKept(before, after);
        EXPECT_EQ(fixed.empty(), before.form == after.form);
        EXPECT_LE(left.size(), findings.size());
        EXPECT_LE(ErrorsIn(left), ErrorsIn(findings));
        EXPECT_LE(MessagesOf(mended), MessagesOf(original));
        if (GetParam() == FixScope::Safe) {
            std::string why;
            EXPECT_TRUE(DrawTheSame(original, mended, why)) << why;
        }
        // A second run mends nothing.
        EXPECT_TRUE(FormFixer(mended, lumenkitClasses, {.scope = GetParam()}).Fix().empty());
        EXPECT_EQ(mended.Write().form, after.form);
        if (::testing::Test::HasFailure()) {
            return;
        }
        mendings += fixed.size();
    }
    EXPECT_GT(mendings, static_cast<std::size_t>(Rounds(200)));
}

TEST_P(FixModel, MendsCaptionsOnce) {
    FaultGenerator generator(lumenkit::testing::TestSeed());
    std::size_t mendings = 0;
    for (int round = Rounds(1000); round > 0; --round) {
        const Text caption = generator.Caption();
        const FixedCaption fixed =
            FixCaptionFile("x", caption, lumenkitClasses, {.scope = GetParam()});
        EXPECT_EQ(fixed.fixed.empty(), fixed.caption == caption);
        EXPECT_LE(CheckCaptionFile("x", fixed.caption).size(),
                  CheckCaptionFile("x", caption).size());
        EXPECT_EQ(
            FixCaptionFile("x", fixed.caption, lumenkitClasses, {.scope = GetParam()}).caption,
            fixed.caption);
        mendings += fixed.fixed.size();
    }
    EXPECT_GT(mendings, static_cast<std::size_t>(Rounds(350)));
}

INSTANTIATE_TEST_SUITE_P(Scopes, FixModel, ::testing::Values(FixScope::Safe, FixScope::All),
                         [](const auto& scope) {
                             return scope.param == FixScope::Safe ? "Safe" : "All";
                         });

}  // namespace
}  // namespace lumenkit::check
