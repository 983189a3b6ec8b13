// The base classes of one interface of a COM object. Each interface is a member of the object, with
// a separate class, and passes IUnknown on to the controlling IUnknown: the object's own or, in an
// aggregate, that of the aggregating object.
#pragma once

#include <concepts>
#include <utility>

#include "runtime/ole/values/ole_header.h"
#include "runtime/ole/values/result.h"
#include "runtime/win32/life.h"

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

/// An interface whose methods may call the client. The client may release the object meanwhile: the
/// object lives on until the methods have returned.
template <typename Interface>
class HeldFacet : public Facet<Interface> {
 protected:
    HeldFacet(IUnknown& controlling, win32::Life& life)
        : Facet<Interface>(controlling), life_(life) {}

    /// Does the same as ole::Guarded while the object is held. The body of every method runs in it.
    template <std::invocable Body>
    HRESULT Guarded(Body&& body) noexcept {
        const win32::Life::Hold hold(&life_);
        return ole::Guarded(std::forward<Body>(body));
    }

 private:
    win32::Life& life_;
};

}  // namespace lumenkit::ole
