// Pictures of a control, for the clipboard and containers' caches.
#pragma once

#include "runtime/ole/ole_header.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::ole {

/// A metafile in the clipboard's packing (METAFILEPICT); `size` in hundredths of a millimetre.
HGLOBAL RenderMetafilePicture(win32::HostedControl& control, const SIZEL& size);
HENHMETAFILE RenderEnhancedMetafile(win32::HostedControl& control, const SIZEL& size);
/// A packed device-independent bitmap of 24 bits, in pixels.
HGLOBAL RenderBitmap(win32::HostedControl& control, const SIZE& size);

}  // namespace lumenkit::ole
