#include "apps/lumenform/design/properties/plain_properties.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/change_units.h"
#include "apps/lumenform/design/properties/container_properties.h"
#include "apps/lumenform/design/properties/lists/list_properties.h"
#include "apps/lumenform/design/properties/pictures/picture_property.h"
#include "apps/lumenform/design/properties/property_groups.h"
#include "apps/lumenform/design/properties/stored_property.h"
#include "apps/lumenform/design/properties/usual_properties.h"
#include "apps/lumenform/form_view/likeness/saved_pages.h"
#include "apps/lumenform/form_view/plain_kinds.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/controls.h"
#include "frame/numbers.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Returns the names of the properties and groups of the block, without names that begin with an
// underscore, which are for designers.
std::vector<Text> NamesIn(const forms::Block& block) {
    std::vector<Text> names;
    for (const forms::Block::Item& item : block.Items()) {
        if (const auto* property = std::get_if<std::unique_ptr<forms::Property>>(&item)) {
            names.push_back((*property)->Name());
        } else if (const auto* inner = std::get_if<std::unique_ptr<forms::Block>>(&item);
                   inner != nullptr && (*inner)->Kind() == forms::BlockKind::Group) {
            names.push_back((*inner)->Name());
        }
    }
    std::erase_if(names, [](const Text& name) { return name.starts_with(u'_'); });
    return names;
}

Value Otherwise(const UsualProperty& usual) {
    return std::visit(
        []<typename T>(const T& held) -> Value {
            if constexpr (std::same_as<T, std::monostate>) {
                return Empty();
            } else if constexpr (std::same_as<T, TextView>) {
                return Text(held);
            } else {
                return held;
            }
        },
        usual.otherwise);
}

// The colours of the class and the font of the container.
struct Inherited {
    WidgetColors colors;
    std::shared_ptr<qt::Font> font;

    Value For(const UsualProperty& usual) const {
        if (usual.name == u"BackColor") {
            return FromColor(colors.back);
        }
        if (usual.name == u"ForeColor") {
            return FromColor(colors.fore);
        }
        return usual.type == StoredType::Font ? ObjectRef(font) : Otherwise(usual);
    }
};

ObjectProperty MakeUsualProperty(FormDesign& design, forms::Block& block,
                                 const UsualProperty& usual, const Inherited& inherited) {
    if (usual.type == StoredType::Picture) {
        return PictureProperty(design, block, usual.name, usual.help);
    }
    return MakeProperty(design, block,
                        {.name = Text(usual.name),
                         .help = usual.help,
                         .type = usual.type,
                         .otherwise = inherited.For(usual),
                         .choices = ChoicesOf(usual.labels),
                         .isRequired = usual.type == StoredType::Number});
}

ObjectProperty Unchangeable(Text name, Text shown) {
    return {.name = std::move(name),
            .get = [shown = std::move(shown)]() -> Value { return shown; }};
}

bool NamesColor(TextView name) {
    return name.ends_with(u"Color");
}

// Returns the type of an unknown property, which follows from its value and name.
StoredType TypeOf(const forms::Property& property) {
    const forms::Literal& literal = property.Literal();
    if (std::holds_alternative<bool>(literal)) {
        return StoredType::Truth;
    }
    if (NamesColor(property.Name())) {
        return StoredType::Color;
    }
    const bool isText = std::holds_alternative<Text>(literal) ||
                        std::holds_alternative<forms::CompanionText>(literal) ||
                        std::holds_alternative<forms::Reference>(literal);
    return isText ? StoredType::LongText : StoredType::Number;
}

ObjectProperty UnknownProperty(FormDesign& design, forms::Block& block,
                               const forms::Property& property) {
    const forms::Literal& literal = property.Literal();
    const auto* reference = std::get_if<forms::Reference>(&literal);
    if (HoldsPicture(design.Document(), property)) {
        return PictureProperty(design, block, property.Name());
    }
    if (reference != nullptr && !reference->marked) {
        return Unchangeable(property.Name(), CompanionText());
    }
    if (std::holds_alternative<forms::Shortcut>(literal) ||
        std::holds_alternative<forms::Guid>(literal) ||
        std::holds_alternative<forms::UnreadValue>(literal)) {
        return Unchangeable(property.Name(), forms::SourceOf(literal));
    }
    return MakeProperty(
        design, block,
        {.name = property.Name(),
         .type = TypeOf(property),
         .isRequired = GroupOf(property.Name(), PropertyKind::Text) == PropertyGroup::Position});
}

