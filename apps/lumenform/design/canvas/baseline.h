#pragma once

#include <optional>

#include "apps/lumenform/form_view/live_control.h"

namespace lumenkit::lumenform {

/// Returns how far below the upper edge of a control the baseline of its first line of text is, in
/// twips. Empty for a control without such a line.
std::optional<float> BaselineOf(const LiveControl& control);

}  // namespace lumenkit::lumenform
