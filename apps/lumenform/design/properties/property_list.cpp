#include "apps/lumenform/design/properties/property_list.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/properties/color_text.h"
#include "apps/lumenform/design/properties/container_properties.h"
#include "apps/lumenform/design/properties/font_text.h"
#include "apps/lumenform/design/properties/library_properties.h"
#include "apps/lumenform/design/properties/menu_properties.h"
#include "apps/lumenform/design/properties/pictures/picture_format.h"
#include "apps/lumenform/design/properties/plain_properties.h"
#include "apps/lumenform/design/properties/stored_property.h"
#include "forms/controls.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// The properties of one object by their names in lower case.
class PropertiesByName {
 public:
    explicit PropertiesByName(const std::vector<ObjectProperty>& properties) {
        for (const ObjectProperty& property : properties) {
            byName_.emplace(LCase(property.name), &property);
        }
    }

    // Returns null if there is none with the same name, kind and choices.
    const ObjectProperty* FindSame(const ObjectProperty& sought) const {
        const auto [first, last] = byName_.equal_range(LCase(sought.name));
        const auto found = std::find_if(first, last, [&](const auto& named) {
            return named.second->kind == sought.kind && named.second->choices == sought.choices;
        });
        return found == last ? nullptr : found->second;
    }

 private:
    std::multimap<Text, const ObjectProperty*> byName_;
};

// Returns this property of the first object, and the same of all others; fewer if one lacks it.
std::vector<ObjectProperty> Gather(const ObjectProperty& first,
                                   const std::vector<PropertiesByName>& others) {
    std::vector<ObjectProperty> found = {first};
    for (const PropertiesByName& other : others) {
        if (const ObjectProperty* same = other.FindSame(first)) {
            found.push_back(*same);
        }
    }
    return found;
}

// Sorts by name without regard to case.
void SortByName(std::vector<PropertyRow>& rows) {
    std::ranges::stable_sort(
        rows,
        [](TextView left, TextView right) {
            return std::ranges::lexicographical_compare(left, right, {}, LowerUnit, LowerUnit);
        },
        &PropertyRow::name);
}

void ReadValue(PropertyRow& row) {
    try {
        row.value = row.properties.front().get();
        for (const ObjectProperty& property : row.properties) {
            if (!SameValue(*row.value, property.get())) {
                row.value.reset();
                return;
            }
        }
    } catch (const RuntimeError&) {  // the value in the companion file is no text
        row.kind = PropertyKind::Text;
        row.canSet = false;
        row.value = CompanionText();
    }
}

bool IsChanged(const ObjectProperty& property) {
    try {
        return property.isChanged && property.isChanged();
    } catch (const RuntimeError&) {  // the value in the companion file is no text
        return true;
    }
}

PropertyRow RowOf(std::vector<ObjectProperty> properties) {
    const ObjectProperty& first = properties.front();
    PropertyRow row{
        .name = first.name,
        .help = first.help,
        .kind = first.kind,
        .choices = first.choices,
        .canSet = std::ranges::all_of(
            properties, [](const ObjectProperty& property) { return property.set != nullptr; }),
        .isOnPage = std::ranges::all_of(properties, &ObjectProperty::isOnPage),
        .isChanged = std::ranges::any_of(properties, IsChanged),
        .canReset = std::ranges::all_of(
            properties, [](const ObjectProperty& property) { return property.reset != nullptr; }),
        .value = {},
        .properties = std::move(properties)};
    ReadValue(row);
    return row;
}

Text LabelOf(const std::vector<Choice>& choices, const Value& value) {
    const auto found = std::ranges::find_if(
        choices, [&](const Choice& choice) { return SameValue(choice.value, value); });
    return found == choices.end() ? ToText(value) : found->label;
}

Text TextOf(const PropertyRow& row, const Value& value) {
    switch (row.kind) {
        case PropertyKind::Choice:
            return LabelOf(row.choices, value);
        case PropertyKind::Color:
            return ColorName(ToColor(value));
        case PropertyKind::Font:
            return FontText(host::ToFont(value).get());
        case PropertyKind::Picture:
            return DescribePicture(ToText(value));
        case PropertyKind::Text:
        case PropertyKind::LongText:
        case PropertyKind::Items:
        case PropertyKind::Lines:
        case PropertyKind::Number:
            break;
    }
    return ToText(value);
}

}  // namespace

