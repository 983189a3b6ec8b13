#pragma once

#include <QPalette>

namespace lumenkit::lumenform {

/// The palette of the option --dark.
QPalette DarkPalette();

}  // namespace lumenkit::lumenform
