#include "apps/lumenform/design/properties/block_settings.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/tab_order.h"
#include "apps/lumenform/design/properties/names.h"
#include "apps/lumenform/design/properties/usual_properties.h"
#include "apps/lumenform/form_view/plain_kinds.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/controls.h"
#include "frame/runtime_error.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::array<TextView, 9> containerProperties = {
    u"Height", u"Index", u"Left", u"TabIndex", u"TabStop", u"Tag", u"Top", u"Visible", u"Width"};

constexpr TextView nameHelp = u"Returns the name used in code to identify an object.";
constexpr TextView indexHelp = u"The control's number in a control array; empty: it is in none.";
constexpr TextView tabIndexHelp = u"The control's turn when Tab is pressed, from 0.";
constexpr TextView tabStopHelp = u"Whether Tab stops at the control.";
constexpr TextView tagHelp = u"A text for the program's own use.";
constexpr TextView visibleHelp = u"Whether the control is seen when the form runs.";

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

// Returns the property after which a new one is inserted. Designers keep properties in alphabetical
// order. In blocks of components, the properties of the container come first and end at the
// extents.
Text Predecessor(const forms::Block& block, TextView name) {
    Text found;
    const Text sought = LCase(name);
    for (const forms::Block::Item& item : block.Items()) {
        const auto* property = std::get_if<std::unique_ptr<forms::Property>>(&item);
        const auto* inner = std::get_if<std::unique_ptr<forms::Block>>(&item);
        if (property == nullptr && inner == nullptr) {
            continue;
        }
        const Text& present = property != nullptr ? (*property)->Name() : (*inner)->Name();
        if (present.starts_with(u'_')) {
            break;
        }
        if (LCase(present) < sought &&
            (inner == nullptr || (*inner)->Kind() == forms::BlockKind::Group)) {
            found = present;
        }
    }
    return found;
}

void Write(Design& design, forms::Block& block, TextView name, const Value& value,
           const Value& otherwise) {
    forms::FormBag bag = BagOf(design.Document(), block);
    bag.Keep(Predecessor(block, name));
    bag.WriteProperty(name, value, otherwise);
}

// A property of the block, its type and its default.
struct BlockSetting {
    Text name;
    TextView help;
    SettingKind kind;
    Value otherwise;
    Value (*convert)(const Value&);
};

Value AsText(const Value& value) {
    return ToText(value);
}
Value AsTruth(const Value& value) {
    return ToBoolean(value);
}
Value AsWhole(const Value& value) {
    return ToLong(value);
}
Value AsNumber(const Value& value) {
    return ToDouble(value);
}
Value AsColor(const Value& value) {
    return FromColor(ToColor(value));
}
Value AsFont(const Value& value) {
    return ObjectRef(host::ToFont(value));
}

Setting MakeSetting(Design& design, forms::Block& block, const BlockSetting& what) {
    Setting setting{.name = what.name, .help = Text(what.help), .kind = what.kind};
    if (what.convert == &AsTruth) {
        setting.choices = TruthChoices();
    }
    setting.get = [&design, &block, what] {
        const Value value = BagOf(design.Document(), block).ReadProperty(what.name, what.otherwise);
        return std::holds_alternative<Empty>(value) ? value : what.convert(value);
    };
    setting.set = [&design, &block, what](const Value& value) {
        Write(design, block, what.name, what.convert(value), what.otherwise);
    };
    return setting;
}

// ---- Settings from the container

Setting NameSetting(Design& design, forms::Block& block) {
    return {.name = u"(Name)",
            .help = Text(nameHelp),
            .isOwn = true,
            .get = [&block]() -> Value { return block.Name(); },
            .set =
                [&design, &block](const Value& value) {
                    RenameIn(design.Document(), block, Trim(ToText(value)));
                }};
}

Setting IndexSetting(Design& design, forms::Block& block) {
    return {
        .name = u"Index",
        .help = Text(indexHelp),
        .kind = SettingKind::Number,
        .isOwn = true,
        .get = [&design,
                &block] { return BagOf(design.Document(), block).ReadProperty(u"Index", Empty()); },
        .set =
            [&design, &block](const Value& value) {
                std::optional<std::int32_t> index;
                if (!Trim(ToText(value)).empty()) {
                    index = ToLong(value);
                }
                SetIndexIn(design.Document().Root(), block, index);
            }};
}

Setting TabIndexSetting(Design& design, forms::Block& block) {
    return {.name = u"TabIndex",
            .help = Text(tabIndexHelp),
            .kind = SettingKind::Number,
            .isOwn = true,
            .get =
                [&design, &block] {
                    return BagOf(design.Document(), block).ReadProperty(u"TabIndex", Empty());
                },
            .set = [&design, &block](
                       const Value& value) { GiveTurn(design.Document(), block, ToLong(value)); }};
}

