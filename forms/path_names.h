// Paths of form files and their names.
#pragma once

#include <filesystem>
#include <string>

namespace lumenkit::forms {

/// Returns the absolute path of a file, with links followed. For a file that does not exist,
/// follows the links of its folder.
std::filesystem::path Resolved(const std::filesystem::path& path);
/// Returns the path with this name, which is in UTF-8.
std::filesystem::path PathOf(const std::string& name);
/// Returns a file in the folder of another file. `name` is in UTF-8.
std::filesystem::path Beside(const std::filesystem::path& path, const std::string& name);
/// Returns the path as error messages name it, in UTF-8.
std::string NameOf(const std::filesystem::path& path);

}  // namespace lumenkit::forms