ObjectProperty StatedProperty(FormDesign& design, forms::Block& block, TextView name,
                              const Inherited& inherited) {
    if (const UsualProperty* known = FindCommonProperty(name)) {
        return MakeUsualProperty(design, block, *known, inherited);
    }
    if (const forms::Property* property = block.FindProperty(name)) {
        return UnknownProperty(design, block, *property);
    }
    return Unchangeable(Text(name),
                        qt::ToText(QCoreApplication::translate("properties", "(group)")));
}

std::vector<ObjectProperty> PropertiesIn(FormDesign& design, forms::Block& block,
                                         const Inherited& inherited) {
    std::vector<ObjectProperty> properties;
    std::set<Text> names;  // in lower case
    for (const UsualProperty& usual : UsualPropertiesOf(block.ClassName())) {
        if (names.insert(LCase(usual.name)).second) {
            properties.push_back(MakeUsualProperty(design, block, usual, inherited));
        }
    }
    for (ObjectProperty& property : ListProperties(design, block)) {
        names.insert(LCase(property.name));
        properties.push_back(std::move(property));
    }
    for (const Text& name : NamesIn(block)) {
        if (names.insert(LCase(name)).second) {
            properties.push_back(StatedProperty(design, block, name, inherited));
        }
    }
    return properties;
}

// Scales a form's ScaleWidth or ScaleHeight with the client area: the units keep their size.
void StretchScale(const FormDesign& design, TextView client, TextView scale, float former,
                  float now) {
    forms::Block& form = design.Document().Root();
    const BlockReader reader(design.Document(), form);
    if (!reader.Has(scale) || former <= 0) {
        return;
    }
    form.Set(scale, forms::NumberLiteral(reader.Number(scale, former) * now / former), client);
}

void LetScaleFollow(ObjectProperty& property, FormDesign& design) {
    const TextView scale = property.name == u"ClientWidth"    ? TextView(u"ScaleWidth")
                           : property.name == u"ClientHeight" ? TextView(u"ScaleHeight")
                                                              : TextView();
    if (scale.empty()) {
        return;
    }
    property.set = [&design, scale, client = property.name, get = property.get,
                    set = property.set](const Value& value) {
        const Value former = get();
        set(value);
        if (!std::holds_alternative<Empty>(former)) {
            StretchScale(design, client, scale, ToSingle(former), ToSingle(value));
        }
    };
}

// Lets the lines in a container keep their places when its units change.
void LetLinesFollow(std::vector<ObjectProperty>& properties, FormDesign& design,
                    forms::Block& container, QSizeF room) {
    for (ObjectProperty& property : properties) {
        if (property.name == u"ScaleMode" && property.set) {
            property.set = [&design, &container, room, set = property.set](const Value& value) {
                ChangeUnits(design.Document(), container, room, [&] { set(value); });
            };
            property.reset = [&design, &container, room, reset = property.reset] {
                ChangeUnits(design.Document(), container, room, reset);
            };
        }
    }
}

Inherited InheritedBy(const FormDesign& design, const LiveControl& control) {
    return {PlainKindOf(control.Block()).usual,
            InsideOf(design, ContainerOf(design, control)).font};
}

bool IsOfClass(const LiveControl& control, TextView className) {
    return SameText(control.Block().ClassName(), className, Compare::IgnoreCase);
}

// Refuses a current page that the tabbed box does not have.
void RefuseMissingPages(std::vector<ObjectProperty>& properties, const forms::Block& box) {
    for (ObjectProperty& property : properties) {
        if (property.name == u"Tab" && property.set) {
            property.set = [&box, set = property.set](const Value& value) {
                const std::int32_t last = SavedPages(box).Count() - 1;
                const std::int32_t page = ToLong(value);
                if (page < 0 || page > last) {
                    throw RuntimeError(static_cast<std::int32_t>(ErrorNumber::InvalidPropertyValue),
                                       qt::ToText(QCoreApplication::translate(
                                                      "properties", "The pages are 0 to %1.")
                                                      .arg(last)));
                }
                set(value);
            };
        }
    }
}