Setting PlaceSetting(Design& design, LiveControl& control, TextView name, TextView help,
                     float host::Placement::*member) {
    return {.name = Text(name),
            .help = Text(help),
            .kind = SettingKind::Number,
            .place = SettingPlace::Live,
            .get = [&design, &control, name, member]() -> Value {
                const BlockReader reader(design.Document(), control.Block());
                const host::Placement place = control.Units().FromTwips(control.Place());
                return reader.Number(name, place.*member);
            },
            .set =
                [&control, member](const Value& value) {
                    host::Placement units = control.Units().FromTwips(control.Place());
                    units.*member = ToSingle(value);
                    host::Placement place = control.Place();
                    place.*member = control.Units().ToTwips(units).*member;
                    control.Move(place);
                }};
}

// ---- Settings in blocks

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
    Colors colors;
    std::shared_ptr<qt::Font> font;

    Value For(const UsualProperty& usual) const {
        if (usual.name == u"BackColor") {
            return FromColor(colors.back);
        }
        if (usual.name == u"ForeColor") {
            return FromColor(colors.fore);
        }
        return usual.kind == SettingKind::Font ? ObjectRef(font) : Otherwise(usual);
    }
};

std::vector<Choice> ChoicesOf(const UsualProperty& usual) {
    std::vector<Choice> choices;
    for (const TextView label : usual.choices) {
        choices.push_back({Text(label), static_cast<std::int32_t>(choices.size())});
    }
    return choices;
}

auto ConversionFor(const UsualProperty& usual) {
    switch (usual.kind) {
        case SettingKind::Color:
            return &AsColor;
        case SettingKind::Font:
            return &AsFont;
        case SettingKind::Number:
            return std::holds_alternative<std::int32_t>(usual.otherwise) ? &AsWhole : &AsNumber;
        case SettingKind::Choice:
            return std::holds_alternative<bool>(usual.otherwise) ? &AsTruth : &AsWhole;
        case SettingKind::Text:
        case SettingKind::LongText:
        case SettingKind::Items:
            break;
    }
    return &AsText;
}

Setting UsualSetting(Design& design, forms::Block& block, const UsualProperty& usual,
                     const Inherited& inherited) {
    const BlockSetting what{.name = Text(usual.name),
                            .help = usual.help,
                            .kind = usual.kind,
                            .otherwise = inherited.For(usual),
                            .convert = ConversionFor(usual)};
    Setting setting = MakeSetting(design, block, what);
    if (!usual.choices.empty()) {
        setting.choices = ChoicesOf(usual);
    }
    return setting;
}

Setting Unchangeable(Text name, Text shown) {
    return {.name = std::move(name),
            .get = [shown = std::move(shown)]() -> Value { return shown; }};
}

bool NamesColor(TextView name) {
    return name.ends_with(u"Color");
}

// Makes a setting for an unknown property. The form of its value determines its kind.
Setting UnknownSetting(Design& design, forms::Block& block, const forms::Property& property) {
    const forms::Literal& literal = property.Literal();
    const auto* reference = std::get_if<forms::Reference>(&literal);
    if (reference != nullptr && !reference->marked) {
        return Unchangeable(property.Name(), u"(companion)");
    }
    if (std::holds_alternative<forms::Shortcut>(literal) ||
        std::holds_alternative<forms::Guid>(literal)) {
        return Unchangeable(property.Name(), forms::SourceOf(literal));
    }
    const Text& name = property.Name();
    BlockSetting what{name, {}, SettingKind::LongText, Empty(), &AsText};
    if (std::holds_alternative<bool>(literal)) {
        what.kind = SettingKind::Choice;
        what.convert = &AsTruth;
    } else if (NamesColor(name)) {
        what.kind = SettingKind::Color;
        what.convert = &AsColor;
    } else if (!std::holds_alternative<Text>(literal) &&
               !std::holds_alternative<forms::CompanionText>(literal) && reference == nullptr) {
        what.kind = SettingKind::Number;
        what.convert = &AsNumber;
    }
    return MakeSetting(design, block, what);
}

bool IsIn(std::span<const Setting> settings, TextView name) {
    return std::ranges::any_of(settings, [&](const Setting& setting) {
        return SameText(setting.name, name, Compare::IgnoreCase);
    });
}

bool IsContainers(TextView name) {
    return std::ranges::any_of(containerProperties, [&](TextView containers) {
        return SameText(containers, name, Compare::IgnoreCase);
    });
}

Setting StatedSetting(Design& design, forms::Block& block, TextView name,
                      const Inherited& inherited) {
    if (const UsualProperty* known = FindCommonProperty(name)) {
        return UsualSetting(design, block, *known, inherited);
    }
    if (const forms::Property* property = block.FindProperty(name)) {
        return UnknownSetting(design, block, *property);
    }
    return Unchangeable(Text(name), u"(group)");
}

