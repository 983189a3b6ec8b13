#include "apps/lumenform/design/outline/outline_moves.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

#include "apps/lumenform/design/model/rehome.h"
#include "apps/lumenform/design/model/renaming.h"
#include "apps/lumenform/design/model/stacking.h"
#include "forms/controls.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

using Kind = OutlineNode::Kind;

QString OutlineTitle(const char* text) {
    return QCoreApplication::translate("outline", text);
}

QString NameOf(const OutlineNodes& nodes) {
    const auto count = static_cast<int>(nodes.size());
    return count == 1 ? qt::ToQString(forms::NameInCode(*nodes.front()->block))
                      : QCoreApplication::translate("outline", "%n objects", nullptr, count);
}

bool AllAre(const OutlineNodes& nodes, Kind kind) {
    return std::ranges::all_of(nodes, [kind](const auto* node) { return node->Is(kind); });
}

using NodeSet = std::unordered_set<const OutlineNode*>;

void Collect(const OutlineNode& node, const NodeSet& wanted, OutlineNodes& found) {
    const bool counts = node.Is(Kind::Control) || node.Is(Kind::Menu);
    if (counts && wanted.contains(&node)) {
        found.push_back(&node);
        return;
    }
    for (const auto& child : node.children) {
        Collect(*child, wanted, found);
    }
}

// A node with whether it moves.
using Neighbour = std::pair<const OutlineNode*, bool>;

void SwapUp(std::vector<Neighbour>& neighbours, forms::Block& parent) {
    for (std::size_t i = 1; i < neighbours.size(); ++i) {
        if (neighbours[i].second && !neighbours[i - 1].second) {
            parent.MoveControl(*neighbours[i].first->block, neighbours[i - 1].first->block);
            std::swap(neighbours[i], neighbours[i - 1]);
        }
    }
}

void SwapDown(std::vector<Neighbour>& neighbours, forms::Block& parent) {
    for (std::size_t i = neighbours.size(); i-- > 1;) {
        if (neighbours[i - 1].second && !neighbours[i].second) {
            parent.MoveControl(*neighbours[i].first->block, neighbours[i - 1].first->block);
            std::swap(neighbours[i], neighbours[i - 1]);
        }
    }
}

// Moves those of the children of one kind that are in `nodes`.
void MoveAmong(const OutlineNode& parent, const NodeSet& nodes, Kind kind, bool up) {
    std::vector<Neighbour> neighbours;
    for (const auto& child : parent.children) {
        if (child->Is(kind)) {
            neighbours.emplace_back(child.get(), nodes.contains(child.get()));
        }
    }
    if (up) {
        SwapUp(neighbours, *parent.block);
    } else {
        SwapDown(neighbours, *parent.block);
    }
}

// Returns the block before which controls come to get to the place.
const forms::Block* BlockBefore(const OutlinePlace& place) {
    if (place.before == nullptr || place.before->Is(Kind::Menu)) {
        return BehindAll(*place.parent->block);
    }
    return place.before->Is(Kind::Page) ? Foremost(*place.parent->block) : place.before->block;
}

Home HomeAt(const OutlinePlace& place) {
    const OutlineNode& parent = *place.parent;
    return {.container = parent.control,
            .page = parent.Is(Kind::Page) ? std::optional(parent.page) : std::nullopt,
            .before = BlockBefore(place)};
}

void MoveMenusTo(FormDesign& design, const QString& title, const OutlineNodes& menus,
                 const OutlinePlace& place) {
    design.Restructure(title, [&] {
        const NodeSet moved(menus.begin(), menus.end());
        const OutlineNode* before = place.before;
        const auto& siblings = place.parent->children;
        while (before != nullptr && moved.contains(before)) {
            const auto next = static_cast<std::size_t>(before->row) + 1;
            before = next < siblings.size() ? siblings[next].get() : nullptr;
        }
        for (const OutlineNode* const menu : menus) {
            place.parent->block->MoveControl(*menu->block,
                                             before == nullptr ? nullptr : before->block);
        }
        return design.SelectedNames();
    });
}

}  // namespace

