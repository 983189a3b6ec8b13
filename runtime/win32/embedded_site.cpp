#include "runtime/win32/embedded_site.h"

#include <algorithm>
#include <array>

#include "frame/automation/member_binding.h"
#include "frame/runtime_error.h"

namespace lumenkit::win32 {

host::FontRef EmbeddedAmbient::AmbientFont() const {
    const host::Design usual;
    return fonts_.NewFont(usual.fontName, usual.fontSize);
}

// The members, as the interface table wants them.
struct EmbeddedMembers {
    EmbeddedExtender& self;

    host::Placement Place() const { return self.control_.Place(); }

    Text Name() const { return self.name_; }
    Text Tag() const { return self.tag_; }
    void SetTag(TextView tag) { self.tag_ = tag; }
    float Left() const { return Place().left; }
    void SetLeft(float left) { MovePart(&host::Placement::left, left); }
    float Top() const { return Place().top; }
    void SetTop(float top) { MovePart(&host::Placement::top, top); }
    float Width() const { return Place().width; }
    void SetWidth(float width) { MovePart(&host::Placement::width, width); }
    float Height() const { return Place().height; }
    void SetHeight(float height) { MovePart(&host::Placement::height, height); }
    bool Visible() const { return self.control_.Visible(); }
    void SetVisible(bool visible) { self.control_.SetVisible(visible); }
    void Move(const Value& left, const Value& top, const Value& width, const Value& height) {
        host::Placement place = Place();
        Take(left, place.left);
        Take(top, place.top);
        Take(width, place.width);
        Take(height, place.height);
        self.control_.Move(place);
    }

 private:
    void MovePart(float host::Placement::*part, float length) {
        host::Placement place = Place();
        place.*part = length;
        self.control_.Move(place);
    }
    static void Take(const Value& argument, float& part) {
        if (!std::holds_alternative<Missing>(argument)) {
            part = ToSingle(argument);
        }
    }
};

namespace {

constexpr std::int32_t moveIdentifier = 8;

constexpr std::array moveParameters = {
    Parameter{u"Left", ValueType::Variant, false},
    Parameter{u"Top", ValueType::Variant, false},
    Parameter{u"Width", ValueType::Variant, false},
    Parameter{u"Height", ValueType::Variant, false},
};

constexpr std::array members = {
    ReadOnlyProperty<&EmbeddedMembers::Name>(1, u"Name", u""),
    Property<&EmbeddedMembers::Tag, &EmbeddedMembers::SetTag>(2, u"Tag", u""),
    Property<&EmbeddedMembers::Left, &EmbeddedMembers::SetLeft>(3, u"Left", u""),
    Property<&EmbeddedMembers::Top, &EmbeddedMembers::SetTop>(4, u"Top", u""),
    Property<&EmbeddedMembers::Width, &EmbeddedMembers::SetWidth>(5, u"Width", u""),
    Property<&EmbeddedMembers::Height, &EmbeddedMembers::SetHeight>(6, u"Height", u""),
    Property<&EmbeddedMembers::Visible, &EmbeddedMembers::SetVisible>(7, u"Visible", u""),
    Method<&EmbeddedMembers::Move>(moveIdentifier, u"Move", u"", moveParameters),
};

constexpr InterfaceTable table = {u"Extender", members};

}  // namespace

std::optional<std::int32_t> EmbeddedExtender::FindMember(TextView name) const {
    return lumenkit::FindMember(table, name);
}

Value EmbeddedExtender::Invoke(std::int32_t identifier, InvokeKind kind,
                               std::span<Value> arguments) {
    EmbeddedMembers self{*this};
    if (identifier != moveIdentifier || arguments.empty() ||
        arguments.size() > moveParameters.size()) {
        return InvokeMember(table, &self, identifier, kind, arguments);
    }
    std::array<Value, moveParameters.size()> all;
    all.fill(Missing{});
    std::ranges::copy(arguments, all.begin());
    return InvokeMember(table, &self, identifier, kind, all);
}

}  // namespace lumenkit::win32
