// The base class of one interface of a COM object. Each interface is a member of the object, with a
// separate class, and passes IUnknown on to the controlling IUnknown: the object's own or, in an
// aggregate, that of the aggregating object.
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
