// Changes to a list of menus. Each takes the position of an entry, moves the entries inside it
// along and returns the position of the entry that is current afterwards.
#pragma once

#include <cstddef>

#include "apps/lumenform/design/model/menu_entries.h"

namespace lumenkit::lumenform {

/// Inserts a menu before the entry, on its level. Into an empty list, inserts the first menu.
std::size_t InsertMenuBefore(MenuEntries& menus, std::size_t at, MenuEntry added);
/// Inserts a menu after the entry and those inside it, on its level.
std::size_t AddMenuAfter(MenuEntries& menus, std::size_t at, MenuEntry added);
/// Removes the entry with those inside it. Returns the position of the next entry or, after the
/// last one, that of the one before; 0 if none is left.
std::size_t RemoveMenu(MenuEntries& menus, std::size_t at);

bool CanMoveMenuUp(const MenuEntries& menus, std::size_t at);
bool CanMoveMenuDown(const MenuEntries& menus, std::size_t at);
/// Move the entry by one position among its neighbours in the same menu.
std::size_t MoveMenuUp(MenuEntries& menus, std::size_t at);
std::size_t MoveMenuDown(MenuEntries& menus, std::size_t at);

bool CanMoveMenuIn(const MenuEntries& menus, std::size_t at);
bool CanMoveMenuOut(const MenuEntries& menus, std::size_t at);
/// Makes the entry the last one inside the entry before it. No line of the list moves.
std::size_t MoveMenuIn(MenuEntries& menus, std::size_t at);
/// Takes the entry out of the one that contains it. No line of the list moves: the entries that
/// follow in the same menu get into this one.
std::size_t MoveMenuOut(MenuEntries& menus, std::size_t at);

}  // namespace lumenkit::lumenform
