#include "runtime/ole/control/site_extender.h"

#include "frame/host/accepted_values.h"
#include "runtime/ole/values/dispatch_object.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::ole {

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
    return extended == nullptr ? host::Extender::FindMember(name)
                               : DispatchObject(extended.Get()).FindMember(name);
}

Value SiteExtender::Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) {
    const ComPtr<IDispatch> extended = Extended();
    return extended == nullptr ? host::Extender::Invoke(identifier, kind, arguments)
                               : DispatchObject(extended.Get()).Invoke(identifier, kind, arguments);
}

host::Placement SiteExtender::Place() const {
    return win32::ToTwips(control_.Place(), resolution_);
}

void SiteExtender::Move(const host::Placement& place) {
    RequireSize(place.width, place.height);
    control_.Move(win32::ToPixels(place, resolution_));
}

}  // namespace lumenkit::ole
