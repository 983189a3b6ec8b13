#include "apps/lumenform/design/properties/menu_properties.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "apps/lumenform/design/model/menu_rules.h"
#include "apps/lumenform/design/model/menu_shortcuts.h"
#include "apps/lumenform/design/properties/container_properties.h"
#include "apps/lumenform/design/properties/plain_properties.h"
#include "apps/lumenform/design/properties/stored_property.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Returns the offered spelling of a shortcut, or else the text itself.
Text OfferedSpelling(TextView written) {
    const MenuShortcut* const offered = FindShortcut(written);
    return offered == nullptr ? Text(written) : offered->written;
}

Text PresentShortcut(const FormDesign& design, forms::Block& menu) {
    return OfferedSpelling(BlockReader(design.Document(), menu).String(u"Shortcut"));
}

// Finds a choice by the shortcut that is written in the form, or as it is shown.
const Choice& ChosenShortcut(const std::vector<Choice>& choices, TextView text) {
    const auto found = std::ranges::find_if(choices, [&](const Choice& choice) {
        return SameText(choice.label, text, Compare::IgnoreCase) ||
               SameText(ToText(choice.value), text, Compare::IgnoreCase);
    });
    if (found == choices.end()) {
        throw RuntimeError(
            static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
            qt::ToText(QCoreApplication::translate("menus", "\"%1\" is no shortcut key of a menu")
                           .arg(qt::ToQString(text))));
    }
    return *found;
}

ObjectProperty ShortcutProperty(FormDesign& design, forms::Block& menu) {
    ObjectProperty shortcut{
        .name = u"Shortcut",
        .help = HelpText(
            QT_TRANSLATE_NOOP("help", "The key that chooses the menu from anywhere in the form.")),
        .kind = PropertyKind::Choice,
        .choices = ShortcutChoices(PresentShortcut(design, menu)),
        .get = [&design, &menu]() -> Value { return PresentShortcut(design, menu); },
        .isChanged = [&menu] { return menu.FindProperty(u"Shortcut") != nullptr; },
        .reset = [&menu] { menu.Remove(u"Shortcut"); }};
    shortcut.set = [&menu, choices = shortcut.choices](const Value& value) {
        StoreShortcut(menu, ToText(ChosenShortcut(choices, Trim(ToText(value))).value));
    };
    return shortcut;
}

ObjectProperty MenuIndexProperty(FormDesign& design, forms::Block& menu) {
    ObjectProperty index = MakeProperty(
        design, menu,
        {.name = u"Index",
         .help = QT_TRANSLATE_NOOP(
             "help", "The number of the menu in its control array. Empty if it is in no array."),
         .type = StoredType::Whole});
    index.isIndividual = true;
    index.set = [set = index.set, reset = index.reset](const Value& value) {
        if (Trim(ToText(value)).empty()) {
            reset();
        } else {
            set(value);
        }
    };
    return index;
}

// Makes assignments that break a rule fail.
void ObeyRules(ObjectProperty& property, FormDesign& design) {
    if (property.set) {
        property.set = [&design, set = property.set](const Value& value) {
            ChangeMenus(design.Document(), [&] { set(value); });
        };
    }
    if (property.reset) {
        property.reset = [&design, reset = property.reset] {
            ChangeMenus(design.Document(), reset);
        };
    }
}

bool IsOwn(TextView name) {
    return SameText(name, u"Index", Compare::IgnoreCase) ||
           SameText(name, u"Shortcut", Compare::IgnoreCase);
}

}  // namespace

std::vector<Choice> ShortcutChoices(TextView present) {
    std::vector<Choice> choices = {
        {qt::ToText(QCoreApplication::translate("menus", "(None)")), Text()}};
    for (const MenuShortcut& shortcut : MenuShortcuts()) {
        choices.push_back({shortcut.shown, shortcut.written});
    }
    if (!present.empty() && FindShortcut(present) == nullptr) {
        choices.push_back({Text(present), Text(present)});
    }
    return choices;
}

std::vector<ObjectProperty> MenuProperties(FormDesign& design, forms::Block& menu) {
    std::vector<ObjectProperty> properties = BlockProperties(design, menu);
    std::erase_if(properties, [](const ObjectProperty& property) { return IsOwn(property.name); });
    properties.push_back(NameProperty(design, menu));
    properties.push_back(MenuIndexProperty(design, menu));
    properties.push_back(ShortcutProperty(design, menu));
    for (ObjectProperty& property : properties) {
        ObeyRules(property, design);
    }
    return properties;
}

}  // namespace lumenkit::lumenform
