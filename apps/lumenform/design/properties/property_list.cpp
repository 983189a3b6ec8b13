#include "apps/lumenform/design/properties/property_list.h"

#include <algorithm>
#include <utility>

#include "apps/lumenform/design/properties/block_settings.h"
#include "apps/lumenform/design/properties/color_text.h"
#include "apps/lumenform/design/properties/font_text.h"
#include "apps/lumenform/design/properties/own_settings.h"
#include "forms/controls.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

std::vector<Setting> SettingsOf(Design& design, LiveControl& control) {
    std::vector<Setting> settings =
        control.Hosted() != nullptr
            ? OwnSettings(*control.Hosted(), design.Context().classes.enumerations)
            : PlainSettings(design, control);
    for (Setting& setting : ContainerSettings(design, control)) {
        settings.push_back(std::move(setting));
    }
    return settings;
}

bool IsSameProperty(const Setting& one, const Setting& other) {
    return one.kind == other.kind && SameText(one.name, other.name, Compare::IgnoreCase) &&
           one.choices == other.choices;
}

// Returns the settings of this property in all lists; fewer than lists if one lacks it.
std::vector<Setting> Gather(const Setting& sought, const std::vector<std::vector<Setting>>& lists) {
    std::vector<Setting> found;
    for (const std::vector<Setting>& list : lists) {
        const auto match = std::ranges::find_if(
            list, [&](const Setting& setting) { return IsSameProperty(sought, setting); });
        if (match != list.end()) {
            found.push_back(*match);
        }
    }
    return found;
}

void ReadValue(PropertyRow& row) {
    try {
        row.value = row.settings.front().get();
        for (const Setting& setting : row.settings) {
            if (!SameValue(*row.value, setting.get())) {
                row.value.reset();
                return;
            }
        }
    } catch (const RuntimeError&) {  // the value in the companion file is no text
        row.kind = SettingKind::Text;
        row.canSet = false;
        row.value = Text(u"(companion)");
    }
}

PropertyRow RowOf(std::vector<Setting> settings) {
    const Setting& first = settings.front();
    PropertyRow row{.name = first.name,
                    .help = first.help,
                    .kind = first.kind,
                    .choices = first.choices,
                    .canSet = std::ranges::all_of(
                        settings, [](const Setting& setting) { return setting.set != nullptr; }),
                    .isOnPage = std::ranges::all_of(settings, &Setting::isOnPage),
                    .value = {},
                    .settings = std::move(settings)};
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
        case SettingKind::Choice:
            return LabelOf(row.choices, value);
        case SettingKind::Color:
            return ColorText(ToColor(value));
        case SettingKind::Font:
            return FontText(host::ToFont(value).get());
        case SettingKind::Text:
        case SettingKind::LongText:
        case SettingKind::Items:
        case SettingKind::Number:
            break;
    }
    return ToText(value);
}

}  // namespace

PropertyList::PropertyList(Design& design, ControlMessages& messages)
    : design_(design), messages_(messages), rows_(Read()) {}

std::vector<std::vector<Setting>> PropertyList::SettingsOfSelection() const {
    std::vector<std::vector<Setting>> lists;
    for (LiveControl* control : design_.Selected()) {
        lists.push_back(SettingsOf(design_, *control));
    }
    if (lists.empty()) {
        lists.push_back(FormSettings(design_));
    }
    return lists;
}

std::vector<PropertyRow> PropertyList::Read() const {
    const std::vector<std::vector<Setting>> lists = SettingsOfSelection();
    std::vector<PropertyRow> rows;
    for (const Setting& setting : lists.front()) {
        std::vector<Setting> everywhere = Gather(setting, lists);
        if (everywhere.size() == lists.size() && (lists.size() == 1 || !setting.isOwn)) {
            rows.push_back(RowOf(std::move(everywhere)));
        }
    }
    std::ranges::stable_sort(rows, {}, [](const PropertyRow& row) { return LCase(row.name); });
    return rows;
}

void PropertyList::Apply(const std::vector<Setting>& settings, const Value& value) {
    const ControlMessages::Listener listener(messages_);
    for (const Setting& setting : settings) {
        setting.set(value);
        if (!listener.Heard().empty()) {
            throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                               listener.Heard().front());
        }
    }
}

// Blocks remain valid during the change, but their names may change.
void PropertyList::ApplyToBlocks(const std::vector<Setting>& settings, const Value& value) {
    const QString title = qt::ToQString(settings.front().name);
    design_.Restructure(title, [&] {
        std::vector<const forms::Block*> selected;
        for (const LiveControl* control : design_.Selected()) {
            selected.push_back(&control->Block());
        }
        Apply(settings, value);
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
    const std::vector<Setting> settings = rows_.at(row).settings;  // a copy: the rows change
    const bool inBlocks = std::ranges::any_of(
        settings, [](const Setting& setting) { return setting.place == SettingPlace::Block; });
    if (inBlocks) {
        ApplyToBlocks(settings, value);
    } else {
        design_.Edit(qt::ToQString(settings.front().name), [&] { Apply(settings, value); });
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
