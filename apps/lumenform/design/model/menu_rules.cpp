#include "apps/lumenform/design/model/menu_rules.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

#include "apps/lumenform/design/model/menu_shortcuts.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "forms/controls.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::int32_t highestMenuIndex = 32767;

struct MenuRules {
    Q_DECLARE_TR_FUNCTIONS(menu_rules)
};

template <typename... Names>
Text Told(const QString& why, const Names&... names) {
    return qt::ToText(why.arg(qt::ToQString(names)...));
}
Text Told(const QString& why) {
    return qt::ToText(why);
}

using Positions = std::vector<std::size_t>;

// The menus with what is looked up in them.
struct MenuLookup {
    const MenuEntries& menus;
    std::map<Text, Text> otherNames = {};      // of the form and its controls, by lower case
    std::map<Text, Positions> named = {};      // by names in lower case
    std::map<Text, Positions> shortcuts = {};  // by shown shortcuts
    Positions windowLists = {};

    const MenuEntry& At(std::size_t at) const { return menus[at]; }
};

MenuLookup LookUp(const forms::Document& document, const MenuEntries& menus) {
    MenuLookup lookup{menus};
    lookup.otherNames.emplace(LCase(document.Root().Name()), document.Root().Name());
    for (const forms::Block* const block : forms::AllControls(document.Root())) {
        if (!IsMenu(*block)) {
            lookup.otherNames.emplace(LCase(block->Name()), block->Name());
        }
    }
    for (std::size_t at = 0; at < menus.size(); ++at) {
        lookup.named[LCase(menus[at].name)].push_back(at);
        if (!menus[at].shortcut.empty()) {
            lookup.shortcuts[ShownShortcut(menus[at].shortcut)].push_back(at);
        }
        if (menus[at].listsWindows) {
            lookup.windowLists.push_back(at);
        }
    }
    return lookup;
}

// ---- The rules: each returns why an entry breaks it, or an empty text

Text WhyNotNamed(const MenuLookup& lookup, std::size_t at) {
    const Text& name = lookup.At(at).name;
    if (name.empty()) {
        return Told(MenuRules::tr("A menu needs a name"));
    }
    return IsName(name) ? Text()
                        : Told(MenuRules::tr(
                              "A name begins with a letter, continues with letters, digits and "
                              "underscores, and has at most 40 characters"));
}

Text WhyTaken(const MenuLookup& lookup, std::size_t at) {
    const auto found = lookup.otherNames.find(LCase(lookup.At(at).name));
    return found == lookup.otherNames.end()
               ? Text()
               : Told(MenuRules::tr("The name \"%1\" is already taken by the form or a control"),
                      found->second);
}

Text WhyNoIndex(const MenuLookup& lookup, std::size_t at) {
    const MenuEntry& entry = lookup.At(at);
    return entry.index && (*entry.index < 0 || *entry.index > highestMenuIndex)
               ? Told(MenuRules::tr("An index must be from 0 to 32767"))
               : Text();
}

Text WhyNoElement(const MenuLookup& lookup, std::size_t at) {
    const MenuEntry& entry = lookup.At(at);
    const Positions& same = lookup.named.at(LCase(entry.name));
    if (entry.name.empty() || same.size() < 2) {
        return {};
    }
    if (std::ranges::any_of(same, [&](std::size_t one) { return !lookup.At(one).index; })) {
        return Told(
            MenuRules::tr("Another menu has the name \"%1\". Give both an index to make them "
                          "an array"),
            entry.name);
    }
    const auto bearers = std::ranges::count(same, entry.index,
                                            [&](std::size_t one) { return lookup.At(one).index; });
    return bearers < 2 ? Text() : Told(MenuRules::tr("Another menu is \"%1\""), NameInCode(entry));
}

// The elements of an array are neighbours, with rising indices.
Text WhyNotInArray(const MenuLookup& lookup, std::size_t at) {
    const MenuEntry& entry = lookup.At(at);
    const Positions& same = lookup.named.at(LCase(entry.name));
    const auto own = std::ranges::find(same, at);
    if (entry.name.empty() || own == same.begin()) {
        return {};
    }
    const std::size_t before = *(own - 1);
    const MenuEntry& previous = lookup.At(before);
    if (!entry.index || !previous.index) {
        return {};  // no array
    }
    if (previous.level != entry.level || EndOfMenu(lookup.menus, before) != at) {
        return Told(
            MenuRules::tr("The elements of the array \"%1\" must follow each other in one menu"),
            entry.name);
    }
    return *entry.index < *previous.index
               ? Told(MenuRules::tr("The indices of the array \"%1\" must rise from menu to menu"),
                      entry.name)
               : Text();
}

