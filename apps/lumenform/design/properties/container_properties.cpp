#include "apps/lumenform/design/properties/container_properties.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "apps/lumenform/design/model/renaming.h"
#include "apps/lumenform/design/model/tab_order.h"
#include "apps/lumenform/design/properties/stored_property.h"
#include "apps/lumenform/form_view/plain_kinds.h"
#include "apps/lumenform/form_view/saved_place.h"

namespace lumenkit::lumenform {

namespace {

constexpr std::array<TextView, 9> containerProperties = {
    u"Height", u"Index", u"Left", u"TabIndex", u"TabStop", u"Tag", u"Top", u"Visible", u"Width"};

constexpr const char* nameHelp =
    QT_TRANSLATE_NOOP("help", "Returns the name used in code to identify an object.");
constexpr const char* indexHelp = QT_TRANSLATE_NOOP(
    "help", "The number of the control in its control array. Empty if it is in no array.");
constexpr const char* tabIndexHelp =
    QT_TRANSLATE_NOOP("help", "The position of the control in the tab order, from 0.");
constexpr const char* tabStopHelp =
    QT_TRANSLATE_NOOP("help", "Determines whether Tab stops at the control.");
constexpr const char* tagHelp = QT_TRANSLATE_NOOP("help", "A text for the use of the program.");
constexpr const char* visibleHelp =
    QT_TRANSLATE_NOOP("help", "Determines whether the control is visible when the form runs.");

ObjectProperty IndexProperty(FormDesign& design, forms::Block& block) {
    return {
        .name = u"Index",
        .help = HelpText(indexHelp),
        .kind = PropertyKind::Number,
        .isIndividual = true,
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

ObjectProperty TabIndexProperty(FormDesign& design, forms::Block& block) {
    return {.name = u"TabIndex",
            .help = HelpText(tabIndexHelp),
            .kind = PropertyKind::Number,
            .isIndividual = true,
            .get =
                [&design, &block] {
                    return BagOf(design.Document(), block).ReadProperty(u"TabIndex", Empty());
                },
            .set = [&design, &block](
                       const Value& value) { GiveTurn(design.Document(), block, ToLong(value)); }};
}

ObjectProperty PlaceProperty(FormDesign& design, LiveControl& control, TextView name,
                             const char* help, float host::Placement::*member) {
    return {.name = Text(name),
            .help = HelpText(help),
            .kind = PropertyKind::Number,
            .place = PropertyPlace::Live,
            .get = [&design, &control, name, member]() -> Value {
                const float place = control.Place().*member;
                const BlockReader reader(design.Document(), control.Block());
                const float moved = name == u"Left" ? control.Offset() : 0;
                return control.IsFitted() ? place : reader.Number(name, place - moved) + moved;
            },
            .set =
                [&control, member](const Value& value) {
                    host::Placement place = control.Place();
                    place.*member = ToSingle(value);
                    control.Move(place);
                }};
}

bool IsSeen(const LiveControl& control) {
    return control.Hosted() != nullptr || PlainKindOf(control.Block()).isSeen;
}

// Controls of this library and of unknown classes are tab stops.
TabRole TabRoleOf(const LiveControl& control) {
    return IsSeen(control) ? PlainKindOf(control.Block()).tab : TabRole::None;
}

std::vector<ObjectProperty> PlaceProperties(FormDesign& design, LiveControl& control) {
    using host::Placement;
    std::vector<ObjectProperty> properties = {
        PlaceProperty(
            design, control, u"Left",
            QT_TRANSLATE_NOOP("help",
                              "The distance from the left edge of the container to the control."),
            &Placement::left),
        PlaceProperty(
            design, control, u"Top",
            QT_TRANSLATE_NOOP("help",
                              "The distance from the upper edge of the container to the control."),
            &Placement::top)};
    if (IsSeen(control)) {
        properties.push_back(PlaceProperty(design, control, u"Width",
                                           QT_TRANSLATE_NOOP("help", "The width of the control."),
                                           &Placement::width));
        properties.push_back(PlaceProperty(design, control, u"Height",
                                           QT_TRANSLATE_NOOP("help", "The height of the control."),
                                           &Placement::height));
    }
    return properties;
}

}  // namespace

bool IsContainers(TextView name) {
    return std::ranges::any_of(containerProperties, [&](TextView containers) {
        return SameText(containers, name, Compare::IgnoreCase);
    });
}

ObjectProperty NameProperty(FormDesign& design, forms::Block& block) {
    return {.name = u"(Name)",
            .help = HelpText(nameHelp),
            .isIndividual = true,
            .get = [&block]() -> Value { return block.Name(); },
            .set =
                [&design, &block](const Value& value) {
                    RenameIn(design.Document(), block, Trim(ToText(value)));
                }};
}

std::vector<ObjectProperty> ContainerProperties(FormDesign& design, LiveControl& control) {
    forms::Block& block = control.Block();
    std::vector<ObjectProperty> properties = {
        NameProperty(design, block), IndexProperty(design, block),
        MakeProperty(design, block, {u"Tag", tagHelp, StoredType::LongText, Text()})};
    if (!HasEnds(block)) {
        std::ranges::move(PlaceProperties(design, control), std::back_inserter(properties));
    }
    if (IsSeen(control)) {
        properties.push_back(
            MakeProperty(design, block, {u"Visible", visibleHelp, StoredType::Truth, true}));
    }
    if (TabRoleOf(control) != TabRole::None) {
        properties.push_back(TabIndexProperty(design, block));
    }
    if (TabRoleOf(control) == TabRole::Stop) {
        properties.push_back(
            MakeProperty(design, block, {u"TabStop", tabStopHelp, StoredType::Truth, true}));
    }
    return properties;
}

}  // namespace lumenkit::lumenform
