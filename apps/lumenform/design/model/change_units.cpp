#include "apps/lumenform/design/model/change_units.h"

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/saved_place.h"
#include "apps/lumenform/form_view/scale.h"

namespace lumenkit::lumenform {

namespace {

void ConvertLength(const BlockReader& container, TextView name, const ScaleAxis& former,
                   const ScaleAxis& now) {
    if (container.Has(name)) {
        const float twips = former.LengthToTwips(container.Number(name, 0));
        container.Block().Set(name, forms::NumberLiteral(now.LengthFromTwips(twips)));
    }
}

// Units of its own follow from the size and the origin in the block, which therefore stay. No other
// units have an origin.
void ConvertArea(const BlockReader& container, const Scale& former, QSizeF room) {
    if (container.Whole(u"ScaleMode", 1) == 0) {
        return;
    }
    const Scale now = Scale::Of(container, room);
    ConvertLength(container, u"ScaleWidth", former.across, now.across);
    ConvertLength(container, u"ScaleHeight", former.down, now.down);
    container.Block().Remove(u"ScaleLeft");
    container.Block().Remove(u"ScaleTop");
}

}  // namespace

void ChangeUnits(const forms::Document& document, forms::Block& container, QSizeF room,
                 const std::function<void()>& change) {
    const BlockReader reader(document, container);
    const Scale former = Scale::Of(reader, room);
    change();
    if (Scale::Of(reader, room) == former) {
        return;
    }
    ConvertArea(reader, former, room);
    const Scale now = Scale::Of(reader, room);
    for (forms::Block* control : container.Controls()) {
        Rescale(BlockReader(document, *control), former, now);
    }
}

}  // namespace lumenkit::lumenform
