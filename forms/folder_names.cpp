#include "forms/folder_names.h"

#include <system_error>
#include <utility>

#include "forms/ascii.h"
#include "forms/path_names.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

// Two names are the same without regard to case if they have the same form in lower case.
std::string LowerName(const std::string& name) {
    return IsAscii(name) || !IsUtf8(name) ? LowerAscii(name) : ToUtf8(LCase(FromUtf8(name)));
}

}  // namespace

fs::path FolderNames::Find(const fs::path& folder, const std::string& name) {
    const std::string lower = LowerName(name);
    const std::lock_guard lock(mutex_);
    const Names& names = NamesIn(folder);
    const auto found = names.find(lower);
    return found == names.end() ? fs::path() : folder / found->second;
}

const FolderNames::Names& FolderNames::NamesIn(const fs::path& folder) {
    const auto known = folders_.find(folder);
    return known != folders_.end() ? known->second
                                   : folders_.emplace(folder, Read(folder)).first->second;
}

FolderNames::Names FolderNames::Read(const fs::path& folder) {
    Names names;
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error), end;
         !error && entry != end; entry.increment(error)) {
        fs::path name = entry->path().filename();
        names.emplace(LowerName(NameOf(name)), std::move(name));
    }
    return names;
}

}  // namespace lumenkit::forms
