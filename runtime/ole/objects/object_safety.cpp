#include "runtime/ole/objects/object_safety.h"

#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

bool ObjectSafety::Has(REFIID interfaceId) const {
    ComPtr<IUnknown> found;
    return SUCCEEDED(
        Controlling().QueryInterface(interfaceId, reinterpret_cast<void**>(found.GetAddressOf())));
}

HRESULT ObjectSafety::GetInterfaceSafetyOptions(REFIID interfaceId, DWORD* supported,
                                                DWORD* enabled) {
    return Guarded([&] {
        Checked(supported) = 0;
        Checked(enabled) = 0;
        if (!Has(interfaceId)) {
            return E_NOINTERFACE;
        }
        *supported = allOptions_;
        *enabled = allOptions_;
        return S_OK;
    });
}

HRESULT ObjectSafety::SetInterfaceSafetyOptions(REFIID interfaceId, DWORD mask, DWORD enabled) {
    return Guarded([&] {
        if (!Has(interfaceId)) {
            return E_NOINTERFACE;
        }
        // Controls are safe with any options.
        return (mask & enabled & ~allOptions_) != 0 ? E_FAIL : S_OK;
    });
}

}  // namespace lumenkit::ole
