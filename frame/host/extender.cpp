#include "frame/host/extender.h"

#include <algorithm>
#include <array>

#include "frame/automation/member_binding.h"
#include "frame/runtime_error.h"

namespace lumenkit::host {

// The members in the form that the interface table needs.
struct ExtenderMembers {
    Extender& self;

    Text Name() const { return self.Name(); }
    Text Tag() const { return self.Tag(); }
    void SetTag(TextView tag) { self.SetTag(tag); }
    float Left() const { return self.Place().left; }
    void SetLeft(float left) { MovePart(&Placement::left, left); }
    float Top() const { return self.Place().top; }
    void SetTop(float top) { MovePart(&Placement::top, top); }
    float Width() const { return self.Place().width; }
    void SetWidth(float width) { MovePart(&Placement::width, width); }
    float Height() const { return self.Place().height; }
    void SetHeight(float height) { MovePart(&Placement::height, height); }
    bool Visible() const { return self.IsVisible(); }
    void SetVisible(bool visible) { self.SetVisible(visible); }
    void Move(const Value& left, const Value& top, const Value& width, const Value& height) {
        Placement place = self.Place();
        Take(left, place.left);
        Take(top, place.top);
        Take(width, place.width);
        Take(height, place.height);
        self.Move(place);
    }

 private:
    void MovePart(float Placement::*part, float length) {
        Placement place = self.Place();
        place.*part = length;
        self.Move(place);
    }
    static void Take(const Value& argument, float& part) {
        if (!std::holds_alternative<Missing>(argument)) {
            part = ToSingle(argument);
        }
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

constexpr InterfaceTable table = {.name = u"Extender", .members = members};

}  // namespace

const Member* Extender::Known(std::int32_t identifier) const {
    return identifier == tagIdentifier && !HasTag() ? nullptr : table.Find(identifier);
}

std::optional<std::int32_t> Extender::FindMember(TextView name) const {
    const auto identifier = lumenkit::FindMember(table, name);
    return identifier && Known(*identifier) != nullptr ? identifier : std::nullopt;
}

Value Extender::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    if (Known(identifier) == nullptr) {
        Raise(ErrorNumber::NoSuchMember);
    }
    ExtenderMembers self{*this};
    if (identifier != moveIdentifier || arguments.empty() ||
        arguments.size() > moveParameters.size()) {
        return InvokeMember(table, &self, identifier, kind, arguments);
    }
    std::array<Value, moveParameters.size()> all;
    all.fill(Missing{});
    std::ranges::copy(arguments, all.begin());
    return InvokeMember(table, &self, identifier, kind, all);
}

}  // namespace lumenkit::host