OutlineNodes OutermostOf(const OutlineNodes& nodes) {
    OutlineNodes found;
    if (!nodes.empty()) {
        const OutlineNode* form = nodes.front();
        while (form->parent != nullptr) {
            form = form->parent;
        }
        Collect(*form, NodeSet(nodes.begin(), nodes.end()), found);
    }
    return found;
}

void MoveByOne(FormDesign& design, const OutlineNodes& nodes, bool up) {
    const OutlineNodes moved = OutermostOf(nodes);
    if (moved.empty()) {
        return;
    }
    const QString title = OutlineTitle(up ? QT_TRANSLATE_NOOP("outline", "Move %1 up")
                                          : QT_TRANSLATE_NOOP("outline", "Move %1 down"));
    design.Restructure(title.arg(NameOf(moved)), [&] {
        const NodeSet set(moved.begin(), moved.end());
        NodeSet parents;
        for (const OutlineNode* const node : moved) {
            if (parents.insert(node->parent).second) {
                MoveAmong(*node->parent, set, Kind::Control, up);
                MoveAmong(*node->parent, set, Kind::Menu, up);
            }
        }
        return design.SelectedNames();
    });
}

bool CanMoveTo(const FormDesign& design, const OutlineNodes& nodes, const OutlinePlace& place) {
    if (nodes.empty() || place.parent == nullptr) {
        return false;
    }
    if (AllAre(nodes, Kind::Menu)) {
        const bool isAmongMenus = place.before == nullptr || place.before->Is(Kind::Menu);
        return isAmongMenus && std::ranges::all_of(nodes, [&](const OutlineNode* node) {
                   return node->parent == place.parent;
               });
    }
    return AllAre(nodes, Kind::Control) && !place.parent->Is(Kind::Menu) &&
           std::ranges::all_of(nodes, [&](const OutlineNode* node) {
               return CanHold(design, place.parent->control, *node->control);
           });
}

void MoveTo(FormDesign& design, const OutlineNodes& nodes, const OutlinePlace& place) {
    const bool isSameParent = std::ranges::all_of(
        nodes, [&](const OutlineNode* node) { return node->parent == place.parent; });
    const QString title =
        isSameParent
            ? OutlineTitle(QT_TRANSLATE_NOOP("outline", "Change the order of %1"))
                  .arg(NameOf(nodes))
            : OutlineTitle(QT_TRANSLATE_NOOP("outline", "Move %1 into %2"))
                  .arg(NameOf(nodes), qt::ToQString(forms::NameInCode(*place.parent->block)));
    if (AllAre(nodes, Kind::Menu)) {
        MoveMenusTo(design, title, nodes, place);
        return;
    }
    std::vector<LiveControl*> controls;
    for (const OutlineNode* const node : nodes) {
        controls.push_back(node->control);
    }
    Rehome(design, title, controls, HomeAt(place), Landing::Inside);
}

void DeleteNodes(FormDesign& design, const OutlineNodes& nodes) {
    const OutlineNodes deleted = OutermostOf(nodes);
    if (deleted.empty()) {
        return;
    }
    design.Restructure(OutlineTitle(QT_TRANSLATE_NOOP("outline", "Delete")), [&] {
        for (const OutlineNode* const node : deleted) {
            node->parent->block->RemoveControl(*node->block);
        }
        return std::vector<Text>();
    });
}

void RenameNode(FormDesign& design, const OutlineNode& node, const Text& name) {
    const QString title = OutlineTitle(QT_TRANSLATE_NOOP("outline", "Rename %1"));
    design.Restructure(title.arg(qt::ToQString(forms::NameInCode(*node.block))), [&] {
        RenameIn(design.Document(), *node.block, name);
        std::vector<Text> names;
        for (const LiveControl* const control : design.Selected()) {
            names.push_back(forms::NameInCode(control->Block()));
        }
        for (const forms::Block* const menu : design.SelectedMenus()) {
            names.push_back(forms::NameInCode(*menu));
        }
        return names;
    });
}

}  // namespace lumenkit::lumenform
