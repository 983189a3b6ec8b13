#pragma once

#include <atomic>

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// A COM object with one interface, which is destroyed with its last reference. The creator holds
/// the first one; see Adopted.
template <typename Interface, const IID& interfaceId>
class Counted : public Interface {
 public:
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) final {
        if (object == nullptr) {
            return E_POINTER;
        }
        if (iid != IID_IUnknown && iid != interfaceId) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

 protected:
    Counted() = default;
    virtual ~Counted() = default;

 private:
    std::atomic<ULONG> references_ = 1;
};

}  // namespace lumenkit::ole
