#include "apps/lumenform/design/properties/property_choices.h"

#include <algorithm>

#include "frame/numbers.h"

namespace lumenkit::lumenform {

namespace {

constexpr auto labelBackStyles =
    std::to_array<TextView>({u"0 - Own colour", u"1 - Colour of the container"});

struct NamedNumbers {
    TextView className;  // empty: every class
    TextView property;
    ChoiceLabels labels;
};

constexpr std::array namedNumbers = {
    NamedNumbers{u"VLabel", u"BackStyle", labelBackStyles},
    NamedNumbers{{}, u"BorderStyle", choices::borderStyles},
    NamedNumbers{u"VOptList", u"ItemAlignment", choices::buttonAlignments},
    NamedNumbers{{}, u"MousePointer", choices::mousePointers},
    NamedNumbers{{}, u"ScrollBars", choices::scrollBars},
};

}  // namespace

ChoiceLabels LibraryLabels(TextView className, TextView property) {
    const auto* const found = std::ranges::find_if(namedNumbers, [&](const NamedNumbers& named) {
        return named.property == property &&
               (named.className.empty() || named.className == className);
    });
    return found == namedNumbers.end() ? ChoiceLabels() : found->labels;
}

std::vector<Choice> ChoicesOf(ChoiceLabels labels) {
    std::vector<Choice> made;
    for (const TextView label : labels) {
        made.push_back({Text(label),
                        static_cast<std::int32_t>(ParseNumber(label.substr(0, label.find(u' '))))});
    }
    return made;
}

}  // namespace lumenkit::lumenform
