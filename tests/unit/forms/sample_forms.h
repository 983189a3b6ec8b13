// Access to the forms in samples/forms, and helpers for forms in memory.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "forms/document.h"

namespace lumenkit::forms::testing {

struct SampleForm {
    std::string name;  ///< "memo.frm"
    int codePage = defaultCodePage;
    std::string form;
    std::string companion;  ///< empty if it has none

    Document Parse() const;
};

/// Returns all samples, sorted by name.
const std::vector<SampleForm>& SampleForms();
const SampleForm& Sample(std::string_view name);

std::filesystem::path SamplePath(std::string_view name);
/// Fails the test if the file cannot be read.
std::string ReadFile(const std::filesystem::path& path);
/// A file of tests/golden/forms.
std::string GoldenForm(const std::string& name);
void WriteFile(const std::filesystem::path& path, std::string_view bytes);

/// Parses a form with the name "x.frm".
Document ParseBytes(std::string_view form, std::string companion = {},
                    int codePage = defaultCodePage);

/// Returns the block to which the names lead from the outermost block. Fails the test if there is
/// none.
Block& Find(const Document& document, std::initializer_list<TextView> names);

}  // namespace lumenkit::forms::testing
