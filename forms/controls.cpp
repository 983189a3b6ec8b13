#include "forms/controls.h"

#include <cstdint>
#include <variant>

#include "forms/literal.h"
#include "forms/property.h"
#include "frame/numbers.h"

namespace lumenkit::forms {

namespace {

// The recursion is as deep as the blocks are nested, which the parser and the editors limit.
void AddControls(const Block& block, std::vector<Block*>& controls) {
    for (Block* control : block.Controls()) {
        controls.push_back(control);
        AddControls(*control, controls);
    }
}

}  // namespace

std::vector<Block*> AllControls(const Block& block) {
    std::vector<Block*> controls;
    AddControls(block, controls);
    return controls;
}

Text NameInCode(const Block& control) {
    const Property* index = control.FindProperty(u"Index");
    const auto* number = index == nullptr ? nullptr : std::get_if<std::int32_t>(&index->Literal());
    return number == nullptr ? control.Name() : control.Name() + u'(' + Decimal(*number) + u')';
}

}  // namespace lumenkit::forms
