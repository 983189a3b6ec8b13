#pragma once

#include <cstddef>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/model/menu_entries.h"

namespace lumenkit::lumenform {

/// Gives the form these menus, edited from `former`, which are its menus now. Selects the menu
/// `selected` if there are any. The change is one step of the history; menus and properties that
/// are the same keep their lines. Raises RuntimeError or FormError if the form refuses the change,
/// and if its menus are not `former`; then nothing changes.
void ApplyMenus(FormDesign& design, const MenuEntries& former, const MenuEntries& menus,
                std::size_t selected);

}  // namespace lumenkit::lumenform
