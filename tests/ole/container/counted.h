#pragma once

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::container {

/// A COM object with one interface. Its owner decides how long it exists and can read the reference
/// count.
template <typename Interface>
class Counted : public Interface {
 public:
    explicit Counted(const IID& interfaceId) : interfaceId_(interfaceId) {}
    virtual ~Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = iid == IID_IUnknown || iid == interfaceId_ ? this : nullptr;
        if (*object == nullptr) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override { return --references_; }

    /// Returns the number of references that others hold.
    ULONG References() const { return references_; }

 private:
    IID interfaceId_;
    ULONG references_ = 0;
};

}  // namespace lumenkit::container
