#pragma once

#include <wrl/client.h>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Takes over the initial reference of a new object. (ComPtr::Attach in the compiler's headers adds
/// another reference.)
template <typename Interface>
Microsoft::WRL::ComPtr<Interface> Adopted(Interface* object) {
    Microsoft::WRL::ComPtr<Interface> holder;
    *holder.GetAddressOf() = object;
    return holder;
}

}  // namespace lumenkit::win32
