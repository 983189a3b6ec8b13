// How one COM object offers many interfaces: each is a member of the object, of a class of its own,
// that hands IUnknown to the object's controlling one (the object's own or, in an aggregate, the
// aggregating object's).
#pragma once

#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

template <typename Interface>
class Facet : public Interface {
 public:
    explicit Facet(IUnknown& controlling) : controlling_(controlling) {}
    virtual ~Facet() = default;
    Facet(const Facet&) = delete;
    Facet& operator=(const Facet&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** object) final {
        return controlling_.QueryInterface(interfaceId, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() final { return controlling_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() final { return controlling_.Release(); }

 protected:
    IUnknown& Controlling() const { return controlling_; }

 private:
    IUnknown& controlling_;
};

}  // namespace lumenkit::ole
