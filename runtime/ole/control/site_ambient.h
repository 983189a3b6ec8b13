#pragma once

#include "frame/host/ambient.h"
#include "runtime/ole/control/client_site.h"
#include "runtime/win32/font.h"

namespace lumenkit::ole {

/// The container's ambient properties. The defaults are a running application, "MS Sans Serif" of
/// 8.25 points, and the background colour of buttons.
class SiteAmbient final : public host::Ambient {
 public:
    /// Both arguments must outlive the object.
    SiteAmbient(const ClientSite& site, win32::FontMaker& fonts) : site_(site), fonts_(fonts) {}

    bool UserMode() const override;
    host::FontRef AmbientFont() const override;
    Color BackColor() const override;
    /// Whether the container asks its controls to ignore the user, as while it is debugging.
    bool IsUIDead() const;

 private:
    const ClientSite& site_;
    win32::FontMaker& fonts_;
};

}  // namespace lumenkit::ole
