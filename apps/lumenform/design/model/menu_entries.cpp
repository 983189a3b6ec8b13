#include "apps/lumenform/design/model/menu_entries.h"

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "frame/numbers.h"

namespace lumenkit::lumenform {

namespace {

// The recursion is as deep as the blocks are nested, which the parser limits.
template <typename Visit>
void VisitMenus(const forms::Block& parent, int level, const Visit& visit) {
    for (forms::Block* const block : parent.Controls()) {
        if (IsMenu(*block)) {
            visit(*block, level);
            VisitMenus(*block, level + 1, visit);
        }
    }
}

MenuEntry ReadMenu(const forms::Document& document, forms::Block& block) {
    const BlockReader reader(document, block);
    MenuEntry entry{.name = block.Name()};
    if (reader.Has(u"Index")) {
        entry.index = reader.Whole(u"Index", 0);
    }
    entry.caption = reader.String(u"Caption");
    entry.shortcut = reader.String(u"Shortcut");
    entry.isChecked = reader.Flag(u"Checked", false);
    entry.isEnabled = reader.Flag(u"Enabled", true);
    entry.isVisible = reader.Flag(u"Visible", true);
    entry.listsWindows = reader.Flag(u"WindowList", false);
    entry.helpContextId = reader.Whole(u"HelpContextID", 0);
    entry.negotiatePosition = reader.Whole(u"NegotiatePosition", 0);
    return entry;
}

}  // namespace

std::vector<forms::Block*> MenuBlocks(const forms::Block& form) {
    std::vector<forms::Block*> blocks;
    VisitMenus(form, 0, [&](forms::Block& block, int /*level*/) { blocks.push_back(&block); });
    return blocks;
}

MenuEntries ReadMenus(const forms::Document& document) {
    MenuEntries menus;
    VisitMenus(document.Root(), 0, [&](forms::Block& block, int level) {
        MenuEntry entry = ReadMenu(document, block);
        entry.origin = menus.size();
        entry.level = level;
        menus.push_back(std::move(entry));
    });
    return menus;
}

std::size_t EndOfMenu(const MenuEntries& menus, std::size_t at) {
    std::size_t end = at + 1;
    while (end < menus.size() && menus[end].level > menus[at].level) {
        ++end;
    }
    return end;
}

bool HasEntries(const MenuEntries& menus, std::size_t at) {
    return EndOfMenu(menus, at) > at + 1;
}

Text NameInCode(const MenuEntry& entry) {
    return entry.index ? entry.name + u'(' + Decimal(*entry.index) + u')' : entry.name;
}

}  // namespace lumenkit::lumenform
