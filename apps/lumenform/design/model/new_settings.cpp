#include "apps/lumenform/design/model/new_settings.h"

#include <map>
#include <optional>

#include "apps/lumenform/form_view/plain_kinds.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "forms/literal.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

namespace {

using Settings = std::map<Text, forms::Literal>;

void SetPlace(Settings& settings, const host::Placement& place, bool hasSize) {
    settings.emplace(u"Left", forms::NumberLiteral(place.left));
    settings.emplace(u"Top", forms::NumberLiteral(place.top));
    if (hasSize) {
        settings.emplace(u"Height", forms::NumberLiteral(place.height));
        settings.emplace(u"Width", forms::NumberLiteral(place.width));
    }
}

// The line leads from the corner where its drag began to the opposite one.
void SetEnds(Settings& settings, const DrawnPlace& drawn) {
    const host::Placement& place = drawn.place;
    const auto set = [&](TextView first, TextView second, float start, float length, bool fromEnd,
                         const ScaleAxis& axis) {
        const float from = fromEnd ? start + length : start;
        const float to = fromEnd ? start : start + length;
        settings.emplace(first, forms::NumberLiteral(axis.FromTwips(from)));
        settings.emplace(second, forms::NumberLiteral(axis.FromTwips(to)));
    };
    set(u"X1", u"X2", place.left, place.width, drawn.start.right, drawn.scale.across);
    set(u"Y1", u"Y2", place.top, place.height, drawn.start.bottom, drawn.scale.down);
}

// Takes what the controls of a class have in common: the version of their saved data and the edge
// of the container. Controls of component files also save their size in another unit.
void TakeFrom(const forms::Block& example, const host::Placement& place, bool hasSize,
              Settings& settings) {
    const auto take = [&](TextView name, std::optional<std::int32_t> other = std::nullopt) {
        if (const forms::Property* const property = example.FindProperty(name)) {
            settings.emplace(property->Name(),
                             other ? forms::Literal(*other) : property->Literal());
        }
    };
    const auto extent = [&](float twips) {
        return hasSize ? std::optional(ExtentOf(twips)) : std::nullopt;
    };
    take(u"Align");
    take(u"_ExtentX", extent(place.width));
    take(u"_ExtentY", extent(place.height));
    take(u"_Version");
}

void Write(const Settings& settings, forms::Block& block) {
    for (const auto& [name, literal] : settings) {
        block.Set(name, literal);
    }
}

}  // namespace

void WriteLibrarySettings(forms::Block& block, const host::Placement& place,
                          std::int32_t tabIndex) {
    Settings settings;
    SetPlace(settings, place, true);
    settings.emplace(u"TabIndex", tabIndex);
    settings.emplace(u"_ExtentX", ExtentOf(place.width));
    settings.emplace(u"_ExtentY", ExtentOf(place.height));
    Write(settings, block);
}

void WritePlainSettings(forms::Block& block, const forms::Block* example, const DrawnPlace& drawn,
                        std::int32_t tabIndex) {
    const PlainKind& kind = PlainKindOf(example == nullptr ? block : *example);
    const bool isUnknown = example == nullptr && kind.className.empty();
    const bool hasSize = kind.isSeen || isUnknown;
    Settings settings;
    if (HasEnds(block)) {
        SetEnds(settings, drawn);
    } else {
        SetPlace(settings, drawn.place, hasSize);
    }
    if (hasSize && kind.tab != TabRole::None) {
        settings.emplace(u"TabIndex", tabIndex);
    }
    if (example != nullptr) {
        TakeFrom(*example, drawn.place, hasSize, settings);
    }
    Write(settings, block);
}

}  // namespace lumenkit::lumenform
