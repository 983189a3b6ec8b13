#pragma once

#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// How containers are to treat a control: give it its site before loading it, show it whenever it
/// is visible, beside others.
inline constexpr DWORD controlStatus = OLEMISC_SETCLIENTSITEFIRST | OLEMISC_ACTIVATEWHENVISIBLE |
                                       OLEMISC_INSIDEOUT | OLEMISC_CANTLINKINSIDE |
                                       OLEMISC_RECOMPOSEONRESIZE;

}  // namespace lumenkit::ole
