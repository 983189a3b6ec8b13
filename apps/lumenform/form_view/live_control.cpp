#include "apps/lumenform/form_view/live_control.h"

#include "apps/lumenform/form_view/own_control.h"
#include "apps/lumenform/form_view/plain_control.h"
#include "forms/controls.h"

namespace lumenkit::form {

namespace {

void Store(forms::Block& block, TextView name, float former, float now) {
    if (former != now) {
        block.Set(name, forms::NumberLiteral(now));
    }
}

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
    const host::Placement units = scale_.FromTwips(otherwise);
    return scale_.ToTwips({.left = reader_.Number(u"Left", units.left),
                           .top = reader_.Number(u"Top", units.top),
                           .width = reader_.Number(u"Width", units.width),
                           .height = reader_.Number(u"Height", units.height)});
}

void LiveControl::Save() {
    SavePlace();
}

void LiveControl::SavePlace() {
    const host::Placement place = Place();
    if (keptPlace_ == place) {
        return;
    }
    const host::Placement former = scale_.FromTwips(*keptPlace_);
    const host::Placement now = scale_.FromTwips(place);
    Store(Block(), u"Left", former.left, now.left);
    Store(Block(), u"Top", former.top, now.top);
    Store(Block(), u"Width", former.width, now.width);
    Store(Block(), u"Height", former.height, now.height);
    StoreExtent(Block(), u"_ExtentX", keptPlace_->width, place.width);
    StoreExtent(Block(), u"_ExtentY", keptPlace_->height, place.height);
    keptPlace_ = place;
}

}  // namespace lumenkit::form
