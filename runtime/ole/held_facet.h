#pragma once

#include <utility>

#include "runtime/ole/facet.h"
#include "runtime/ole/result.h"
#include "runtime/win32/life.h"

namespace lumenkit::ole {

/// A face with methods that may call the client, who may then release the object: it lives on until
/// they have returned.
template <typename Interface>
class HeldFacet : public Facet<Interface> {
 protected:
    HeldFacet(IUnknown& controlling, win32::Life& life)
        : Facet<Interface>(controlling), life_(life) {}

    /// As the function of that name; every method's body goes through it.
    template <std::invocable Body>
    HRESULT Guarded(Body&& body) noexcept {
        const win32::Life::Hold hold(&life_);
        return ole::Guarded(std::forward<Body>(body));
    }

 private:
    win32::Life& life_;
};

}  // namespace lumenkit::ole
