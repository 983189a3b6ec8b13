#include "runtime/memory/extender.h"

#include <algorithm>
#include <array>

#include "frame/automation/member_binding.h"
#include "frame/runtime_error.h"
#include "runtime/memory/placed_control.h"

namespace lumenkit::memory {

namespace {

float Given(const Value& argument, float otherwise) {
    return std::holds_alternative<Missing>(argument) ? otherwise : ToSingle(argument);
}

}  // namespace

// The members, as the interface table wants them.
struct ExtenderMembers {
    PlacedControl& control;

    Text Name() const { return control.Name(); }
    Text Tag() const { return control.Tag(); }
    void SetTag(TextView tag) { control.SetTag(tag); }
    float Left() const { return control.Left(); }
    void SetLeft(float left) { control.Move(left, control.Top()); }
    float Top() const { return control.Top(); }
    void SetTop(float top) { control.Move(control.Left(), top); }
    float Width() const { return control.Drawing().CurrentWidth(); }
    void SetWidth(float width) { control.Resize(width, Height()); }
    float Height() const { return control.Drawing().CurrentHeight(); }
    void SetHeight(float height) { control.Resize(Width(), height); }
    bool Visible() const { return control.IsVisible(); }
    void SetVisible(bool visible) { visible ? control.Show() : control.Hide(); }
    void Move(const Value& left, const Value& top, const Value& width, const Value& height) {
        const float newWidth = Given(width, Width());
        const float newHeight = Given(height, Height());
        control.Move(Given(left, Left()), Given(top, Top()));
        control.Resize(newWidth, newHeight);
    }
};

namespace {

constexpr std::int32_t tagIdentifier = 2;
constexpr std::int32_t moveIdentifier = 8;

constexpr std::array moveParameters = {
    Parameter{u"Left", ValueType::Variant, false},
    Parameter{u"Top", ValueType::Variant, false},
    Parameter{u"Width", ValueType::Variant, false},
    Parameter{u"Height", ValueType::Variant, false},
};

constexpr std::array members = {
    ReadOnlyProperty<&ExtenderMembers::Name>(1, u"Name", u""),
    Property<&ExtenderMembers::Tag, &ExtenderMembers::SetTag>(tagIdentifier, u"Tag", u""),
    Property<&ExtenderMembers::Left, &ExtenderMembers::SetLeft>(3, u"Left", u""),
    Property<&ExtenderMembers::Top, &ExtenderMembers::SetTop>(4, u"Top", u""),
    Property<&ExtenderMembers::Width, &ExtenderMembers::SetWidth>(5, u"Width", u""),
    Property<&ExtenderMembers::Height, &ExtenderMembers::SetHeight>(6, u"Height", u""),
    Property<&ExtenderMembers::Visible, &ExtenderMembers::SetVisible>(7, u"Visible", u""),
    Method<&ExtenderMembers::Move>(moveIdentifier, u"Move", u"", moveParameters),
};

constexpr InterfaceTable table = {u"Extender", members};

}  // namespace

std::optional<std::int32_t> Extender::FindMember(TextView name) const {
    const auto identifier = lumenkit::FindMember(table, name);
    return identifier == tagIdentifier && !supportsTag_ ? std::nullopt : identifier;
}

Value Extender::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    const Member* member = table.Find(identifier);
    if (member == nullptr || (identifier == tagIdentifier && !supportsTag_)) {
        Raise(ErrorNumber::NoSuchMember);
    }
    control_.GetForm().Faults().Call(u"Extender", member->name);
    ExtenderMembers self{control_};
    if (identifier != moveIdentifier || arguments.empty() ||
        arguments.size() > moveParameters.size()) {
        return InvokeMember(table, &self, identifier, kind, arguments);
    }
    std::array<Value, moveParameters.size()> all;
    all.fill(Missing{});
    std::ranges::copy(arguments, all.begin());
    return InvokeMember(table, &self, identifier, kind, all);
}

}  // namespace lumenkit::memory
