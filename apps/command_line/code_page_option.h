#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds --code-page, the encoding of forms that are not UTF-8. Rejects unknown code pages. The help
/// shows the present value of `codePage`, which must outlive parsing.
void AddCodePageOption(CLI::App& command, int& codePage);

}  // namespace lumenkit::cli
