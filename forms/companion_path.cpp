#include "forms/companion_path.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <vector>

#include "forms/ascii.h"
#include "forms/path_names.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

// Compares two names without regard to case. Names that are not in UTF-8 differ only in letters of
// ASCII.
bool IsSameName(const std::string& one, const std::string& other) {
    try {
        return SameText(FromUtf8(one), FromUtf8(other), Compare::IgnoreCase);
    } catch (const MalformedUtf8&) {
        return LowerAscii(one) == LowerAscii(other);
    }
}

// Returns the file with this name, in any case. Empty if there is none.
fs::path FindInFolder(const fs::path& folder, const std::string& name) {
    std::error_code error;
    for (fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error), end;
         !error && entry != end; entry.increment(error)) {
        if (IsSameName(NameOf(entry->path().filename()), name)) {
            return folder / entry->path().filename();
        }
    }
    return {};
}

// The name of the form with the extension of the companion.
std::string NameAsForm(const fs::path& form, const std::string& companion) {
    const std::size_t dot = companion.rfind('.');
    return NameOf(form.stem()) + (dot == std::string::npos ? "" : companion.substr(dot));
}

}  // namespace

fs::path CompanionPath(const fs::path& form, const CompanionName& name,
                       const std::function<bool(const fs::path&)>& isMeant) {
    std::error_code error;
    const fs::path target = fs::canonical(form, error);
    const std::array<fs::path, 2> forms = {form, error ? form : target};
    for (const std::string& exact : {name.utf8, name.bytes}) {
        for (const fs::path& place : forms) {
            if (fs::exists(Beside(place, exact), error)) {
                return Beside(place, exact);
            }
        }
    }
    std::vector<std::string> similar = {name.utf8, name.bytes};
    if (!IsAscii(name.utf8)) {
        similar.push_back(NameAsForm(form, name.utf8));
    }
    for (const std::string& sought : similar) {
        for (const fs::path& place : forms) {
            fs::path found = FindInFolder(place.parent_path(), sought);
            if (!found.empty() && isMeant(found)) {
                return found;
            }
        }
    }
    const fs::path& place = fs::is_symlink(form, error) ? forms.back() : form;
    return Beside(place, IsUtf8(NameOf(place.filename())) ? name.utf8 : name.bytes);
}

}  // namespace lumenkit::forms
