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

Stretch Between(const BlockReader& reader, Ends names, Stretch otherwise) {
    const float first = reader.Number(names.first, otherwise.start);
    const float second = reader.Number(names.second, otherwise.start + otherwise.length);
    return {std::min(first, second), std::abs(second - first)};
}

void StoreEnds(const BlockReader& reader, Ends names, Stretch former, Stretch now) {
    if (former == now) {
        return;  // the sum could round to a different number for the same place
    }
    const float first = reader.Number(names.first, former.start);
    const float second = reader.Number(names.second, former.start + former.length);
    const float end = now.start + now.length;
    Store(reader.Block(), names.first, first, first <= second ? now.start : end);
    Store(reader.Block(), names.second, second, first <= second ? end : now.start);
}

}  // namespace

bool HasEnds(const forms::Block& block) {
    return SameText(block.ClassName(), u"VB.Line", Compare::IgnoreCase);
}

bool Rises(const BlockReader& reader) {
    const auto grows = [&](Ends names) {
        return reader.Number(names.first, 0) <= reader.Number(names.second, 0);
    };
    return grows(across) != grows(down);
}

host::Placement SavedPlace(const BlockReader& reader, const host::Placement& otherwise) {
    if (HasEnds(reader.Block())) {
        const Stretch x = Between(reader, across, {otherwise.left, otherwise.width});
        const Stretch y = Between(reader, down, {otherwise.top, otherwise.height});
        return {.left = x.start, .top = y.start, .width = x.length, .height = y.length};
    }
    return {.left = reader.Number(u"Left", otherwise.left),
            .top = reader.Number(u"Top", otherwise.top),
            .width = reader.Number(u"Width", otherwise.width),
            .height = reader.Number(u"Height", otherwise.height)};
}

void StorePlace(const BlockReader& reader, const host::Placement& former,
                const host::Placement& now) {
    forms::Block& block = reader.Block();
    if (HasEnds(block)) {
        StoreEnds(reader, across, {former.left, former.width}, {now.left, now.width});
        StoreEnds(reader, down, {former.top, former.height}, {now.top, now.height});
        return;
    }
    Store(block, u"Left", former.left, now.left);
    Store(block, u"Top", former.top, now.top);
    Store(block, u"Width", former.width, now.width);
    Store(block, u"Height", former.height, now.height);
}

}  // namespace lumenkit::lumenform
