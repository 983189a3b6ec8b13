#pragma once

#include <utility>

#include "runtime/ole/facet.h"
#include "runtime/ole/result.h"
#include "runtime/win32/life.h"

namespace lumenkit::ole {

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
