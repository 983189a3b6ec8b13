#include "apps/lumenform/design/model/tab_order.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "apps/lumenform/form_view/block_reader.h"
#include "forms/controls.h"
#include "forms/literal.h"

namespace lumenkit::form {

namespace {

struct Stop {
    forms::Block* block;
    std::int32_t turn;
};

std::vector<Stop> StopsOf(const forms::Document& document) {
    std::vector<Stop> stops;
    for (forms::Block* block : forms::AllControls(document.Root())) {
        const BlockReader reader(document, *block);
        if (reader.Has(u"TabIndex")) {
            stops.push_back({block, reader.Whole(u"TabIndex", 0)});
        }
    }
    std::ranges::stable_sort(stops, {}, &Stop::turn);
    return stops;
}

}  // namespace

void GiveTurn(const forms::Document& document, const forms::Block& control, std::int32_t turn) {
    std::vector<Stop> stops = StopsOf(document);
    const auto found = std::ranges::find(stops, &control, &Stop::block);
    if (found == stops.end()) {
        return;
    }
    const Stop chosen = *found;
    stops.erase(found);
    const auto place = std::clamp<std::ptrdiff_t>(turn, 0, std::ssize(stops));
    stops.insert(stops.begin() + place, chosen);
    std::int32_t next = 0;
    for (std::ptrdiff_t index = 0; index < std::ssize(stops); ++index) {
        const Stop& stop = stops[static_cast<std::size_t>(index)];
        const bool isBefore = index <= place;
        const std::int32_t now =
            isBefore ? static_cast<std::int32_t>(index) : std::max(stop.turn, next);
        if (now != stop.turn) {
            stop.block->Set(u"TabIndex", forms::Literal(now));
        }
        next = now + 1;
    }
}

}  // namespace lumenkit::form
