#include "forms/companion_path.h"

#include <array>
#include <system_error>

#include "forms/path_names.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

bool IsSameName(const fs::path& path, TextView fileName) {
    try {
        return SameText(FromUtf8(NameOf(path.filename())), fileName, Compare::IgnoreCase);
    } catch (const MalformedUtf8&) {
        return false;
    }
}

// Returns the file with this name, in any case. Empty if there is none.
fs::path FindInFolder(const fs::path& folder, const std::string& fileName) {
    const Text name = FromUtf8(fileName);
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error), end;
         !error && entry != end; entry.increment(error)) {
        if (IsSameName(entry->path(), name)) {
            return folder / entry->path().filename();
        }
    }
    return {};
}

}  // namespace

fs::path CompanionPath(const fs::path& form, const std::string& name,
                       const std::function<bool(const fs::path&)>& isMeant) {
    std::error_code error;
    const fs::path target = fs::canonical(form, error);
    const std::array<fs::path, 2> forms = {form, error ? form : target};
    for (const fs::path& place : forms) {
        if (fs::exists(Beside(place, name), error)) {
            return Beside(place, name);
        }
    }
    for (const fs::path& place : forms) {
        fs::path found = FindInFolder(place.parent_path(), name);
        if (!found.empty() && isMeant(found)) {
            return found;
        }
    }
    return Beside(fs::is_symlink(form, error) ? forms.back() : form, name);
}

}  // namespace lumenkit::forms
