// The menus of a form as a list, in which each entry follows the one that contains it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// A menu in the menu bar, or an entry of a menu.
struct MenuEntry {
    /// The position of its block among MenuBlocks(). None for an entry that is not in the form yet.
    std::optional<std::size_t> origin = {};
    int level = 0;  ///< the number of entries that contain it; 0 in the menu bar
    Text name = {};
    std::optional<std::int32_t> index = {};
    Text caption = {};
    Text shortcut = {};  ///< as it is written in the form
    bool isChecked = false;
    bool isEnabled = true;
    bool isVisible = true;
    bool listsWindows = false;
    std::int32_t helpContextId = 0;
    std::int32_t negotiatePosition = 0;

    bool IsSeparator() const { return caption == u"-"; }
    friend bool operator==(const MenuEntry&, const MenuEntry&) = default;
};

using MenuEntries = std::vector<MenuEntry>;

/// Returns the blocks of the menus of a form, each before those in it.
std::vector<forms::Block*> MenuBlocks(const forms::Block& form);

/// Reads the menus of a form, in the same order. A value that cannot be understood counts as
/// missing.
MenuEntries ReadMenus(const forms::Document& document);

/// Returns the position after the last entry inside the entry `at`, which is `at` + 1 if there is
/// none.
std::size_t EndOfMenu(const MenuEntries& menus, std::size_t at);

/// Whether the entry `at` contains others.
bool HasEntries(const MenuEntries& menus, std::size_t at);

/// "mnuFile", or "mnuRecent(1)" for an element of a control array.
Text NameInCode(const MenuEntry& entry);

}  // namespace lumenkit::lumenform
