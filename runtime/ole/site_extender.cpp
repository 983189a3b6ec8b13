#include "runtime/ole/site_extender.h"

#include <algorithm>
#include <array>

#include "frame/automation/member_binding.h"
#include "frame/runtime_error.h"
#include "runtime/ole/dispatch_object.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::ole {

namespace {

// The members of the extender that stands in, as the interface table wants them.
struct OwnMembers {
    Placed& control;

    host::Placement Place() const {
        return win32::ToTwips(control.Place(), win32::Resolution::OfScreen());
    }
    void Put(const host::Placement& place) {
        if (place.width < 0 || place.height < 0) {
            Raise(ErrorNumber::InvalidPropertyValue);
        }
        control.Move(win32::ToPixels(place, win32::Resolution::OfScreen()));
    }
    void PutOne(float host::Placement::*length, float value) {
        host::Placement place = Place();
        place.*length = value;
        Put(place);
    }

    Text Name() const { return control.Title(); }
    float Left() const { return Place().left; }
    void SetLeft(float left) { PutOne(&host::Placement::left, left); }
    float Top() const { return Place().top; }
    void SetTop(float top) { PutOne(&host::Placement::top, top); }
    float Width() const { return Place().width; }
    void SetWidth(float width) { PutOne(&host::Placement::width, width); }
    float Height() const { return Place().height; }
    void SetHeight(float height) { PutOne(&host::Placement::height, height); }
    bool Visible() const { return control.IsVisible(); }
    void SetVisible(bool visible) { control.SetVisible(visible); }
    void Move(const Value& left, const Value& top, const Value& width, const Value& height) {
        host::Placement place = Place();
        Take(left, place.left);
        Take(top, place.top);
        Take(width, place.width);
        Take(height, place.height);
        Put(place);
    }

 private:
    static void Take(const Value& argument, float& length) {
        if (!std::holds_alternative<Missing>(argument)) {
            length = ToSingle(argument);
        }
    }
};

constexpr std::int32_t moveIdentifier = 7;

constexpr std::array moveParameters = {
    Parameter{u"Left", ValueType::Variant, false},
    Parameter{u"Top", ValueType::Variant, false},
    Parameter{u"Width", ValueType::Variant, false},
    Parameter{u"Height", ValueType::Variant, false},
};

constexpr std::array members = {
    ReadOnlyProperty<&OwnMembers::Name>(1, u"Name", u""),
    Property<&OwnMembers::Left, &OwnMembers::SetLeft>(2, u"Left", u""),
    Property<&OwnMembers::Top, &OwnMembers::SetTop>(3, u"Top", u""),
    Property<&OwnMembers::Width, &OwnMembers::SetWidth>(4, u"Width", u""),
    Property<&OwnMembers::Height, &OwnMembers::SetHeight>(5, u"Height", u""),
    Property<&OwnMembers::Visible, &OwnMembers::SetVisible>(6, u"Visible", u""),
    Method<&OwnMembers::Move>(moveIdentifier, u"Move", u"", moveParameters),
};

constexpr InterfaceTable table = {.name = u"Extender", .members = members};

Value InvokeOwn(Placed& control, std::int32_t identifier, InvokeKind kind,
                std::span<Value> arguments) {
    OwnMembers self{control};
    if (identifier != moveIdentifier || arguments.empty() ||
        arguments.size() > moveParameters.size()) {
        return InvokeMember(table, &self, identifier, kind, arguments);
    }
    std::array<Value, moveParameters.size()> all;
    all.fill(Missing{});
    std::ranges::copy(arguments, all.begin());
    return InvokeMember(table, &self, identifier, kind, all);
}

}  // namespace

ComPtr<IDispatch> SiteExtender::Extended() const {
    ComPtr<IDispatch> extended;
    const ComPtr<IOleControlSite> site = site_.As<IOleControlSite>();
    if (site == nullptr || FAILED(site->GetExtendedControl(&extended))) {
        return nullptr;
    }
    return extended;
}

std::optional<std::int32_t> SiteExtender::FindMember(TextView name) const {
    const ComPtr<IDispatch> extended = Extended();
    return extended == nullptr ? lumenkit::FindMember(table, name)
                               : DispatchObject(extended.Get()).FindMember(name);
}

Value SiteExtender::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    const ComPtr<IDispatch> extended = Extended();
    return extended == nullptr ? InvokeOwn(control_, identifier, kind, arguments)
                               : DispatchObject(extended.Get()).Invoke(identifier, kind, arguments);
}

}  // namespace lumenkit::ole
