#include "apps/lumenform/design/properties/library_properties.h"

#include <algorithm>
#include <array>

#include "apps/lumenform/design/properties/property_choices.h"
#include "forms/font_description.h"
#include "frame/numbers.h"
#include "runtime/qt/font.h"

namespace lumenkit::lumenform {

namespace {

bool IsShown(const Member& member) {
    return member.kind == MemberKind::Property && member.read != nullptr &&
           member.parameters.empty() && !member.flags.hiddenFromBrowser;
}

PropertyKind KindOfText(TextView name) {
    constexpr std::array<TextView, 2> longTexts = {u"Caption", u"Text"};
    if (name == u"Contents") {
        return PropertyKind::Items;
    }
    return std::ranges::find(longTexts, name) == longTexts.end() ? PropertyKind::Text
                                                                 : PropertyKind::LongText;
}

PropertyKind KindOf(const Member& member, TextView className) {
    if (!LibraryLabels(className, member.name).empty()) {
        return PropertyKind::Choice;
    }
    switch (member.type) {
        case ValueType::String:
            return KindOfText(member.name);
        case ValueType::Boolean:
        case ValueType::MousePointer:
        case ValueType::ScrollBars:
            return PropertyKind::Choice;
        case ValueType::Color:
            return PropertyKind::Color;
        case ValueType::Font:
            return PropertyKind::Font;
        case ValueType::Integer:
        case ValueType::Long:
        case ValueType::Single:
            return PropertyKind::Number;
        case ValueType::None:
        case ValueType::Variant:
            break;
    }
    return PropertyKind::Text;
}

std::vector<Choice> MemberChoices(const Member& member, TextView className,
                                  const EnumerationLibrary* enumerations) {
    if (member.type == ValueType::Boolean) {
        return TruthChoices();
    }
    if (const ChoiceLabels labels = LibraryLabels(className, member.name); !labels.empty()) {
        return ChoicesOf(labels);
    }
    const EnumerationTable* table =
        enumerations == nullptr ? nullptr : enumerations->Find(member.type);
    std::vector<Choice> choices;
    if (table != nullptr) {
        for (const EnumerationMember& named : table->members) {
            choices.push_back({Decimal(named.value) + u" - " + Text(named.name), named.value});
        }
    }
    return choices;
}

// Fonts are shared objects, so each control gets a copy.
Value OwnFont(const Value& value) {
    const auto* object = std::get_if<ObjectRef>(&value);
    return object == nullptr ? value : ObjectRef(qt::Font::From(host::ToFont(value))->Clone());
}

// What the properties of a control are reset to.
struct Defaults {
    LibraryDefaults& ofClass;
    std::shared_ptr<qt::Font> containerFont;
};

bool IsSameFont(const Value& value, const host::Font& font) {
    const host::FontRef held = host::ToFont(value);
    return held != nullptr && forms::Describe(*held) == forms::Describe(font);
}

void AddFontDefault(ObjectProperty& property, const std::shared_ptr<qt::Font>& font) {
    property.isChanged = [get = property.get, font] { return !IsSameFont(get(), *font); };
    property.reset = [set = property.set, font] { set(ObjectRef(font)); };
}

void AddDefault(ObjectProperty& property, qt::HostedControl& control, const Defaults& defaults) {
    if (!property.set) {
        return;
    }
    if (property.kind == PropertyKind::Font) {
        AddFontDefault(property, defaults.containerFont);
    } else if (const auto value = defaults.ofClass.Find(control, property.name)) {
        property.isChanged = [get = property.get, value = *value] {
            return !SameValue(get(), value);
        };
        property.reset = [set = property.set, value = *value] { set(value); };
    }
}

}  // namespace

std::vector<ObjectProperty> LibraryProperties(qt::HostedControl& control,
                                              const EnumerationLibrary* enumerations,
                                              LibraryDefaults& defaults,
                                              const std::shared_ptr<qt::Font>& containerFont) {
    const ClassDescriptor& type = control.Type();
    std::vector<ObjectProperty> properties;
    for (const Member& member : type.interfaceTable->members) {
        if (!IsShown(member)) {
            continue;
        }
        const std::int32_t identifier = member.identifier;
        ObjectProperty property{
            .name = Text(member.name),
            .help = Text(member.help),
            .kind = KindOf(member, type.name),
            .choices = MemberChoices(member, type.name, enumerations),
            .place = PropertyPlace::Live,
            .isOnPage =
                std::ranges::find(type.pageProperties, member.name) != type.pageProperties.end(),
            .get = [&control, identifier] { return control.Automation().Get(identifier); }};
        if (member.assign != nullptr) {
            property.set = [&control, identifier](const Value& value) {
                control.Automation().Let(identifier, OwnFont(value));
            };
        }
        AddDefault(property, control, {defaults, containerFont});
        properties.push_back(std::move(property));
    }
    return properties;
}

}  // namespace lumenkit::lumenform
