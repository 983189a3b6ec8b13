#include "apps/lumenkit/check/saved_control.h"

#include <algorithm>
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
      first_(findings.size()),
      bag_(document, block, nullptr),
      id_(ToUtf8(forms::NameInCode(block))) {}

Value SavedControl::ValueOf(TextView name) {
    const SavedProperty* own = Find(PropertiesOf(type_).read, name);
    return bag_.ReadProperty(name, own == nullptr ? Value() : own->defaultValue);
}

bool SavedControl::HasError(TextView property) const {
    return std::any_of(findings_.begin() + static_cast<std::ptrdiff_t>(first_), findings_.end(),
                       [name = ToUtf8(property)](const Finding& finding) {
                           return finding.property == name &&
                                  SeverityOf(finding) == Severity::Error;
                       });
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
    } else if (const forms::Block* group = block_.FindGroup(property)) {
        for (const Remark& remark : remarks) {
            AddAt(group->Name(), group->NamePlace(), remark);
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
