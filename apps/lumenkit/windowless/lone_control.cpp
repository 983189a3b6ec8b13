#include "apps/lumenkit/windowless/lone_control.h"

#include <span>

#include "apps/lumenkit/windowless/saved_font.h"
#include "apps/lumenkit/windowless/saved_placing.h"
#include "forms/font_description.h"

namespace lumenkit::windowless {

LoneControl::LoneControl(const forms::Document& document, forms::Block& block,
                         const ClassDescriptor& type, bool userMode)
    : form_({.libraryName = {}, .classes = std::span(&type, 1)}),
      saved_(document, block,
             [this](const forms::FontDescription& font) { return SavedFont(form_, font); }),
      tag_(SavedTag(saved_)),
      hosted_(form_, type, PlacingIn(userMode)) {}

memory::Placing LoneControl::PlacingIn(bool userMode) {
    memory::Placing placing = SavedPlacing(saved_, userMode);
    placing.tag = tag_;
    placing.visible = true;
    return placing;
}

}  // namespace lumenkit::windowless
