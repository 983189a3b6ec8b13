#include "runtime/win32/font.h"

#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit::win32 {

HeldFont::HeldFont(FontListener& listener, std::shared_ptr<Font> font)
    : listener_(listener), font_(std::move(font)) {
    font_->Add(listener_);
}

HeldFont::~HeldFont() {
    font_->Remove(listener_);
}

void HeldFont::Assign(const host::FontRef& font) {
    if (font == nullptr) {
        Raise(ErrorNumber::ObjectNotSet);
    }
    auto own = std::dynamic_pointer_cast<Font>(font);
    if (own == nullptr) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    own->Add(listener_);
    std::exchange(font_, std::move(own))->Remove(listener_);
}

}  // namespace lumenkit::win32
