#include "apps/lumenform/form_view/make_control.h"

#include "apps/lumenform/form_view/library_control.h"
#include "apps/lumenform/form_view/plain_control.h"

namespace lumenkit::lumenform {

std::unique_ptr<LiveControl> MakeControl(const Stage& stage, const Surroundings& around,
                                         forms::Block& block) {
    const ClassDescriptor* type = stage.context.classes.Find(block.ClassName());
    if (type != nullptr && type->kind == ClassKind::Control) {
        return std::make_unique<LibraryControl>(stage, around, block, *type);
    }
    return std::make_unique<PlainControl>(stage, around, block);
}

}  // namespace lumenkit::lumenform
