#pragma once

#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Controls are safe for all scripts and data: they do not access files, the registry or the
/// network.
class ObjectSafety final : public Facet<IObjectSafety> {
 public:
    explicit ObjectSafety(IUnknown& controlling) : Facet(controlling) {}

    HRESULT STDMETHODCALLTYPE GetInterfaceSafetyOptions(REFIID interfaceId, DWORD* supported,
                                                        DWORD* enabled) override;
    HRESULT STDMETHODCALLTYPE SetInterfaceSafetyOptions(REFIID interfaceId, DWORD mask,
                                                        DWORD enabled) override;

 private:
    bool Has(REFIID interfaceId) const;

    static constexpr DWORD allOptions_ =
        INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;
};

}  // namespace lumenkit::ole
