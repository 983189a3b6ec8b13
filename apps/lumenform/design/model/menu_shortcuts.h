#pragma once

#include <vector>

#include "frame/text.h"

namespace lumenkit::lumenform {

/// A shortcut key that a menu can have.
struct MenuShortcut {
    Text written;  ///< in the form: "+^{F12}"
    Text shown;    ///< "Ctrl+Shift+F12"
};

/// The shortcut keys in the order in which they are offered.
const std::vector<MenuShortcut>& MenuShortcuts();

/// Returns the offered shortcut with the keys of a written one, or null: "{INS}" is "{INSERT}".
const MenuShortcut* FindShortcut(TextView written);

/// Returns the shortcut as it is shown. One that is not offered is shown as it is written.
Text ShownShortcut(TextView written);

}  // namespace lumenkit::lumenform
