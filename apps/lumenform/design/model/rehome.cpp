#include "apps/lumenform/design/model/rehome.h"

#include <QPointF>
#include <algorithm>
#include <cmath>

#include "apps/lumenform/design/model/area.h"
#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/containers.h"
#include "apps/lumenform/design/model/page_lists.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/controls.h"

namespace lumenkit::lumenform {

namespace {

// A control that gets another container or page, with its distance in twips.
struct Mover {
    LiveControl* control;
    forms::Block& from;
    bool changesContainer;
    QPointF step;  // between its places in the old and the new container
};

Mover MoverOf(const FormDesign& design, LiveControl& control, const Home& home, Landing landing) {
    const LiveControl* const from = ContainerOf(design, control);
    Mover mover{&control, BlockOf(design, from), from != home.container, {}};
    if (mover.changesContainer) {
        mover.step = OriginOf(design, from) - OriginOf(design, home.container);
        mover.step = {std::round(mover.step.x()), std::round(mover.step.y())};
        const QRectF there = RectOf(control.Place()).translated(mover.step);
        if (landing == Landing::Inside) {
            mover.step += StepInside(there, RoomOf(design, home.container));
        }
    }
    return mover;
}

// Stores the place in the new container. The place that a tabbed box stores far to the left becomes
// the one that is seen: PageLists moves it again if needed.
void StoreNewPlace(const FormDesign& design, const Mover& mover, const Scale& scale) {
    const BlockReader reader(design.Document(), mover.control->Block());
    Rescale(reader, mover.control->Units(), scale);
    const host::Placement former = SavedPlace(reader, scale, {});
    const QPointF step = mover.step + QPointF(mover.control->Offset(), 0);
    StorePlace(reader, scale, former, Moved(former, step));
}

// The page must be shown: it gets the controls.
void ShowPage(const Home& home) {
    if (home.page && home.container != nullptr && home.container->Pages() != nullptr) {
        home.container->Pages()->Show(*home.page);
    }
}

// Returns the block before which the first mover comes: none that moves itself.
const forms::Block* BeforeOf(const forms::Block& parent, const forms::Block* before,
                             const std::vector<Mover>& movers) {
    const auto moves = [&](const forms::Block* block) {
        return std::ranges::any_of(
            movers, [&](const Mover& mover) { return &mover.control->Block() == block; });
    };
    const std::vector<forms::Block*> siblings = parent.Controls();
    auto next = std::ranges::find(siblings, before);
    next = std::find_if_not(next, siblings.end(), moves);
    return next == siblings.end() ? nullptr : *next;
}

}  // namespace

bool CanHold(const FormDesign& design, const LiveControl* container, const LiveControl& control) {
    if (container != nullptr && !container->IsContainer()) {
        return false;
    }
    while (container != nullptr && container != &control) {
        container = ContainerOf(design, *container);
    }
    return container == nullptr;
}

std::optional<int> PageOf(const FormDesign& design, const LiveControl& control) {
    const LiveControl* const container = ContainerOf(design, control);
    const TabPages* const pages = container == nullptr ? nullptr : container->Pages();
    for (int page = 0; pages != nullptr && page < pages->Count(); ++page) {
        if (&pages->WidgetOf(page) == control.Widget().parentWidget()) {
            return page;
        }
    }
    return std::nullopt;
}

void Rehome(FormDesign& design, const QString& title, const std::vector<LiveControl*>& controls,
            const Home& home, Landing landing) {
    ShowPage(home);
    design.Restructure(title, [&] {
        std::vector<Text> selected = design.SelectedNames();
        design.View().Save();
        forms::Block& parent = BlockOf(design, home.container);
        const Scale scale = InsideOf(design, home.container).scale;
        std::vector<Mover> movers;
        movers.reserve(controls.size());
        for (LiveControl* const control : controls) {
            movers.push_back(MoverOf(design, *control, home, landing));
        }
        const forms::Block* const before = BeforeOf(parent, home.before, movers);
        for (const Mover& mover : movers) {
            forms::Block& block = mover.control->Block();
            if (mover.changesContainer) {
                StoreNewPlace(design, mover, scale);
            } else if (home.page) {
                PutOnPage(design.Document(), parent, block, *home.page);
            }
            parent.TakeControl(mover.from, block, before);
        }
        return selected;
    });
}

}  // namespace lumenkit::lumenform
