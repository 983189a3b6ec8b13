#include "apps/lumenform/design/properties/tab_order.h"

#include <algorithm>
#include <cstddef>
#include <variant>
#include <vector>

#include "forms/controls.h"
#include "forms/literal.h"
#include "frame/runtime_error.h"

namespace lumenkit::form {

namespace {

constexpr TextView turnProperty = u"TabIndex";

std::int32_t TurnOf(const forms::Block& control) {
    const auto* turn = std::get_if<std::int32_t>(&control.FindProperty(turnProperty)->Literal());
    return turn == nullptr ? 0 : *turn;
}

// All but `without` that have a turn, in their order.
std::vector<forms::Block*> InOrder(const forms::Block& form, const forms::Block& without) {
    std::vector<forms::Block*> controls = forms::AllControls(form);
    std::erase_if(controls, [&](const forms::Block* control) {
        return control == &without || control->FindProperty(turnProperty) == nullptr;
    });
    std::ranges::stable_sort(controls, {},
                             [](const forms::Block* control) { return TurnOf(*control); });
    return controls;
}

}  // namespace

void MoveInTabOrder(forms::Block& form, forms::Block& control, std::int32_t turn) {
    if (turn < 0) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    std::vector<forms::Block*> order = InOrder(form, control);
    const std::size_t place = std::min(static_cast<std::size_t>(turn), order.size());
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(place), &control);
    for (std::size_t index = 0; index < order.size(); ++index) {
        const auto number = static_cast<std::int32_t>(index);
        const forms::Property* present = order[index]->FindProperty(turnProperty);
        if (present == nullptr || TurnOf(*order[index]) != number) {
            order[index]->Set(turnProperty, forms::Literal(number), u"Left");
        }
    }
}

}  // namespace lumenkit::form
