#include "apps/lumenkit/check/inputs.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <set>
#include <string_view>
#include <system_error>

namespace lumenkit::check {

namespace {

namespace fs = std::filesystem;

bool IsOfKind(const fs::path& file, InputKind kind) {
    constexpr std::array<std::string_view, 4> forms = {".frm", ".ctl", ".pag", ".dob"};
    std::string extension = file.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return kind == InputKind::Captions
               ? extension == ".txt"
               : std::find(forms.begin(), forms.end(), extension) != forms.end();
}

// A dangling link counts as a file, so that the check reports that it cannot be read.
bool IsFile(const fs::directory_entry& entry) {
    std::error_code unknown;
    const fs::file_status status = entry.status(unknown);
    return fs::is_regular_file(status) || status.type() == fs::file_type::not_found;
}

// Adds the files of a folder and its subfolders. An unreadable folder is recorded as an error, and
// the search continues with the other folders.
void AddFolder(const fs::path& folder, InputKind kind, Inputs& inputs) {
    std::vector<fs::directory_entry> entries;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        entries.push_back(*entry);
    }
    if (error) {
        inputs.errors.push_back({folder.string(), error.message()});
    }
    std::sort(entries.begin(), entries.end());
    for (const fs::directory_entry& entry : entries) {
        std::error_code unknown;
        if (entry.is_directory(unknown) && !entry.is_symlink(unknown)) {
            AddFolder(entry.path(), kind, inputs);
        } else if (IsOfKind(entry.path(), kind) && IsFile(entry)) {
            inputs.files.push_back(entry.path().string());
        }
    }
}

// Keeps the first name of each file.
void RemoveRepeated(std::vector<std::string>& files) {
    std::set<fs::path> seen;
    std::erase_if(files, [&](const std::string& file) {
        std::error_code unknown;
        const fs::path whole = fs::weakly_canonical(file, unknown);
        return !seen.insert(unknown ? fs::path(file) : whole).second;
    });
}

}  // namespace

Inputs FindInputs(const std::vector<std::string>& paths, InputKind kind) {
    Inputs inputs;
    for (const std::string& path : paths) {
        std::error_code unknown;
        if (fs::is_directory(path, unknown)) {
            AddFolder(path, kind, inputs);
        } else {
            inputs.files.push_back(path);
        }
    }
    RemoveRepeated(inputs.files);
    return inputs;
}

}  // namespace lumenkit::check
