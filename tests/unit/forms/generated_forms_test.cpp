// Forms as designers write them: what is read is written byte for byte, and an edit changes one
// line.
#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "forms/controls.h"
#include "forms/file.h"
#include "forms/literal.h"
#include "frame/utf8.h"
#include "tests/support/form_generator.h"
#include "tests/support/test_rounds.h"
#include "tests/support/test_seed.h"
#include "tests/unit/forms/form_check.h"
#include "tests/unit/forms/sample_forms.h"

namespace lumenkit::forms::testing {
namespace {

namespace fs = std::filesystem;
using lumenkit::testing::CompanionState;
using lumenkit::testing::FormGenerator;
using lumenkit::testing::GeneratedForm;
using lumenkit::testing::Rounds;
using lumenkit::testing::RunsAllRounds;
using lumenkit::testing::TestSeed;

TEST(GeneratedForms, TheSameSeedGivesTheSameForms) {
    FormGenerator one(1);
    FormGenerator other(1);
    for (int i = 0; i < 20; ++i) {
        const GeneratedForm form = one.Form();
        const GeneratedForm same = other.Form();
        EXPECT_EQ(form.form, same.form);
        EXPECT_EQ(form.companion, same.companion);
        EXPECT_EQ(one.Damaged(form).form, other.Damaged(same).form);
    }
}

TEST(GeneratedForms, ContainEveryKindOfPart) {
    FormGenerator generator(2);
    std::string all;
    std::set<CompanionState> states;
    std::set<int> encodings;
    for (int i = 0; i < 200; ++i) {
        const GeneratedForm form = generator.Form();
        all += form.form;
        states.insert(form.state);
        encodings.insert(form.Parse().FormCodePage());
    }
    for (const char* part : {"VB.Form",
                             "VB.UserControl",
                             "VB.Frame",
                             "VB.PictureBox",
                             "VB.Line",
                             "VB.Menu",
                             "VB.Timer",
                             "lumenkit.VLabel",
                             "lumenkit.VMemo",
                             "lumenkit.VOptList",
                             "MSComctlLib",
                             "Panel1 {",
                             "Index           =   1",
                             "BeginProperty Font {",
                             "BeginProperty Font ",
                             "ScaleMode       =   0",
                             "ScaleMode       =   7",
                             ".frx\":0000",
                             "=   $\"",
                             "\xEF\xBB\xBFVERSION",
                             "End\r\n",
                             "End\nAttribute"}) {
        EXPECT_THAT(all, ::testing::HasSubstr(part));
    }
    EXPECT_EQ(states.size(), 5U);
    EXPECT_EQ(encodings, (std::set<int>{1251, 1252, utf8CodePage}));
}

TEST(GeneratedForms, AreWrittenByteForByte) {
    FormGenerator generator(TestSeed());
    for (int i = 0; i < Rounds(300); ++i) {
        const GeneratedForm form = generator.Form();
        SCOPED_TRACE(form.form);
        const Document document = form.Parse();
        if (form.IsSound()) {
            ASSERT_TRUE(document.Warnings().empty()) << document.Warnings().front().text;
        }
        const FormBytes written = document.Write();
        ASSERT_EQ(written.form, form.form);
        ASSERT_EQ(written.companion, form.companion);
        if (form.IsSound()) {
            ASSERT_EQ(FaultWith(form.form, form.companion, form.codePage), "");
        }
    }
}

TEST(GeneratedForms, DamagedOnesAreRefusedOrWrittenByteForByte) {
    FormGenerator generator(TestSeed());
    int read = 0;
    const int rounds = Rounds(500);
    for (int i = 0; i < rounds; ++i) {
        const GeneratedForm form = generator.Damaged(generator.Form());
        SCOPED_TRACE(form.form);
        try {
            const FormBytes written = form.Parse().Write();
            ASSERT_EQ(written.form, form.form);
            ++read;
        } catch (const FormError& error) {
            ASSERT_GT(error.Place().line, 0U) << error.what();
        }
    }
    if (RunsAllRounds()) {
        EXPECT_GT(read, rounds / 4);
        EXPECT_LT(read, rounds);
    }
}

// All files of a folder, with their contents.
std::map<std::string, std::string> FilesIn(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        files.emplace(entry.path().filename().string(), ReadFile(entry.path()));
    }
    return files;
}

TEST(GeneratedForms, ASaveOfAnUnchangedFormLeavesEachFileAsItIs) {
    const fs::path folder = fs::path(LUMENKIT_BINARY_DIR) / "generated_forms_test_files";
    FormGenerator generator(TestSeed());
    for (int i = 0; i < Rounds(100); ++i) {
        fs::remove_all(folder);
        fs::create_directories(folder);
        const GeneratedForm form = generator.Form();
        SCOPED_TRACE(form.form);
        const fs::path path = form.WriteTo(folder);
        const auto before = FilesIn(folder);
        const Document document = Load(path, form.codePage);
        ASSERT_EQ(document.Warnings().empty(), form.IsSound());
        Save(document, path);
        ASSERT_EQ(FilesIn(folder), before);
    }
    fs::remove_all(folder);
}

// ---- Edits

std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

void AddProperties(const Block& block, std::vector<Property*>& properties) {
    for (const Block::Item& item : block.Items()) {
        if (const auto* property = std::get_if<std::unique_ptr<Property>>(&item)) {
            properties.push_back(property->get());
        } else if (const auto* inner = std::get_if<std::unique_ptr<Block>>(&item)) {
            AddProperties(**inner, properties);
        }
    }
}

Literal SomeValue(FormGenerator& generator, bool mayAddRecords) {
    switch (generator.Below(mayAddRecords ? 6 : 5)) {
        case 0:
            return NumberLiteral(123456.0);
        case 1:
            return NumberLiteral(0.5);
        case 2:
            return true;
        case 3:
            return HexNumber{0x80000012};
        case 4:
            return Text(u"another \"text\"");
        default:
            return TextLiteral(u"other\r\nlines");
    }
}

TEST(GeneratedForms, AnEditChangesOneLineAndTheEndOfTheCompanion) {
    FormGenerator generator(TestSeed());
    int changed = 0;
    int stored = 0;
    const int rounds = Rounds(300);
    for (int i = 0; i < rounds; ++i) {
        const GeneratedForm form = generator.Form();
        SCOPED_TRACE(form.form);
        const Document document = form.Parse();
        std::vector<Property*> properties;
        AddProperties(document.Root(), properties);
        Property& edited = *properties.at(generator.Below(properties.size()));
        const Literal value = SomeValue(generator, form.IsSound());
        const bool isStored = std::holds_alternative<CompanionText>(value);
        edited.Set(value);
        const FormBytes written = document.Write();

        const std::vector<std::string> before = LinesOf(form.form);
        const std::vector<std::string> after = LinesOf(written.form);
        ASSERT_EQ(after.size(), before.size());
        for (std::size_t line = 0; line < before.size(); ++line) {
            if (line + 1 == edited.NamePlace().line) {
                const std::size_t valueAt = edited.Source().prefix.size();
                ASSERT_EQ(after[line].substr(0, valueAt), before[line].substr(0, valueAt));
                ASSERT_EQ(after[line].ends_with('\r'), before[line].ends_with('\r'));
                changed += after[line] != before[line] ? 1 : 0;
            } else {
                ASSERT_EQ(after[line], before[line]);
            }
        }
        ASSERT_THAT(written.companion, ::testing::StartsWith(form.companion));
        ASSERT_EQ(written.companion.size() > form.companion.size(), isStored);
        stored += isStored ? 1 : 0;

        GeneratedForm saved = form;
        saved.form = written.form;
        saved.companion = written.companion;
        saved.state = saved.state == CompanionState::None ? CompanionState::Present : saved.state;
        const Document again = saved.Parse();
        std::vector<Property*> reread;
        AddProperties(again.Root(), reread);
        const auto same =
            std::ranges::find(reread, edited.NamePlace().line,
                              [](const Property* one) { return one->NamePlace().line; });
        ASSERT_NE(same, reread.end());
        if (isStored) {
            ASSERT_EQ(again.TextOf(**same), u"other\r\nlines");
        } else {
            ASSERT_EQ((*same)->Literal(), value);
        }
    }
    if (RunsAllRounds()) {
        EXPECT_GT(changed, rounds * 9 / 10);
        EXPECT_GT(stored, 10);
    }
}

}  // namespace
}  // namespace lumenkit::forms::testing
