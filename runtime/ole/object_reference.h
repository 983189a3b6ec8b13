// Objects of other components as this component's late-bound objects, and back.
#pragma once

#include "frame/automation/object.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// A late-bound object behind which there is a COM object.
class ComBacked {
 public:
    virtual ~ComBacked() = default;
    /// The very object that a client handed over; never null.
    virtual ComPtr<IDispatch> Dispatch() const = 0;
};

/// A font for a standard font object, else the object by its IDispatch; nothing for null. Raises 13
/// for an object that cannot be used late-bound.
ObjectRef ObjectOf(IUnknown* object);

/// The COM object behind `object`; null for nothing. Raises 13 when there is none.
ComPtr<IDispatch> DispatchOf(const ObjectRef& object);

}  // namespace lumenkit::ole
