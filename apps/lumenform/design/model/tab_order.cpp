#include "apps/lumenform/design/model/tab_order.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "apps/lumenform/form_view/block_reader.h"
#include "forms/controls.h"
#include "forms/literal.h"
#include "frame/runtime_error.h"

namespace lumenkit::lumenform {

namespace {

constexpr TextView turnProperty = u"TabIndex";
constexpr std::int32_t none = -1;

struct Stop {
    forms::Block* block;
    std::int32_t turn;
};

// Returns all stops except `without`, in tab order.
std::vector<Stop> StopsOf(const forms::Document& document, const forms::Block& without) {
    std::vector<Stop> stops;
    for (forms::Block* block : forms::AllControls(document.Root())) {
        const BlockReader reader(document, *block);
        if (block != &without && reader.Has(turnProperty)) {
            stops.push_back({block, reader.Whole(turnProperty, 0)});
        }
    }
    std::ranges::stable_sort(stops, {}, &Stop::turn);
    return stops;
}

}  // namespace

void GiveTurn(const forms::Document& document, forms::Block& control, std::int32_t turn) {
    if (turn < 0) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    std::vector<Stop> stops = StopsOf(document, control);
    const auto place = std::min<std::ptrdiff_t>(turn, std::ssize(stops));
    stops.insert(stops.begin() + place,
                 {&control, BlockReader(document, control).Whole(turnProperty, none)});
    std::int32_t next = 0;
    for (std::ptrdiff_t index = 0; index < std::ssize(stops); ++index) {
        const Stop& stop = stops[static_cast<std::size_t>(index)];
        const bool isBefore = index <= place;
        const std::int32_t now =
            isBefore ? static_cast<std::int32_t>(index) : std::max(stop.turn, next);
        if (now != stop.turn) {
            stop.block->Set(turnProperty, forms::Literal(now), u"Left");
        }
        next = now + 1;
    }
}

}  // namespace lumenkit::lumenform
