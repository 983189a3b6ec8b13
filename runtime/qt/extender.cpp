#include "runtime/qt/extender.h"

#include <algorithm>
#include <array>

#include "frame/automation/member_binding.h"
#include "runtime/qt/control_widget.h"

namespace lumenkit::qt {

namespace {

float Given(const Value& argument, float otherwise) {
    return std::holds_alternative<Missing>(argument) ? otherwise : ToSingle(argument);
}

}  // namespace

// The members, as the interface table wants them.
struct ExtenderMembers {
    ControlWidget& control;

    Text Name() const { return control.Name(); }
    Text Tag() const { return control.Tag(); }
    void SetTag(TextView tag) { control.SetTag(tag); }
    float Left() const { return control.Place().left; }
    void SetLeft(float left) { Move(left, Missing{}, Missing{}, Missing{}); }
    float Top() const { return control.Place().top; }
    void SetTop(float top) { Move(Missing{}, top, Missing{}, Missing{}); }
    float Width() const { return control.Place().width; }
    void SetWidth(float width) { Move(Missing{}, Missing{}, width, Missing{}); }
    float Height() const { return control.Place().height; }
    void SetHeight(float height) { Move(Missing{}, Missing{}, Missing{}, height); }
    bool Visible() const { return control.IsShown(); }
    void SetVisible(bool visible) { control.SetShown(visible); }
    void Move(const Value& left, const Value& top, const Value& width, const Value& height) {
        control.Move({.left = Given(left, Left()),
                      .top = Given(top, Top()),
                      .width = Given(width, Width()),
                      .height = Given(height, Height())});
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
    ReadOnlyProperty<&ExtenderMembers::Name>(1, u"Name", u""),
    Property<&ExtenderMembers::Tag, &ExtenderMembers::SetTag>(2, u"Tag", u""),
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
    return lumenkit::FindMember(table, name);
}

Value Extender::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
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

}  // namespace lumenkit::qt
