#include "runtime/win32/font.h"

#include <algorithm>
#include <utility>

#include "frame/runtime_error.h"

namespace lumenkit::win32 {

void FontListeners::Remove(FontListener& listener) {
    const auto found = std::ranges::find(listeners_, &listener);
    if (found == listeners_.end()) {
        return;
    }
    if (telling_ == 0) {
        listeners_.erase(found);
    } else {
        *found = nullptr;
    }
}

bool FontListeners::IsEmpty() const {
    return std::ranges::all_of(listeners_,
                               [](const auto* listener) { return listener == nullptr; });
}

void FontListeners::Tell() {
    struct Telling {
        FontListeners& self;
        explicit Telling(FontListeners& listeners) : self(listeners) { ++self.telling_; }
        ~Telling() {
            if (--self.telling_ == 0) {
                std::erase(self.listeners_, nullptr);
            }
        }
        Telling(const Telling&) = delete;
        Telling& operator=(const Telling&) = delete;
    };
    const Telling telling(*this);
    const std::size_t count = listeners_.size();
    for (std::size_t index = 0; index < count; ++index) {
        if (FontListener* const listener = listeners_[index]) {
            listener->FontChanged();
        }
    }
}

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
        Raise(ErrorNumber::TypeMismatch);
    }
    own->Add(listener_);
    std::exchange(font_, std::move(own))->Remove(listener_);
}

}  // namespace lumenkit::win32
