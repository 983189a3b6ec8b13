#include "runtime/ole/control/client_site.h"

#include "runtime/ole/values/result.h"
#include "runtime/ole/values/variant.h"

namespace lumenkit::ole {

void ClientSite::Assign(IOleClientSite* site) {
    const ComPtr<IOleClientSite> former = site_;
    const ComPtr<IDispatch> formerAmbients = ambients_;
    site_ = site;
    ambients_ = As<IDispatch>();
}

std::optional<Value> ClientSite::Ambient(DISPID property) const {
    // The member may be reassigned during the call.
    const ComPtr<IDispatch> asked = ambients_;
    if (asked == nullptr) {
        return std::nullopt;
    }
    DISPPARAMS none = {};
    Variant value;
    if (FAILED(asked->Invoke(property, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                             value.Get(), nullptr, nullptr)) ||
        value->vt == VT_EMPTY) {
        return std::nullopt;
    }
    try {
        return FromVariant(*value);
    } catch (...) {
        return std::nullopt;
    }
}

}  // namespace lumenkit::ole
