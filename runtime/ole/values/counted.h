#pragma once

#include "runtime/ole/values/ole_header.h"
#include "runtime/win32/counted.h"

namespace lumenkit::ole {

/// A counted COM object with one interface.
template <typename Interface, const IID& interfaceId>
class Counted : public win32::Counted<Interface> {
 public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) final {
        if (object == nullptr) {
            return E_POINTER;
        }
        if (iid != IID_IUnknown && iid != interfaceId) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<Interface*>(this);
        this->AddRef();
        return S_OK;
    }
};

}  // namespace lumenkit::ole
