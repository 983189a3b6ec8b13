// Conversion between objects of other components and late-bound objects of this component.
#pragma once

#include "frame/automation/value.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// A late-bound object that is based on a COM object.
class ComBacked {
 public:
    virtual ~ComBacked() = default;
    /// Returns the same object that the client passed. Never null.
    virtual ComPtr<IDispatch> Dispatch() const = 0;
};

/// Returns a font for a standard font object, the object through its IDispatch for any other, and
/// nothing for null. Raises 13 for an object that does not support late binding.
/// dispatch_object.cpp defines it, because a call of such an object passes values, and a value may
/// be an object again.
ObjectRef ObjectOf(IUnknown* object);

/// Returns the COM object behind `object`, and null for nothing. Raises 13 if there is none.
ComPtr<IDispatch> DispatchOf(const ObjectRef& object);

}  // namespace lumenkit::ole