Text WhyTooDeep(const MenuLookup& lookup, std::size_t at) {
    return lookup.At(at).level > mostMenuLevels
               ? Told(MenuRules::tr("Menus have at most %n levels below the menu bar", nullptr,
                                    mostMenuLevels))
               : Text();
}

Text WhyNoTitle(const MenuLookup& lookup, std::size_t at) {
    const MenuEntry& entry = lookup.At(at);
    if (entry.level > 0) {
        return {};
    }
    return entry.IsSeparator() ? Told(MenuRules::tr("A separator cannot be in the menu bar itself"))
           : entry.isChecked   ? Told(MenuRules::tr("A menu in the menu bar cannot be checked"))
           : !entry.shortcut.empty()
               ? Told(MenuRules::tr("A menu in the menu bar cannot have a shortcut key"))
               : Text();
}

Text WhyNoParent(const MenuLookup& lookup, std::size_t at) {
    const MenuEntry& entry = lookup.At(at);
    if (entry.level == 0 || !HasEntries(lookup.menus, at)) {
        return {};
    }
    return entry.IsSeparator() ? Told(MenuRules::tr("A separator cannot contain menus"))
           : entry.isChecked ? Told(MenuRules::tr("A menu that contains others cannot be checked"))
           : !entry.shortcut.empty()
               ? Told(MenuRules::tr("A menu that contains others cannot have a shortcut key"))
               : Text();
}

Text WhyNoSeparator(const MenuLookup& lookup, std::size_t at) {
    const MenuEntry& entry = lookup.At(at);
    if (!entry.IsSeparator()) {
        return {};
    }
    return entry.isChecked           ? Told(MenuRules::tr("A separator cannot be checked"))
           : !entry.shortcut.empty() ? Told(MenuRules::tr("A separator cannot have a shortcut key"))
                                     : Text();
}

Text WhyNoShortcut(const MenuLookup& lookup, std::size_t at) {
    const Text& shortcut = lookup.At(at).shortcut;
    if (shortcut.empty() || lookup.shortcuts.at(ShownShortcut(shortcut)).size() < 2) {
        return {};
    }
    return Told(MenuRules::tr("Another menu has the shortcut key %1"), ShownShortcut(shortcut));
}

Text WhyNoWindowList(const MenuLookup& lookup, std::size_t at) {
    return lookup.At(at).listsWindows && lookup.windowLists.size() > 1
               ? Told(MenuRules::tr("Only one menu of a form can list the windows"))
               : Text();
}

using MenuRule = Text (*)(const MenuLookup& lookup, std::size_t at);

constexpr std::array<MenuRule, 11> menuRules = {
    WhyNotNamed, WhyTaken,    WhyNoIndex,     WhyNoElement,  WhyNotInArray,  WhyTooDeep,
    WhyNoTitle,  WhyNoParent, WhyNoSeparator, WhyNoShortcut, WhyNoWindowList};

}  // namespace

std::vector<MenuProblem> MenuProblems(const forms::Document& document, const MenuEntries& menus) {
    const MenuLookup lookup = LookUp(document, menus);
    std::vector<MenuProblem> problems;
    for (std::size_t at = 0; at < menus.size(); ++at) {
        for (const MenuRule rule : menuRules) {
            if (Text why = rule(lookup, at); !why.empty()) {
                problems.push_back({at, std::move(why)});
            }
        }
    }
    return problems;
}

std::vector<MenuProblem> NewMenuProblems(const forms::Document& document, const MenuEntries& former,
                                         const MenuEntries& menus) {
    std::set<std::pair<std::optional<std::size_t>, Text>> known;
    for (const MenuProblem& problem : MenuProblems(document, former)) {
        known.emplace(former[problem.entry].origin, problem.why);
    }
    std::vector<MenuProblem> problems = MenuProblems(document, menus);
    std::erase_if(problems, [&](const MenuProblem& problem) {
        const auto& origin = menus[problem.entry].origin;
        return origin && known.contains({origin, problem.why});
    });
    return problems;
}

void ChangeMenus(const forms::Document& document, const std::function<void()>& change) {
    const MenuEntries former = ReadMenus(document);
    change();
    const auto problems = NewMenuProblems(document, former, ReadMenus(document));
    if (!problems.empty()) {
        throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                           problems.front().why);
    }
}

}  // namespace lumenkit::lumenform
