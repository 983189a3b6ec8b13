#include "apps/lumenform/form_view/live_control.h"

#include "apps/lumenform/form_view/own_control.h"
#include "apps/lumenform/form_view/plain_control.h"
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

std::unique_ptr<LiveControl> LiveControl::Make(const Stage& stage, const Surroundings& around,
                                               forms::Block& block) {
    const ClassDescriptor* type = stage.context.classes.Find(block.ClassName());
    std::unique_ptr<LiveControl> control;
    if (type != nullptr && type->kind == ClassKind::Control) {
        control = std::make_unique<OwnControl>(stage, around, block, *type);
    } else {
        control = std::make_unique<PlainControl>(stage, around, block);
    }
    control->keptPlace_ = control->Place();
    return control;
}

LiveControl::LiveControl(const Stage& stage, const Surroundings& around, forms::Block& block)
    : reader_(stage.document, block),
      scale_(around.scale),
      name_(forms::NameInCode(block)),
      tabStop_(reader_.Flag(u"TabStop", true)) {
    if (reader_.Has(u"TabIndex")) {
        tabIndex_ = reader_.Whole(u"TabIndex", 0);
    }
}

host::Placement LiveControl::SavedPlace(const host::Placement& otherwise) const {
    return scale_.ToTwips(lumenform::SavedPlace(reader_, scale_.FromTwips(otherwise)));
}

void LiveControl::Save() {
    SavePlace();
}

void LiveControl::SavePlace() {
    const host::Placement place = Place();
    if (keptPlace_ == place) {
        return;
    }
    StorePlace(reader_, scale_.FromTwips(*keptPlace_), scale_.FromTwips(place));
    StoreExtent(Block(), u"_ExtentX", keptPlace_->width, place.width);
    StoreExtent(Block(), u"_ExtentY", keptPlace_->height, place.height);
    keptPlace_ = place;
}

}  // namespace lumenkit::lumenform
