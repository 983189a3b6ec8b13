// Renders pictures of a control for the clipboard and for the caches of containers.
#pragma once

#include "runtime/ole/values/ole_header.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::ole {

/// A control has one picture, its content. Raises a ComError for any other aspect of it.
void CheckAspect(DWORD aspect);

/// Returns a metafile packed for the clipboard (METAFILEPICT). `size` is in hundredths of a
/// millimetre.
HGLOBAL RenderMetafilePicture(win32::HostedControl& control, const SIZEL& size);
HENHMETAFILE RenderEnhancedMetafile(win32::HostedControl& control, const SIZEL& size);
/// Returns a packed device-independent bitmap of 24 bits. `size` is in pixels.
HGLOBAL RenderBitmap(win32::HostedControl& control, const SIZE& size);

}  // namespace lumenkit::ole
