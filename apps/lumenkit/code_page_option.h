#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds --code-page, what forms are written in unless they are UTF-8. Pages that are not known are
/// refused; the help shows what `codePage` holds now. It must live until parsing is over.
void AddCodePageOption(CLI::App& command, int& codePage);

}  // namespace lumenkit::cli
