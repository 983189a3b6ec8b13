#include "forms/path_names.h"

#include <system_error>

namespace lumenkit::forms {

namespace fs = std::filesystem;

fs::path Resolved(const fs::path& path) {
    std::error_code error;
    fs::path resolved = fs::canonical(path, error);
    if (!error) {
        return resolved;
    }
    const fs::path folder = path.parent_path();
    resolved = fs::canonical(folder.empty() ? fs::path(".") : folder, error);
    return error ? path : resolved / path.filename();
}

fs::path PathOf(const std::string& name) {
    return std::u8string(name.begin(), name.end());
}

fs::path Beside(const fs::path& path, const std::string& name) {
    return path.parent_path() / PathOf(name);
}

std::string NameOf(const fs::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

}  // namespace lumenkit::forms
