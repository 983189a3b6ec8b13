#include "tests/unit/forms/sample_forms.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <stdexcept>

#include <gtest/gtest.h>

#include "frame/utf8.h"
#include "tests/support/file_bytes.h"

namespace lumenkit::forms::testing {

namespace {

namespace fs = std::filesystem;

const fs::path folder = fs::path(LUMENKIT_SOURCE_DIR) / "samples/forms";

fs::path CompanionOf(const fs::path& form) {
    static const std::map<std::string, std::string> extensions = {
        {".frm", ".frx"}, {".ctl", ".ctx"}, {".pag", ".pgx"}, {".dob", ".dox"}};
    const auto found = extensions.find(form.extension().string());
    return found == extensions.end() ? fs::path() : fs::path(form).replace_extension(found->second);
}

int CodePageOf(const std::string& name) {
    static const std::map<std::string, int> pages = {
        {"chinese.frm", 936}, {"cyrillic.frm", 1251}, {"japanese.frm", 932}, {"polish.frm", 1250}};
    const auto found = pages.find(name);
    return found == pages.end() ? defaultCodePage : found->second;
}

std::vector<SampleForm> ReadSamples() {
    std::vector<SampleForm> samples;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const fs::path companion = CompanionOf(entry.path());
        if (companion.empty()) {
            continue;
        }
        const std::string name = entry.path().filename().string();
        samples.push_back({name, CodePageOf(name), ReadFile(entry.path()),
                           fs::exists(companion) ? ReadFile(companion) : std::string()});
    }
    std::sort(samples.begin(), samples.end(),
              [](const SampleForm& a, const SampleForm& b) { return a.name < b.name; });
    return samples;
}

}  // namespace

Document SampleForm::Parse() const {
    return Document::Parse(
        name, form, [&](const std::string&) { return companion; }, codePage);
}

const std::vector<SampleForm>& SampleForms() {
    static const std::vector<SampleForm> samples = ReadSamples();
    return samples;
}

const SampleForm& Sample(std::string_view name) {
    for (const SampleForm& sample : SampleForms()) {
        if (sample.name == name) {
            return sample;
        }
    }
    throw std::out_of_range("no sample " + std::string(name));
}

fs::path SamplePath(std::string_view name) {
    return folder / name;
}

std::string ReadFile(const fs::path& path) {
    EXPECT_TRUE(fs::exists(path)) << path;
    return lumenkit::testing::FileBytes(path);
}

std::string GoldenForm(const std::string& name) {
    return ReadFile(fs::path(LUMENKIT_SOURCE_DIR) / "tests/golden/forms" / name);
}

void WriteFile(const fs::path& path, std::string_view bytes) {
    std::ofstream stream(path, std::ios::binary);
    stream << bytes;
    ASSERT_TRUE(stream.flush()) << path;
}

Document ParseBytes(std::string_view form, std::string companion, int codePage) {
    return Document::Parse(
        "x.frm", form, [&](const std::string&) { return companion; }, codePage);
}

Block& Find(const Document& document, std::initializer_list<TextView> names) {
    Block* block = &document.Root();
    for (const TextView name : names) {
        const std::vector<Block*> controls = block->Controls();
        const auto found =
            std::find_if(controls.begin(), controls.end(),
                         [&](const Block* control) { return control->Name() == name; });
        if (found == controls.end()) {
            throw std::out_of_range("no control " + ToUtf8(name));
        }
        block = *found;
    }
    return *block;
}

}  // namespace lumenkit::forms::testing
