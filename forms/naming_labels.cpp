#include "forms/naming_labels.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <variant>
#include <vector>

#include "forms/literal.h"
#include "forms/property.h"
#include "frame/text.h"

namespace lumenkit::forms {

namespace {

constexpr std::array<TextView, 2> labels = {u"lumenkit.VLabel", u"VB.Label"};
constexpr std::array<TextView, 6> outsideTheOrder = {u"VB.Data", u"VB.Image", u"VB.Line",
                                                     u"VB.Menu", u"VB.Shape", u"VB.Timer"};

struct Stop {
    Block* control;
    const Block* container;
    std::int32_t turn;
};

bool HasClassIn(std::span<const TextView> classes, const Block& control) {
    return std::ranges::any_of(classes, [&](TextView name) {
        return SameText(name, control.ClassName(), Compare::IgnoreCase);
    });
}

std::int32_t TurnOf(const Block& control) {
    const Property* const turn = control.FindProperty(u"TabIndex");
    const auto* const number =
        turn == nullptr ? nullptr : std::get_if<std::int32_t>(&turn->Literal());
    return number == nullptr ? std::numeric_limits<std::int32_t>::max() : *number;
}

// The recursion is as deep as the blocks are nested, which the parser and the editors limit.
void AddStops(const Block& container, std::vector<Stop>& stops) {
    for (Block* control : container.Controls()) {
        if (!HasClassIn(outsideTheOrder, *control)) {
            stops.push_back({control, &container, TurnOf(*control)});
        }
        AddStops(*control, stops);
    }
}

}  // namespace

std::vector<LabelledControl> NamingLabels(const Block& form) {
    std::vector<Stop> stops;
    AddStops(form, stops);
    std::ranges::stable_sort(stops, {}, &Stop::turn);
    std::vector<LabelledControl> named;
    const Stop* before = nullptr;
    for (const Stop& stop : stops) {
        const bool isNamed = before != nullptr && before->container == stop.container &&
                             HasClassIn(labels, *before->control);
        named.push_back({stop.control, isNamed ? before->control : nullptr});
        before = &stop;
    }
    return named;
}

}  // namespace lumenkit::forms
