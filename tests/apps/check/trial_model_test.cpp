// Compares the findings that are errors with the messages that the controls show, on generated
// controls. The controls are loaded here without the help of the checks.
#include <algorithm>
#include <array>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check/saved_properties.h"
#include "forms/controls.h"
#include "forms/form_bag.h"
#include "frame/utf8.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "tests/model/caption_generator.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"

namespace lumenkit::check {
namespace {

// Writes controls with a few saved properties, of which some have odd values.
class ControlGenerator {
 public:
    explicit ControlGenerator(std::uint32_t seed) : random_(seed), captions_(seed) {}

    std::string Form() {
        const ClassDescriptor& type = lumenkitClasses.classes[Below(3)];
        std::string form =
            "VERSION 5.00\nBegin VB.Form F\nBegin lumenkit." + ToUtf8(type.name) + " C\n";
        for (const SavedProperty& property : PropertiesOf(type).read) {
            if (Below(4) == 0) {
                form += Setting(property);
            }
        }
        for (const char* name : {"Width", "Height"}) {
            if (Below(4) == 0) {
                form += std::string(name) + " = " + Pick(lengths_) + '\n';
            }
        }
        return form + "End\nEnd\n";
    }

 private:
    std::size_t Below(std::size_t bound) { return random_() % bound; }
    const std::string& Pick(const std::vector<std::string>& list) {
        return list[Below(list.size())];
    }

    std::string Setting(const SavedProperty& property) {
        const std::string name = ToUtf8(property.name);
        if (name == "Font") {
            return Below(8) == 0 ? "Font = " + Pick(odd_) + '\n'
                                 : "BeginProperty Font\nName = \"Arial\"\nSize = " + Pick(sizes_) +
                                       "\nEndProperty\n";
        }
        return name + " = " + ValueOf(property, name) + '\n';
    }

    std::string ValueOf(const SavedProperty& property, const std::string& name) {
        if (Below(8) == 0) {
            return Pick(odd_);
        }
        if (!std::holds_alternative<Text>(property.defaultValue)) {
            return Pick(numbers_);
        }
        return Quoted(name == "Caption" ? Caption() : Words());
    }

    std::string Caption() {
        std::string caption = OneLine(captions_.Caption());
        if (Below(4) == 0) {
            caption += Pick(hostile_) + "tail";
        }
        return caption;
    }
    std::string Words() {
        std::string words;
        for (std::size_t i = Below(6); i > 0; --i) {
            words += Pick(words_);
        }
        return words;
    }

    static std::string OneLine(const Text& text) {
        Text line;
        std::ranges::copy_if(text, std::back_inserter(line), [](char16_t unit) {
            return unit >= u' ' && unit != 0x7f && unit < 0xd800;
        });
        return ToUtf8(line);
    }
    static std::string Quoted(const std::string& text) {
        std::string quoted = "\"";
        for (const char letter : text) {
            quoted += letter == '"' ? "\"\"" : std::string(1, letter);
        }
        return quoted + '"';
    }

    std::mt19937 random_;
    lumenkit::testing::CaptionGenerator captions_;
    const std::vector<std::string> numbers_ = {
        "0",  "1",  "2",   "3",    "-1  'True", "-1",    "4",           "7",          "9",
        "15", "99", "240", "9999", "10000",     "32767", "&H80000005&", "&H00FF00FF&"};
    const std::vector<std::string> odd_ = {"32768",
                                           "-32769",
                                           "2147483648",
                                           "1.5E+300",
                                           "2.5",
                                           "\"x\"",
                                           "\"\"",
                                           "\"7\"",
                                           "-9",
                                           "^N",
                                           "1,5",
                                           "&H12345678&",
                                           "{0BE35203-8F91-11CE-9DE3-00AA004BB851}"};
    const std::vector<std::string> sizes_ = {"8.25", "10",   "1",    "0",     "-3",
                                             "2048", "2160", "3000", "\"x\"", "1E+30"};
    const std::vector<std::string> lengths_ = {"0", "15", "1215", "245745", "1E+9", "-5", "\"x\""};
    const std::vector<std::string> words_ = {"a",           " ",   ";",         "|",
                                             "1;One|2;Two", "& b", "long text "};
    const std::vector<std::string> hostile_ = {
        "|size:5000|", "|size:1e999|", "|before:1e38|", "|before:-1e300|", "|fore:99999999999,0,0|",
        "|size:2160|", "|size:1.5|"};
};

// Loads and draws the only control of a form.
std::size_t MessagesOf(const forms::Document& document, bool userMode) {
    forms::Block& block = *forms::AllControls(document.Root()).front();
    const ClassDescriptor& type = *lumenkitClasses.Find(block.ClassName());
    memory::Form form(lumenkitClasses);
    forms::FormBag bag(document, block, [&](const forms::FontDescription& font) -> host::FontRef {
        return form.NewFont(font.name, font.size);
    });
    const auto length = [&](TextView name, float otherwise) {
        const forms::Property* saved = block.FindProperty(name);
        if (saved == nullptr || std::holds_alternative<Text>(saved->Literal())) {
            return otherwise;
        }
        const float value = ToSingle(bag.ReadProperty(name, otherwise));
        return value < 0 ? otherwise : value;
    };
    memory::HostedControl control(
        form, type,
        {.userMode = userMode, .width = length(u"Width", 3000), .height = length(u"Height", 1500)});
    control.StartSaved(bag);
    control.Paint();
    return form.GetLog().Messages().size();
}

bool ReportsErrors(const std::string& form) {
    const auto document = forms::Document::Parse("x.frm", form, {});
    return MessagesOf(document, false) + MessagesOf(document, true) > 0;
}

std::vector<Finding> ErrorsIn(const forms::Document& document) {
    Findings findings = CheckForm(document, lumenkitClasses);
    std::erase_if(findings, [](const Finding& finding) {
        return SeverityOf(finding) != Severity::Error &&
               finding.rule != rules::drawingOverflow.name;
    });
    return findings;
}

std::string Without(const std::string& form, const std::vector<Finding>& errors,
                    const std::string& kept) {
    auto document = forms::Document::Parse("x.frm", form, {});
    forms::Block& block = *forms::AllControls(document.Root()).front();
    for (const Finding& error : errors) {
        if (error.property != kept) {
            block.Remove(FromUtf8(error.property));
        }
    }
    return document.Write().form;
}

TEST(TrialModel, ChecksAndLoadingAgree) {
    ControlGenerator generator(lumenkit::testing::TestSeed());
    int good = 0;
    int bad = 0;
    for (int i = lumenkit::testing::Rounds(20000); i > 0; --i) {
        const std::string form = generator.Form();
        const auto document = forms::Document::Parse("x.frm", form, {});
        const std::vector<Finding> errors = ErrorsIn(document);
        ASSERT_EQ(!errors.empty(), ReportsErrors(form)) << form;
        for (const Finding& error : errors) {
            ASSERT_FALSE(error.property.empty()) << form;
            ASSERT_TRUE(ReportsErrors(Without(form, errors, error.property)))
                << error.property << '\n'
                << form;
        }
        ASSERT_FALSE(ReportsErrors(Without(form, errors, {}))) << form;
        ++(errors.empty() ? good : bad);
    }
    EXPECT_GT(good, lumenkit::testing::Rounds(1000));
    EXPECT_GT(bad, lumenkit::testing::Rounds(1000));
}

}  // namespace
}  // namespace lumenkit::check
