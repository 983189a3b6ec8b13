#include "apps/lumenform/design/menus/apply_menus.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "apps/lumenform/design/properties/stored_property.h"
#include "forms/controls.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// ---- Places

template <typename T>
std::vector<T> Backwards(std::vector<T> items) {
    std::ranges::reverse(items);
    return items;
}

// Moves, adds and removes the blocks of menus. Blocks that are in order stay where they are.
class MenuPlacing {
 public:
    MenuPlacing(forms::Block& form, const MenuEntries& menus)
        : menus_(menus), present_(MenuBlocks(form)), blocks_(menus.size()) {
        for (std::size_t at = 0; at < menus.size(); ++at) {
            if (menus[at].origin) {
                blocks_[at] = present_.at(*menus[at].origin);
            }
        }
        NoteParents(form);
        for (forms::Block* const block : present_) {
            NoteParents(*block);
        }
        Place(form, 0, menus.size());
        RemoveOthers();
    }

    // In the order of the menus.
    const std::vector<forms::Block*>& Blocks() const { return blocks_; }

 private:
    void NoteParents(forms::Block& parent) {
        for (const forms::Block* const inner : parent.Controls()) {
            parents_[inner] = &parent;
        }
    }

    // Containers come before their entries, so a block never gets into itself.
    void Place(forms::Block& parent, std::size_t begin, std::size_t end) {
        std::vector<std::size_t> entries;
        for (std::size_t at = begin; at < end; at = EndOfMenu(menus_, at)) {
            entries.push_back(at);
        }
        PutInOrder(parent, entries);
        for (const std::size_t at : entries) {
            Place(*blocks_[at], at + 1, EndOfMenu(menus_, at));
        }
    }

    void PutInOrder(forms::Block& parent, const std::vector<std::size_t>& entries) {
        std::unordered_set<const forms::Block*> placed;
        const forms::Block* next = nullptr;
        for (const std::size_t at : Backwards(entries)) {
            forms::Block*& block = blocks_[at];
            if (block == nullptr) {
                block = &parent.AddControl(u"VB.Menu", menus_[at].name, next);
            } else if (parents_.at(block) != &parent || Follower(parent, *block, placed) != next) {
                parent.TakeControl(*parents_.at(block), *block, next);
            }
            parents_[block] = &parent;
            placed.insert(block);
            next = block;
        }
    }

    // Returns the first one of `placed` after the block.
    static const forms::Block* Follower(const forms::Block& parent, const forms::Block& block,
                                        const std::unordered_set<const forms::Block*>& placed) {
        const std::vector<forms::Block*> inner = parent.Controls();
        const auto own = std::ranges::find(inner, &block);
        const auto found = std::find_if(
            own, inner.end(), [&](const forms::Block* one) { return placed.contains(one); });
        return found == inner.end() ? nullptr : *found;
    }

    // Entries go before the menu that contains them.
    void RemoveOthers() {
        const std::unordered_set<const forms::Block*> kept(blocks_.begin(), blocks_.end());
        for (const forms::Block* const block : Backwards(present_)) {
            if (!kept.contains(block)) {
                parents_.at(block)->RemoveControl(*block);
            }
        }
    }

    const MenuEntries& menus_;
    std::vector<forms::Block*> present_;
    std::vector<forms::Block*> blocks_;
    std::unordered_map<const forms::Block*, forms::Block*> parents_;
};

// ---- Properties

void RemoveStored(forms::Block& block, TextView name) {
    while (block.Remove(name)) {
    }
}

template <typename T>
void StoreMember(forms::Block& block, TextView name, const MenuEntry& former, const MenuEntry& now,
                 T MenuEntry::*member) {
    static const MenuEntry usual;
    if (now.*member == former.*member) {
        return;
    }
    if (now.*member == usual.*member) {
        RemoveStored(block, name);
    } else {
        StoreLiteral(block, name, forms::Literal(now.*member));
    }
}

void StoreIndex(forms::Block& block, const MenuEntry& former, const MenuEntry& now) {
    if (now.index == former.index) {
        return;
    }
    if (now.index) {
        StoreLiteral(block, u"Index", forms::Literal(*now.index));
    } else {
        RemoveStored(block, u"Index");
    }
}

void StoreMenu(forms::Block& block, const MenuEntry& former, const MenuEntry& now) {
    if (now.name != block.Name()) {
        block.Rename(now.name);
    }
    if (now.caption != former.caption || !now.origin) {
        StoreLiteral(block, u"Caption", forms::TextLiteral(now.caption));
    }
    if (now.shortcut != former.shortcut) {
        StoreShortcut(block, now.shortcut);
    }
    StoreIndex(block, former, now);
    StoreMember(block, u"Checked", former, now, &MenuEntry::isChecked);
    StoreMember(block, u"Enabled", former, now, &MenuEntry::isEnabled);
    StoreMember(block, u"HelpContextID", former, now, &MenuEntry::helpContextId);
    StoreMember(block, u"NegotiatePosition", former, now, &MenuEntry::negotiatePosition);
    StoreMember(block, u"Visible", former, now, &MenuEntry::isVisible);
    StoreMember(block, u"WindowList", former, now, &MenuEntry::listsWindows);
}

void RequireSame(const forms::Document& document, const MenuEntries& former) {
    if (ReadMenus(document) != former) {
        throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                           qt::ToText(QCoreApplication::translate(
                               "menus", "The menus of the form have changed meanwhile")));
    }
}

}  // namespace

void ApplyMenus(FormDesign& design, const MenuEntries& former, const MenuEntries& menus,
                std::size_t selected) {
    RequireSame(design.Document(), former);
    const QString title = QCoreApplication::translate("menus", "Edit the menus");
    design.Restructure(title, [&] {
        const MenuPlacing placing(design.Document().Root(), menus);
        for (std::size_t at = 0; at < menus.size(); ++at) {
            const MenuEntry& now = menus[at];
            StoreMenu(*placing.Blocks()[at], now.origin ? former.at(*now.origin) : MenuEntry(),
                      now);
        }
        std::vector<Text> names;
        if (selected < menus.size()) {
            names.push_back(forms::NameInCode(*placing.Blocks()[selected]));
        }
        return names;
    });
}

}  // namespace lumenkit::lumenform
