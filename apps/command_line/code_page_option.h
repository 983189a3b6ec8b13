#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds --code-page, the number or the name of the code page of forms that are not UTF-8. Rejects
/// unknown code pages. `codePage` must outlive parsing.
void AddCodePageOption(CLI::App& command, int& codePage);

}  // namespace lumenkit::cli
