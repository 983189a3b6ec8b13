// What the designers of forms refuse about menus.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "apps/lumenform/design/model/menu_entries.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// The number of levels of entries below the menu bar.
inline constexpr int mostMenuLevels = 5;

/// A rule that an entry breaks.
struct MenuProblem {
    std::size_t entry;  ///< its position in the list
    Text why;
};

/// Finds the rules that the menus break, in the order of the list. Only the other controls of the
/// document count, not its menus.
std::vector<MenuProblem> MenuProblems(const forms::Document& document, const MenuEntries& menus);

/// Returns those of the problems of `menus` that the entries did not have in `former`.
std::vector<MenuProblem> NewMenuProblems(const forms::Document& document, const MenuEntries& former,
                                         const MenuEntries& menus);

/// Runs a change to the menus in the document. Raises 380 with the reason if a menu breaks a rule
/// afterwards that it did not break before.
void ChangeMenus(const forms::Document& document, const std::function<void()>& change);

}  // namespace lumenkit::lumenform
