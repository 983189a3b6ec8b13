#include "runtime/qt/font.h"

#include <QMetaObject>
#include <algorithm>
#include <utility>

#include "frame/checked_integer.h"
#include "frame/runtime_error.h"

namespace lumenkit::qt {

namespace {

constexpr double largestSize = 2160.0;
constexpr double placesKept = 10000.0;
constexpr std::size_t mostRecent = 8;

float AcceptedSize(float points) {
    const double rounded = RoundHalfToEven(points * placesKept) / placesKept;
    if (!(rounded > 0.0 && rounded <= largestSize)) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    return static_cast<float>(rounded);
}

}  // namespace

Font::Font(TextView name, float points) : now_{.size = AcceptedSize(points), .name = Text(name)} {}

template <typename T>
void Font::Put(T& attribute, T value) {
    if (attribute == value) {
        return;
    }
    std::swap(attribute, value);
    face_.reset();
    try {
        // Listeners may be added or removed during the loop.
        // NOLINTNEXTLINE(modernize-loop-convert)
        for (std::size_t index = 0; index < listeners_.size(); ++index) {
            listeners_[index]->AttributesSet();
        }
    } catch (...) {
        std::swap(attribute, value);  // not all listeners know the new value
        throw;
    }
}

void Font::SetName(TextView name) {
    Put(now_.name, Text(name));
}

void Font::SetSize(float points) {
    Put(now_.size, AcceptedSize(points));
}

void Font::SetBold(bool bold) {
    Put(now_.weight, bold ? FontAttributes::boldWeight : FontAttributes::regularWeight);
}

void Font::SetItalic(bool italic) {
    Put(now_.italic, italic);
}

void Font::SetUnderline(bool underline) {
    Put(now_.underline, underline);
}

void Font::SetStrikethrough(bool strikethrough) {
    Put(now_.strikethrough, strikethrough);
}

void Font::SetWeight(std::int16_t weight) {
    Put(now_.weight, weight);
}

void Font::SetCharset(std::int16_t charset) {
    Put(now_.charset, charset);
}

std::shared_ptr<Font> Font::Clone() const {
    auto clone = std::make_shared<Font>(now_.name, now_.size);
    clone->now_ = now_;
    return clone;
}

void Font::CopyFrom(const Font& other) {
    if (!(now_ == other.now_)) {  // a copy of the name allocates
        Put(now_, FontAttributes(other.now_));
    }
}

const std::shared_ptr<FontFace>& Font::FaceAt(double scale) const {
    const auto fits = [&](const std::shared_ptr<FontFace>& face) {
        return face->IsFor(now_, scale);
    };
    if (face_ && fits(face_)) {
        return face_;
    }
    const auto found = std::ranges::find_if(recent_, fits);
    if (found != recent_.end()) {
        face_ = *found;
        return face_;
    }
    if (recent_.size() == mostRecent) {
        recent_.erase(recent_.begin());
    }
    face_ = FontFace::For(now_, scale);
    recent_.push_back(face_);
    return face_;
}

void Font::Add(FontListener& listener) {
    listeners_.push_back(&listener);
}

void Font::Remove(FontListener& listener) {
    listeners_.erase(std::ranges::find(listeners_, &listener));
}

std::shared_ptr<Font> Font::From(host::FontRef font) {
    if (!font) {
        Raise(ErrorNumber::ObjectNotSet);
    }
    auto own = std::dynamic_pointer_cast<Font>(std::move(font));
    if (!own) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return own;
}

HeldFont::HeldFont(std::shared_ptr<Font> font, std::function<void()> changed, ErrorSink errors)
    : font_(std::move(font)),
      changed_(std::move(changed)),
      errors_(std::move(errors)),
      shown_(font_->Now()) {
    font_->Add(*this);
}

HeldFont::~HeldFont() {
    font_->Remove(*this);
}

void HeldFont::Assign(host::FontRef font) {
    std::shared_ptr<Font> own = Font::From(std::move(font));
    own->Add(*this);
    font_->Remove(*this);
    font_ = std::move(own);
    shown_ = font_->Now();
    changed_();
}

void HeldFont::Flush() {
    pending_ = false;
    if (!(shown_ == font_->Now())) {
        FontAttributes now = font_->Now();
        changed_();
        shown_ = std::move(now);
    }
}

void HeldFont::AttributesSet() {
    if (pending_) {
        return;
    }
    QMetaObject::invokeMethod(
        &context_, [this] { HandleEvent(errors_, [this] { Flush(); }); }, Qt::QueuedConnection);
    pending_ = true;
}

}  // namespace lumenkit::qt
