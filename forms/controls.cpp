#include "forms/controls.h"

#include <cstdint>
#include <map>
#include <variant>

#include "forms/literal.h"
#include "forms/property.h"
#include "frame/numbers.h"
#include "frame/utf8.h"

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

std::vector<NameClash> NameClashes(const Block& block) {
    std::map<Text, const Block*> single;    // controls without an index, by name in lower case
    std::map<Text, const Block*> any;       // controls of all kinds
    std::map<Text, const Block*> elements;  // elements of control arrays, by name with index
    std::vector<NameClash> clashes;
    for (const Block* control : AllControls(block)) {
        const Text name = LCase(control->Name());
        const bool isElement = control->FindProperty(u"Index") != nullptr;
        const auto& rivals = isElement ? single : any;
        const auto rival = rivals.find(name);
        const auto twin = elements.find(LCase(NameInCode(*control)));
        if (rival != rivals.end()) {
            clashes.push_back({control, rival->second});
        } else if (isElement && twin != elements.end()) {
            clashes.push_back({control, twin->second});
        }
        any.emplace(name, control);
        (isElement ? elements : single)
            .emplace(isElement ? LCase(NameInCode(*control)) : name, control);
    }
    return clashes;
}

std::string TextOf(const NameClash& clash) {
    return "there is a control \"" + ToUtf8(NameInCode(*clash.earlier)) + "\" already (line " +
           std::to_string(clash.earlier->NamePlace().line) +
           "); upper and lower case make no difference";
}

Text NameInCode(const Block& control) {
    const Property* index = control.FindProperty(u"Index");
    const auto* number = index == nullptr ? nullptr : std::get_if<std::int32_t>(&index->Literal());
    return number == nullptr ? control.Name() : control.Name() + u'(' + Decimal(*number) + u')';
}

}  // namespace lumenkit::forms
