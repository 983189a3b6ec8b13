// Where the companion of a form is.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace lumenkit::forms {

/// Returns the file of the companion: beside the form, or beside the file to which the form is a
/// link; of these, the one with the exact name, or else one whose name differs in case only and
/// that `isMeant` accepts. For a companion that does not exist, returns the place for a new one.
/// The name is in UTF-8.
std::filesystem::path CompanionPath(
    const std::filesystem::path& form, const std::string& name,
    const std::function<bool(const std::filesystem::path&)>& isMeant);

}  // namespace lumenkit::forms
