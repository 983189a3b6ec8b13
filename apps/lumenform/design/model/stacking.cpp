#include "apps/lumenform/design/model/stacking.h"

#include <QCoreApplication>
#include <algorithm>
#include <vector>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/form_view/menu_bar.h"

namespace lumenkit::lumenform {

namespace {

struct Stacked {
    forms::Block& parent;
    forms::Block& block;
};

// Returns the blocks in the order of the file, not of selection.
std::vector<Stacked> SelectedBlocks(const FormDesign& design) {
    const std::vector<LiveControl*> selected = OutermostSelected(design);
    std::vector<Stacked> blocks;
    for (const auto& control : design.View().Controls()) {
        if (std::ranges::find(selected, control.get()) != selected.end()) {
            blocks.push_back({BlockOf(design, ContainerOf(design, *control)), control->Block()});
        }
    }
    return blocks;
}

// Adds the selected menus inside `parent`, without those inside another one of them.
void AddSelectedMenus(const FormDesign& design, forms::Block& parent, std::vector<Stacked>& found) {
    for (forms::Block* const block : parent.Controls()) {
        if (std::ranges::find(design.SelectedMenus(), block) != design.SelectedMenus().end()) {
            found.push_back({parent, *block});
        } else if (IsMenu(*block)) {
            AddSelectedMenus(design, *block, found);
        }
    }
}

}  // namespace

const forms::Block* Foremost(const forms::Block& container) {
    const std::vector<forms::Block*> controls = container.Controls();
    return controls.empty() ? nullptr : controls.front();
}

const forms::Block* BehindAll(const forms::Block& container) {
    const std::vector<forms::Block*> controls = container.Controls();
    const auto menu =
        std::ranges::find_if(controls, [](const forms::Block* block) { return IsMenu(*block); });
    return menu == controls.end() ? nullptr : *menu;
}

void BringToFront(FormDesign& design) {
    if (design.Selected().empty()) {
        return;
    }
    design.Restructure(QCoreApplication::translate("stacking", "Bring to front"), [&] {
        std::vector<Text> names = design.SelectedNames();
        std::vector<Stacked> blocks = SelectedBlocks(design);
        for (; !blocks.empty(); blocks.pop_back()) {
            const Stacked& last = blocks.back();
            last.parent.MoveControl(last.block, Foremost(last.parent));
        }
        return names;
    });
}

void SendToBack(FormDesign& design) {
    if (design.Selected().empty()) {
        return;
    }
    design.Restructure(QCoreApplication::translate("stacking", "Send to back"), [&] {
        std::vector<Text> names = design.SelectedNames();
        for (const Stacked& stacked : SelectedBlocks(design)) {
            stacked.parent.MoveControl(stacked.block, BehindAll(stacked.parent));
        }
        return names;
    });
}

void DeleteSelected(FormDesign& design) {
    if (design.IsFormSelected()) {
        return;
    }
    design.Restructure(QCoreApplication::translate("stacking", "Delete"), [&] {
        std::vector<Stacked> blocks = SelectedBlocks(design);
        AddSelectedMenus(design, design.Document().Root(), blocks);
        for (const Stacked& stacked : blocks) {
            stacked.parent.RemoveControl(stacked.block);
        }
        return std::vector<Text>();
    });
}

}  // namespace lumenkit::lumenform
