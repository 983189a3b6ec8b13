#include "apps/lumenform/form_view/saved_place.h"

#include <algorithm>
#include <cmath>

namespace lumenkit::lumenform {

namespace {

struct Ends {
    TextView first;
    TextView second;
};
constexpr Ends across = {u"X1", u"X2"};
constexpr Ends down = {u"Y1", u"Y2"};

void Store(forms::Block& block, TextView name, float former, float now) {
    if (former != now) {
        block.Set(name, forms::NumberLiteral(now));
    }
}

struct Stretch {
    float start = 0;
    float length = 0;

    friend bool operator==(Stretch, Stretch) = default;
};

// The ends of a line in one direction, in twips.
struct EndPair {
    float first = 0;
    float second = 0;
};

EndPair EndsIn(const BlockReader& reader, Ends names, const ScaleAxis& axis, Stretch otherwise) {
    const auto end = [&](TextView name, float usual) {
        return reader.Has(name) ? axis.ToTwips(reader.Number(name, 0)) : usual;
    };
    return {end(names.first, otherwise.start),
            end(names.second, otherwise.start + otherwise.length)};
}

Stretch Between(const EndPair& ends) {
    return {std::min(ends.first, ends.second), std::abs(ends.second - ends.first)};
}

void StoreEnds(const BlockReader& reader, Ends names, const ScaleAxis& axis, Stretch former,
               Stretch now) {
    if (former == now) {
        return;  // the sum could round to a different number for the same place
    }
    const auto store = [&](TextView name, float formerTwips, float twips) {
        if (formerTwips != twips) {
            reader.Block().Set(name, forms::NumberLiteral(axis.FromTwips(twips)));
        }
    };
    const EndPair ends = EndsIn(reader, names, axis, former);
    const float end = now.start + now.length;
    store(names.first, ends.first, ends.first <= ends.second ? now.start : end);
    store(names.second, ends.second, ends.first <= ends.second ? end : now.start);
}

void RescaleEnd(const BlockReader& reader, TextView name, const ScaleAxis& former,
                const ScaleAxis& now) {
    if (former != now && reader.Has(name)) {
        const float twips = former.ToTwips(reader.Number(name, 0));
        reader.Block().Set(name, forms::NumberLiteral(now.FromTwips(twips)));
    }
}

}  // namespace

bool HasEnds(const forms::Block& block) {
    return ClassHasEnds(block.ClassName());
}

bool ClassHasEnds(TextView className) {
    return SameText(className, u"VB.Line", Compare::IgnoreCase);
}

bool Rises(const BlockReader& reader, const Scale& scale) {
    const auto grows = [&](Ends names, const ScaleAxis& axis) {
        const EndPair ends = EndsIn(reader, names, axis, {});
        return ends.first <= ends.second;
    };
    return grows(across, scale.across) != grows(down, scale.down);
}

host::Placement SavedPlace(const BlockReader& reader, const Scale& scale,
                           const host::Placement& otherwise) {
    if (HasEnds(reader.Block())) {
        const Stretch x =
            Between(EndsIn(reader, across, scale.across, {otherwise.left, otherwise.width}));
        const Stretch y =
            Between(EndsIn(reader, down, scale.down, {otherwise.top, otherwise.height}));
        return {.left = x.start, .top = y.start, .width = x.length, .height = y.length};
    }
    return {.left = reader.Number(u"Left", otherwise.left),
            .top = reader.Number(u"Top", otherwise.top),
            .width = reader.Number(u"Width", otherwise.width),
            .height = reader.Number(u"Height", otherwise.height)};
}

void StorePlace(const BlockReader& reader, const Scale& scale, const host::Placement& former,
                const host::Placement& now) {
    forms::Block& block = reader.Block();
    if (HasEnds(block)) {
        StoreEnds(reader, across, scale.across, {former.left, former.width}, {now.left, now.width});
        StoreEnds(reader, down, scale.down, {former.top, former.height}, {now.top, now.height});
        return;
    }
    Store(block, u"Left", former.left, now.left);
    Store(block, u"Top", former.top, now.top);
    Store(block, u"Width", former.width, now.width);
    Store(block, u"Height", former.height, now.height);
}

void MoveInFile(const BlockReader& reader, const Scale& scale, float across) {
    const host::Placement former = SavedPlace(reader, scale, {});
    host::Placement now = former;
    now.left += across;
    StorePlace(reader, scale, former, now);
}

void Rescale(const BlockReader& reader, const Scale& former, const Scale& now) {
    if (HasEnds(reader.Block())) {
        RescaleEnd(reader, across.first, former.across, now.across);
        RescaleEnd(reader, across.second, former.across, now.across);
        RescaleEnd(reader, down.first, former.down, now.down);
        RescaleEnd(reader, down.second, former.down, now.down);
    }
}

}  // namespace lumenkit::lumenform