// Shows the ends of a line on a hidden page of a tabbed box as if the page was shown: the file has
// them further to the left.
void ShowOnPage(std::vector<ObjectProperty>& properties, const LiveControl& line) {
    const float moved = line.Units().across.LengthFromTwips(line.Offset());
    for (ObjectProperty& property : properties) {
        if (property.name != u"X1" && property.name != u"X2") {
            continue;
        }
        property.get = [moved, get = property.get]() -> Value {
            const Value stored = get();
            return std::holds_alternative<Empty>(stored) ? stored : ToSingle(stored) + moved;
        };
        property.set = [moved, set = property.set](const Value& value) {
            set(ToSingle(value) - moved);
        };
    }
}

// Returns the names of the properties that a container adds to a control. The built-in classes have
// most of them anyway.
std::vector<Text> AddedNames(const LiveControl& control) {
    const bool isHosted = control.Hosted() != nullptr;
    const PlainKind& kind = PlainKindOf(control.Block());
    const bool isDrawn = IsOfClass(control, u"VB.Line") || IsOfClass(control, u"VB.Shape");
    std::vector<Text> names;
    if (isHosted || (kind.isSeen && !isDrawn)) {
        names.emplace_back(u"WhatsThisHelpID");
    }
    if (isHosted ||
        (kind.isSeen && kind.tab != TabRole::None && !IsOfClass(control, u"VB.Label"))) {
        names.emplace_back(u"HelpContextID");
    }
    const bool isBuiltIn =
        SameText(control.Block().ClassName().substr(0, 3), u"VB.", Compare::IgnoreCase);
    if (isHosted || (kind.isSeen && !isBuiltIn)) {
        names.insert(names.end(), {u"CausesValidation", u"DragMode", u"ToolTipText"});
    }
    return names;
}

// Only picture boxes have units of their own.
bool HasUnits(const LiveControl& control) {
    return control.IsContainer() && &control.Inside().widget != &control.Widget();
}

}  // namespace

std::vector<ObjectProperty> PlainProperties(FormDesign& design, LiveControl& control) {
    std::vector<ObjectProperty> properties =
        PropertiesIn(design, control.Block(), InheritedBy(design, control));
    std::erase_if(properties,
                  [](const ObjectProperty& property) { return IsContainers(property.name); });
    if (HasUnits(control)) {
        LetLinesFollow(properties, design, control.Block(), control.Inside().room);
    }
    if (HasPages(control.Block())) {
        RefuseMissingPages(properties, control.Block());
    }
    if (HasEnds(control.Block()) && control.Offset() != 0) {
        ShowOnPage(properties, control);
    }
    return properties;
}

std::vector<ObjectProperty> OtherProperties(FormDesign& design, LiveControl& control,
                                            std::set<Text> known) {
    forms::Block& block = control.Block();
    const Inherited inherited = InheritedBy(design, control);
    std::vector<Text> names = NamesIn(block);
    std::ranges::copy(AddedNames(control), std::back_inserter(names));
    std::vector<ObjectProperty> properties;
    for (const Text& name : names) {
        if (!IsContainers(name) && known.insert(LCase(name)).second) {
            properties.push_back(StatedProperty(design, block, name, inherited));
        }
    }
    return properties;
}

std::vector<ObjectProperty> BlockProperties(FormDesign& design, forms::Block& block) {
    const WidgetColors usual = {Color::ButtonText, Color::ButtonFace};
    return PropertiesIn(design, block, {usual, MakeFont(forms::FontDescription())});
}

std::vector<ObjectProperty> FormProperties(FormDesign& design) {
    forms::Block& form = design.Document().Root();
    const bool isDesktop = SameText(form.ClassName(), u"VB.MDIForm", Compare::IgnoreCase);
    constexpr Color applicationWorkspace{0x8000000C};
    const WidgetColors usual = {Color::ButtonText,
                                isDesktop ? applicationWorkspace : Color::ButtonFace};
    std::vector<ObjectProperty> properties =
        PropertiesIn(design, form, {usual, MakeFont(forms::FontDescription())});
    for (ObjectProperty& property : properties) {
        LetScaleFollow(property, design);
    }
    LetLinesFollow(properties, design, form, design.View().Inside().room);
    properties.push_back(NameProperty(design, form));
    return properties;
}

}  // namespace lumenkit::lumenform
