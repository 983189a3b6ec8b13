#pragma once

#include <CLI/CLI.hpp>

#include "apps/lumenkit/svg/drawn_caption.h"

namespace lumenkit::cli {

/// Adds --svg and the options of the label that it draws, and returns the flag --svg. The arguments
/// must outlive parsing.
CLI::Option* AddSvgOptions(CLI::App& command, bool& isSvg, svg::LabelLook& look);

}  // namespace lumenkit::cli
