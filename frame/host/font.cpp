#include "frame/host/font.h"

#include <array>

#include "frame/automation/member_binding.h"
#include "frame/runtime_error.h"

namespace lumenkit::host {

namespace {

constexpr std::array fontMembers = {
    Property<&Font::Name, &Font::SetName>(0, u"Name", u""),
    Property<&Font::Size, &Font::SetSize>(2, u"Size", u""),
    Property<&Font::Bold, &Font::SetBold>(3, u"Bold", u""),
    Property<&Font::Italic, &Font::SetItalic>(4, u"Italic", u""),
    Property<&Font::Underline, &Font::SetUnderline>(5, u"Underline", u""),
    Property<&Font::Strikethrough, &Font::SetStrikethrough>(6, u"Strikethrough", u""),
    Property<&Font::Weight, &Font::SetWeight>(7, u"Weight", u""),
    Property<&Font::Charset, &Font::SetCharset>(8, u"Charset", u""),
};

constexpr InterfaceTable fontTable = {u"Font", fontMembers};

}  // namespace

std::optional<std::int32_t> Font::FindMember(TextView name) const {
    return lumenkit::FindMember(fontTable, name);
}

Value Font::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    return InvokeMember(fontTable, this, identifier, kind, arguments);
}

bool Font::IsSame(const Object& other) const {
    if (this == &other) {
        return true;
    }
    const auto* font = dynamic_cast<const Font*>(&other);
    return font != nullptr && Name() == font->Name() && Size() == font->Size() &&
           Bold() == font->Bold() && Italic() == font->Italic() &&
           Underline() == font->Underline() && Strikethrough() == font->Strikethrough() &&
           Weight() == font->Weight() && Charset() == font->Charset();
}

FontRef ToFont(const Value& value) {
    const ObjectRef object = ToObject(value);
    auto font = std::dynamic_pointer_cast<Font>(object);
    if (object && !font) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return font;
}

FontRef ToAssignedFont(const Value& value) {
    FontRef font = ToFont(value);
    if (font == nullptr) {
        Raise(ErrorNumber::TypeMismatch);
    }
    return font;
}

}  // namespace lumenkit::host
