#include "apps/lumenform/design/properties/property_list.h"

#include <algorithm>
#include <utility>

#include "apps/lumenform/design/properties/color_text.h"
#include "apps/lumenform/design/properties/container_properties.h"
#include "apps/lumenform/design/properties/font_text.h"
#include "apps/lumenform/design/properties/library_properties.h"
#include "apps/lumenform/design/properties/plain_properties.h"
#include "forms/controls.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

std::vector<ObjectProperty> PropertiesOf(FormDesign& design, LiveControl& control) {
    std::vector<ObjectProperty> properties =
        control.Hosted() != nullptr
            ? LibraryProperties(*control.Hosted(), design.Context().classes.enumerations)
            : PlainProperties(design, control);
    for (ObjectProperty& property : ContainerProperties(design, control)) {
        properties.push_back(std::move(property));
    }
    return properties;
}

bool IsSameProperty(const ObjectProperty& one, const ObjectProperty& other) {
    return one.kind == other.kind && SameText(one.name, other.name, Compare::IgnoreCase) &&
           one.choices == other.choices;
}

// Returns the properties of this property in all lists; fewer than lists if one lacks it.
std::vector<ObjectProperty> Gather(const ObjectProperty& sought,
                                   const std::vector<std::vector<ObjectProperty>>& lists) {
    std::vector<ObjectProperty> found;
    for (const std::vector<ObjectProperty>& list : lists) {
        const auto match = std::ranges::find_if(
            list, [&](const ObjectProperty& property) { return IsSameProperty(sought, property); });
        if (match != list.end()) {
            found.push_back(*match);
        }
    }
    return found;
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
        row.value = Text(u"(companion)");
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
            return ColorText(ToColor(value));
        case PropertyKind::Font:
            return FontText(host::ToFont(value).get());
        case PropertyKind::Text:
        case PropertyKind::LongText:
        case PropertyKind::Items:
        case PropertyKind::Number:
            break;
    }
    return ToText(value);
}

}  // namespace

PropertyList::PropertyList(FormDesign& design, ControlMessages& messages)
    : design_(design), messages_(messages), rows_(Read()) {}

std::vector<std::vector<ObjectProperty>> PropertyList::PropertiesOfSelection() const {
    std::vector<std::vector<ObjectProperty>> lists;
    for (LiveControl* control : design_.Selected()) {
        lists.push_back(PropertiesOf(design_, *control));
    }
    if (lists.empty()) {
        lists.push_back(FormProperties(design_));
    }
    return lists;
}

std::vector<PropertyRow> PropertyList::Read() const {
    const std::vector<std::vector<ObjectProperty>> lists = PropertiesOfSelection();
    std::vector<PropertyRow> rows;
    for (const ObjectProperty& property : lists.front()) {
        std::vector<ObjectProperty> everywhere = Gather(property, lists);
        if (everywhere.size() == lists.size() && (lists.size() == 1 || !property.isIndividual)) {
            rows.push_back(RowOf(std::move(everywhere)));
        }
    }
    std::ranges::stable_sort(rows, {}, [](const PropertyRow& row) { return LCase(row.name); });
    return rows;
}

void PropertyList::Apply(const std::vector<ObjectProperty>& properties, const Value& value) {
    const ControlMessages::Listener listener(messages_);
    for (const ObjectProperty& property : properties) {
        property.set(value);
        if (!listener.Heard().empty()) {
            throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                               listener.Heard().front());
        }
    }
}

// Blocks remain valid during the change, but their names may change.
void PropertyList::ApplyToBlocks(const std::vector<ObjectProperty>& properties,
                                 const Value& value) {
    const QString title = qt::ToQString(properties.front().name);
    design_.Restructure(title, [&] {
        std::vector<const forms::Block*> selected;
        for (const LiveControl* control : design_.Selected()) {
            selected.push_back(&control->Block());
        }
        Apply(properties, value);
        design_.View().Save();  // writes the changes to live controls
        std::vector<Text> names;
        names.reserve(selected.size());
        for (const forms::Block* block : selected) {
            names.push_back(forms::NameInCode(*block));
        }
        return names;
    });
}

void PropertyList::Assign(std::size_t row, const Value& value) {
    const std::vector<ObjectProperty> properties =
        rows_.at(row).properties;  // a copy: the rows change
    const bool inBlocks = std::ranges::any_of(properties, [](const ObjectProperty& property) {
        return property.place == PropertyPlace::Block;
    });
    if (inBlocks) {
        ApplyToBlocks(properties, value);
    } else {
        design_.Edit(qt::ToQString(properties.front().name), [&] { Apply(properties, value); });
    }
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