PropertyList::PropertyList(FormDesign& design, ControlMessages& messages)
    : design_(design), messages_(messages), defaults_(messages), rows_(Read()) {}

std::vector<ObjectProperty> PropertyList::PropertiesOf(LiveControl& control) const {
    std::vector<ObjectProperty> properties =
        control.Hosted() == nullptr
            ? PlainProperties(design_, control)
            : LibraryProperties(*control.Hosted(), design_.Context().classes.enumerations,
                                defaults_, InsideOf(design_, ContainerOf(design_, control)).font);
    std::ranges::move(ContainerProperties(design_, control), std::back_inserter(properties));
    std::set<Text> known;
    for (const ObjectProperty& property : properties) {
        known.insert(LCase(property.name));
    }
    if (control.Hosted() != nullptr) {
        known.merge(defaults_.NamesOf(*control.Hosted()));
    }
    std::ranges::move(OtherProperties(design_, control, std::move(known)),
                      std::back_inserter(properties));
    return properties;
}

std::vector<std::vector<ObjectProperty>> PropertyList::PropertiesOfSelection() const {
    std::vector<std::vector<ObjectProperty>> lists;
    for (LiveControl* control : design_.Selected()) {
        lists.push_back(PropertiesOf(*control));
    }
    for (forms::Block* menu : design_.SelectedMenus()) {
        lists.push_back(MenuProperties(design_, *menu));
    }
    if (lists.empty()) {
        lists.push_back(FormProperties(design_));
    }
    return lists;
}

std::vector<PropertyRow> PropertyList::Read() const {
    const std::vector<std::vector<ObjectProperty>> lists = PropertiesOfSelection();
    const std::vector<PropertiesByName> others(lists.begin() + 1, lists.end());
    std::vector<PropertyRow> rows;
    for (const ObjectProperty& property : lists.front()) {
        std::vector<ObjectProperty> everywhere = Gather(property, others);
        if (everywhere.size() == lists.size() && (lists.size() == 1 || !property.isIndividual)) {
            rows.push_back(RowOf(std::move(everywhere)));
        }
    }
    SortByName(rows);
    return rows;
}

void PropertyList::Apply(const std::vector<ObjectProperty>& properties, const Change& change) {
    const ControlMessages::Listener listener(messages_);
    for (const ObjectProperty& property : properties) {
        change(property);
        if (!listener.Heard().empty()) {
            throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                               listener.Heard().front());
        }
    }
}

// Blocks remain valid during the change, but their names may change.
void PropertyList::ApplyToBlocks(const std::vector<ObjectProperty>& properties,
                                 const QString& title, const Change& change) {
    design_.Restructure(title, [&] {
        std::vector<const forms::Block*> selected;
        for (const LiveControl* control : design_.Selected()) {
            selected.push_back(&control->Block());
        }
        selected.insert(selected.end(), design_.SelectedMenus().begin(),
                        design_.SelectedMenus().end());
        Apply(properties, change);
        design_.View().Save();  // writes the changes to live controls
        std::vector<Text> names;
        names.reserve(selected.size());
        for (const forms::Block* block : selected) {
            names.push_back(forms::NameInCode(*block));
        }
        return names;
    });
}

void PropertyList::ChangeAll(std::size_t row, const QString& title, const Change& change) {
    const std::vector<ObjectProperty> properties =
        rows_.at(row).properties;  // a copy: the rows change
    const bool inBlocks = std::ranges::any_of(properties, [](const ObjectProperty& property) {
        return property.place == PropertyPlace::Block;
    });
    if (inBlocks) {
        ApplyToBlocks(properties, title, change);
    } else {
        design_.Edit(title, [&] { Apply(properties, change); });
    }
}

void PropertyList::Assign(std::size_t row, const Value& value) {
    ChangeAll(row, qt::ToQString(rows_.at(row).name),
              [&](const ObjectProperty& property) { property.set(value); });
}

void PropertyList::Reset(std::size_t row, const QString& title) {
    ChangeAll(row, title, [](const ObjectProperty& property) { property.reset(); });
}

Text EditedValue(const PropertyRow& row) {
    const bool isNothing = !row.value || std::holds_alternative<Empty>(*row.value);
    return isNothing ? Text() : TextOf(row, *row.value);
}

Text ShownValue(const PropertyRow& row) {
    Text text = EditedValue(row);
    std::ranges::replace_if(
        text, [](char16_t unit) { return unit < blank; }, blank);
    return text;
}

}  // namespace lumenkit::lumenform
