#include "apps/lumenkit/check/saved_control.h"

#include <variant>

#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check/saved_properties.h"
#include "apps/lumenkit/check/text_places.h"
#include "forms/controls.h"
#include "forms/property.h"
#include "frame/utf8.h"

namespace lumenkit::check {

SavedControl::SavedControl(const forms::Document& document, forms::Block& block,
                           const ClassDescriptor& type, Findings& findings)
    : document_(document),
      block_(block),
      type_(type),
      findings_(findings),
      bag_(document, block, nullptr),
      id_(ToUtf8(forms::NameInCode(block))) {}

Value SavedControl::ValueOf(TextView name) {
    const SavedProperty* own = Find(PropertiesOf(type_).read, name);
    return bag_.ReadProperty(name, own == nullptr ? Value() : own->defaultValue);
}

void SavedControl::Refuse(TextView name, const RuntimeError& error) {
    AddWhole(name, {{rules::unreadableValue.name,
                     0,
                     "the value cannot be converted; loading reports error " +
                         std::to_string(error.Number()) + " (" + ToUtf8(error.Description()) +
                         ") and does not read the following properties",
                     {}}});
}

void SavedControl::AddAt(TextView property, forms::Position place, const Remark& remark) {
    findings_.push_back({remark.rule, document_.Name(), place, id_, ToUtf8(property), std::nullopt,
                         remark.message, remark.suggestion, false});
}

void SavedControl::AddWhole(TextView property, const Remarks& remarks) {
    if (const forms::Property* saved = block_.FindProperty(property)) {
        for (const Remark& remark : remarks) {
            AddAt(saved->Name(), saved->ValuePlace(), remark);
        }
    }
}

void SavedControl::Add(TextView property, TextView text, const Remarks& remarks) {
    const forms::Property* saved = block_.FindProperty(property);
    if (saved == nullptr || remarks.empty()) {
        return;
    }
    const bool inForm = std::holds_alternative<Text>(saved->Literal());
    const TextPlaces places = inForm ? TextPlaces::Quoted(text, saved->ValuePlace())
                                     : TextPlaces::Elsewhere(saved->ValuePlace());
    for (const Remark& remark : remarks) {
        AddAt(saved->Name(), places.PlaceOf(remark.offset), remark);
        findings_.back().offset = remark.offset;
        findings_.back().isElsewhere = !inForm;
    }
}

}  // namespace lumenkit::check
