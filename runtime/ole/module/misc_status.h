#pragma once

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// How containers must treat a control: set its site before loading it, activate it whenever it is
/// visible, and allow other active controls next to it.
inline constexpr DWORD controlStatus = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_ACTIVATEWHENVISIBLE |
                                       OLEMISC_INSIDEOUT | OLEMISC_CANTLINKINSIDE |
                                       OLEMISC_RECOMPOSEONRESIZE;

}  // namespace lumenkit::ole
