// The only place where this runtime includes the platform's component headers.
#pragma once

#include <objsafe.h>
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>
#include <wrl/client.h>

#include "runtime/win32/adopted.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::ole {

using Microsoft::WRL::ComPtr;
using win32::Adopted;

}  // namespace lumenkit::ole
