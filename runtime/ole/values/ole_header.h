// The only place where this runtime includes the platform's component headers.
#pragma once

#include <objsafe.h>
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
#include <wrl/client.h>

#include "runtime/win32/windows_header.h"

namespace lumenkit::ole {

using Microsoft::WRL::ComPtr;

/// Takes over the initial reference of a new object. (ComPtr::Attach in the compiler's headers adds
/// another reference.)
template <typename Interface>
ComPtr<Interface> Adopted(Interface* object) {
    ComPtr<Interface> holder;
    *holder.GetAddressOf() = object;
    return holder;
}

}  // namespace lumenkit::ole