std::vector<Setting> SettingsIn(Design& design, forms::Block& block, const Inherited& inherited) {
    std::vector<Setting> settings;
    for (const UsualProperty& usual : UsualPropertiesOf(block.ClassName())) {
        settings.push_back(UsualSetting(design, block, usual, inherited));
    }
    for (const Text& name : NamesIn(block)) {
        if (!IsIn(settings, name)) {
            settings.push_back(StatedSetting(design, block, name, inherited));
        }
    }
    return settings;
}

bool IsSeen(const LiveControl& control) {
    return control.Hosted() != nullptr || PlainKindOf(control.Block()).isSeen;
}

// Controls of this library and of unknown classes are tab stops.
TabRole TabRoleOf(const LiveControl& control) {
    return IsSeen(control) ? PlainKindOf(control.Block()).tab : TabRole::None;
}

// Scales a form's ScaleWidth or ScaleHeight with the client area, unless the form has custom units.
void StretchScale(const Design& design, TextView client, TextView scale, float former, float now) {
    forms::Block& form = design.Document().Root();
    const BlockReader reader(design.Document(), form);
    constexpr std::int32_t ownUnits = 0;
    constexpr std::int32_t twips = 1;
    if (!reader.Has(scale) || reader.Whole(u"ScaleMode", twips) == ownUnits || former <= 0) {
        return;
    }
    form.Set(scale, forms::NumberLiteral(reader.Number(scale, former) * now / former), client);
}

void LetScaleFollow(Setting& setting, Design& design) {
    const TextView scale = setting.name == u"ClientWidth"    ? TextView(u"ScaleWidth")
                           : setting.name == u"ClientHeight" ? TextView(u"ScaleHeight")
                                                             : TextView();
    if (scale.empty()) {
        return;
    }
    setting.set = [&design, scale, client = setting.name, get = setting.get,
                   set = setting.set](const Value& value) {
        const Value former = get();
        set(value);
        if (!std::holds_alternative<Empty>(former)) {
            StretchScale(design, client, scale, ToSingle(former), ToSingle(value));
        }
    };
}

std::vector<Setting> PlaceSettings(Design& design, LiveControl& control) {
    using host::Placement;
    std::vector<Setting> settings = {
        PlaceSetting(design, control, u"Left",
                     u"How far from the left edge of what it lies in the control begins.",
                     &Placement::left),
        PlaceSetting(design, control, u"Top",
                     u"How far from the upper edge of what it lies in the control begins.",
                     &Placement::top)};
    if (IsSeen(control)) {
        settings.push_back(PlaceSetting(design, control, u"Width", u"How wide the control is.",
                                        &Placement::width));
        settings.push_back(PlaceSetting(design, control, u"Height", u"How high the control is.",
                                        &Placement::height));
    }
    return settings;
}

}  // namespace

std::vector<Setting> ContainerSettings(Design& design, LiveControl& control) {
    forms::Block& block = control.Block();
    std::vector<Setting> settings = {
        NameSetting(design, block), IndexSetting(design, block),
        MakeSetting(design, block, {u"Tag", tagHelp, SettingKind::LongText, Text(), &AsText})};
    if (!HasEnds(block)) {
        std::ranges::move(PlaceSettings(design, control), std::back_inserter(settings));
    }
    if (IsSeen(control)) {
        settings.push_back(MakeSetting(
            design, block, {u"Visible", visibleHelp, SettingKind::Choice, true, &AsTruth}));
    }
    if (TabRoleOf(control) != TabRole::None) {
        settings.push_back(TabIndexSetting(design, block));
    }
    if (TabRoleOf(control) == TabRole::Stop) {
        settings.push_back(MakeSetting(
            design, block, {u"TabStop", tabStopHelp, SettingKind::Choice, true, &AsTruth}));
    }
    return settings;
}

std::vector<Setting> PlainSettings(Design& design, LiveControl& control) {
    std::vector<Setting> settings = SettingsIn(
        design, control.Block(),
        {PlainKindOf(control.Block()).usual, InsideOf(design, ContainerOf(design, control)).font});
    std::erase_if(settings, [](const Setting& setting) { return IsContainers(setting.name); });
    return settings;
}

std::vector<Setting> FormSettings(Design& design) {
    forms::Block& form = design.Document().Root();
    const bool isDesktop = SameText(form.ClassName(), u"VB.MDIForm", Compare::IgnoreCase);
    constexpr Color applicationWorkspace{0x8000000C};
    const Colors usual = {Color::ButtonText, isDesktop ? applicationWorkspace : Color::ButtonFace};
    std::vector<Setting> settings =
        SettingsIn(design, form, {usual, MakeFont(forms::FontDescription())});
    for (Setting& setting : settings) {
        LetScaleFollow(setting, design);
    }
    settings.push_back(NameSetting(design, form));
    return settings;
}

}  // namespace lumenkit::lumenform
