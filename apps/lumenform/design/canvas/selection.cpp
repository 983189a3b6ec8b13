#include "apps/lumenform/design/canvas/selection.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "apps/lumenform/design/model/arrange.h"

namespace lumenkit::lumenform {

void Toggle(FormDesign& design, LiveControl& control) {
    std::vector<LiveControl*> selected = design.Selected();
    if (std::erase(selected, &control) == 0) {
        selected.push_back(&control);
    }
    design.Select(std::move(selected));
}

void MakeLast(FormDesign& design, LiveControl& control) {
    std::vector<LiveControl*> selected = design.Selected();
    std::erase(selected, &control);
    selected.push_back(&control);
    design.Select(std::move(selected));
}

void SelectNext(FormDesign& design, bool forward) {
    std::vector<LiveControl*> order = InTabOrder(design.View().Controls());
    if (order.empty()) {
        return;
    }
    if (!forward) {
        std::ranges::reverse(order);
    }
    auto next = order.begin();
    if (!design.Selected().empty()) {
        next = std::ranges::find(order, design.Selected().back()) + 1;
    }
    design.Select({next == order.end() ? order.front() : *next});
}

void SelectContainer(FormDesign& design) {
    if (!design.Selected().empty()) {
        LiveControl* const container = ContainerOf(design, *design.Selected().back());
        design.Select(container == nullptr ? std::vector<LiveControl*>() : std::vector{container});
    } else {
        design.Select({});  // after a menu
    }
}

void SelectAll(FormDesign& design) {
    std::vector<LiveControl*> all;
    for (const auto& control : design.View().Controls()) {
        if (control->Widget().isVisibleTo(&design.View())) {
            all.push_back(control.get());
        }
    }
    design.Select(std::move(all));
}

}  // namespace lumenkit::lumenform
