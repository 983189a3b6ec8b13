#include "forms/companion_path.h"

#include <array>
#include <system_error>
#include <vector>

#include "forms/ascii.h"
#include "forms/path_names.h"

namespace lumenkit::forms {

namespace {

namespace fs = std::filesystem;

// The name of the form with the extension of the companion.
std::string NameAsForm(const fs::path& form, const std::string& companion) {
    const std::size_t dot = companion.rfind('.');
    return NameOf(form.stem()) + (dot == std::string::npos ? "" : companion.substr(dot));
}

}  // namespace

fs::path CompanionPath(const fs::path& form, const CompanionName& name,
                       const std::function<bool(const fs::path&)>& isMeant) {
    FolderNames folders;
    return CompanionPath(form, name, isMeant, folders);
}

fs::path CompanionPath(const fs::path& form, const CompanionName& name,
                       const std::function<bool(const fs::path&)>& isMeant, FolderNames& folders) {
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
            fs::path found = folders.Find(place.parent_path(), sought);
            if (!found.empty() && isMeant(found)) {
                return found;
            }
        }
    }
    const fs::path& place = fs::is_symlink(form, error) ? forms.back() : form;
    return Beside(place, IsUtf8(NameOf(place.filename())) ? name.utf8 : name.bytes);
}

}  // namespace lumenkit::forms
