#include "apps/lumenform/design/menus/menu_moves.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "apps/lumenform/design/model/menu_rules.h"

namespace lumenkit::lumenform {

namespace {

MenuEntries::iterator Iterator(MenuEntries& menus, std::size_t at) {
    return menus.begin() + static_cast<std::ptrdiff_t>(at);
}

// Returns the neighbour before the entry in the same menu.
std::optional<std::size_t> Neighbour(const MenuEntries& menus, std::size_t at) {
    for (std::size_t before = at; before-- > 0;) {
        if (menus[before].level <= menus[at].level) {
            return menus[before].level == menus[at].level ? std::optional(before) : std::nullopt;
        }
    }
    return std::nullopt;
}

void ChangeLevel(MenuEntries& menus, std::size_t at, int by) {
    const std::size_t end = EndOfMenu(menus, at);
    for (std::size_t inner = at; inner < end; ++inner) {
        menus[inner].level += by;
    }
}

int DeepestLevel(const MenuEntries& menus, std::size_t at) {
    int deepest = 0;
    for (std::size_t inner = at; inner < EndOfMenu(menus, at); ++inner) {
        deepest = std::max(deepest, menus[inner].level);
    }
    return deepest;
}

}  // namespace

std::size_t InsertMenuBefore(MenuEntries& menus, std::size_t at, MenuEntry added) {
    added.level = menus.empty() ? 0 : menus.at(at).level;
    const std::size_t place = menus.empty() ? 0 : at;
    menus.insert(Iterator(menus, place), std::move(added));
    return place;
}

std::size_t AddMenuAfter(MenuEntries& menus, std::size_t at, MenuEntry added) {
    if (menus.empty()) {
        return InsertMenuBefore(menus, 0, std::move(added));
    }
    const std::size_t place = EndOfMenu(menus, at);
    added.level = menus.at(at).level;
    menus.insert(Iterator(menus, place), std::move(added));
    return place;
}

std::size_t RemoveMenu(MenuEntries& menus, std::size_t at) {
    menus.erase(Iterator(menus, at), Iterator(menus, EndOfMenu(menus, at)));
    return menus.empty() ? 0 : std::min(at, menus.size() - 1);
}

bool CanMoveMenuUp(const MenuEntries& menus, std::size_t at) {
    return Neighbour(menus, at).has_value();
}

bool CanMoveMenuDown(const MenuEntries& menus, std::size_t at) {
    const std::size_t end = EndOfMenu(menus, at);
    return end < menus.size() && menus[end].level == menus[at].level;
}

std::size_t MoveMenuUp(MenuEntries& menus, std::size_t at) {
    const std::size_t before = Neighbour(menus, at).value();
    std::rotate(Iterator(menus, before), Iterator(menus, at),
                Iterator(menus, EndOfMenu(menus, at)));
    return before;
}

std::size_t MoveMenuDown(MenuEntries& menus, std::size_t at) {
    const std::size_t next = EndOfMenu(menus, at);
    const std::size_t nextLength = EndOfMenu(menus, next) - next;
    MoveMenuUp(menus, next);
    return at + nextLength;
}

bool CanMoveMenuIn(const MenuEntries& menus, std::size_t at) {
    return Neighbour(menus, at).has_value() && DeepestLevel(menus, at) < mostMenuLevels;
}

bool CanMoveMenuOut(const MenuEntries& menus, std::size_t at) {
    return menus[at].level > 0;
}

std::size_t MoveMenuIn(MenuEntries& menus, std::size_t at) {
    ChangeLevel(menus, at, 1);
    return at;
}

std::size_t MoveMenuOut(MenuEntries& menus, std::size_t at) {
    ChangeLevel(menus, at, -1);
    return at;
}

}  // namespace lumenkit::lumenform
