#include "runtime/memory/font.h"

#include <utility>

#include "frame/checked_integer.h"
#include "frame/runtime_error.h"

namespace lumenkit::memory {

namespace {

constexpr double largestSize = 2160.0;
constexpr double placesKept = 10000.0;

float AcceptedSize(float points) {
    const double rounded = RoundHalfToEven(points * placesKept) / placesKept;
    if (!(rounded > 0.0 && rounded <= largestSize)) {
        Raise(ErrorNumber::InvalidPropertyValue);
    }
    return static_cast<float>(rounded);
}

}  // namespace

Font::Font(std::shared_ptr<FaultPlan> faults, TextView name, float points)
    : faults_(std::move(faults)), now_{.name = Text(name), .size = AcceptedSize(points)} {}

Text Font::Name() const {
    Call(u"Name");
    return now_.name;
}

void Font::SetName(TextView name) {
    Call(u"SetName");
    now_.name = name;
}

float Font::Size() const {
    Call(u"Size");
    return now_.size;
}

void Font::SetSize(float points) {
    Call(u"SetSize");
    now_.size = AcceptedSize(points);
}

bool Font::Bold() const {
    Call(u"Bold");
    return now_.IsBold();
}

void Font::SetBold(bool bold) {
    Call(u"SetBold");
    now_.weight = bold ? boldWeight : regularWeight;
}

bool Font::Italic() const {
    Call(u"Italic");
    return now_.italic;
}

void Font::SetItalic(bool italic) {
    Call(u"SetItalic");
    now_.italic = italic;
}

bool Font::Underline() const {
    Call(u"Underline");
    return now_.underline;
}

void Font::SetUnderline(bool underline) {
    Call(u"SetUnderline");
    now_.underline = underline;
}

bool Font::Strikethrough() const {
    Call(u"Strikethrough");
    return now_.strikethrough;
}

void Font::SetStrikethrough(bool strikethrough) {
    Call(u"SetStrikethrough");
    now_.strikethrough = strikethrough;
}

std::int16_t Font::Weight() const {
    Call(u"Weight");
    return now_.weight;
}

void Font::SetWeight(std::int16_t weight) {
    Call(u"SetWeight");
    now_.weight = weight;
}

std::int16_t Font::Charset() const {
    Call(u"Charset");
    return now_.charset;
}

void Font::SetCharset(std::int16_t charset) {
    Call(u"SetCharset");
    now_.charset = charset;
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

}  // namespace lumenkit::memory
