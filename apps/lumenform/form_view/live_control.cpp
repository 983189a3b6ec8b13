#include "apps/lumenform/form_view/live_control.h"

#include "apps/lumenform/form_view/saved_place.h"
#include "forms/controls.h"

namespace lumenkit::lumenform {

namespace {

void StoreExtent(forms::Block& block, TextView name, float former, float now) {
    if (former != now && block.FindProperty(name) != nullptr) {
        block.Set(name, forms::Literal(ExtentOf(now)));
    }
}

}  // namespace

LiveControl::LiveControl(const Stage& stage, const Surroundings& around, forms::Block& block)
    : reader_(stage.document, block),
      scale_(around.scale),
      name_(forms::NameInCode(block)),
      tabStop_(reader_.Flag(u"TabStop", true)) {
    constexpr std::int32_t last = 32767;
    if (around.offset != 0 &&
        lumenform::SavedPlace(reader_, scale_, {}).left < -around.offset / 2) {
        offset_ = around.offset;
    }
    const std::int32_t turn = reader_.Whole(u"TabIndex", -1);
    if (turn >= 0 && turn <= last) {
        tabIndex_ = turn;
    }
}

host::Placement LiveControl::SavedPlace(const host::Placement& otherwise) const {
    host::Placement place = lumenform::SavedPlace(reader_, scale_, otherwise);
    place.left += offset_;
    if (place.width < 0) {
        place.width = otherwise.width;
    }
    if (place.height < 0) {
        place.height = otherwise.height;
    }
    return place;
}

void LiveControl::Save() {
    SavePlace();
}

void LiveControl::SavePlace() {
    const host::Placement place = Place();
    if (storedPlace_ == place) {
        return;
    }
    const auto inFile = [this](host::Placement shown) {
        shown.left -= offset_;
        return shown;
    };
    StorePlace(reader_, scale_, inFile(storedPlace_), inFile(place));
    StoreExtent(Block(), u"_ExtentX", storedPlace_.width, place.width);
    StoreExtent(Block(), u"_ExtentY", storedPlace_.height, place.height);
    storedPlace_ = place;
}

}  // namespace lumenkit::lumenform
