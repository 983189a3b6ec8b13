#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "frame/host/extender.h"
#include "frame/text.h"
#include "runtime/ole/control/client_site.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::ole {

/// The placement of a control, known without the help of its container.
class Placed {
 public:
    virtual ~Placed() = default;

    virtual Text Title() const = 0;
    /// In pixels, in the container's window.
    virtual RECT Place() const = 0;
    virtual bool IsVisible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    /// Asks the container to move the control.
    virtual void Move(const RECT& place) = 0;
};

/// The control as its container sees it. It uses the container's extended control if there is one.
/// Otherwise it provides Name, Left, Top, Width, Height (in twips), Visible and Move from Placed.
class SiteExtender final : public host::Extender {
 public:
    /// `site` and `control` must outlive the object. `resolution` converts between pixels and
    /// twips.
    SiteExtender(const ClientSite& site, Placed& control, win32::Resolution resolution)
        : site_(site), control_(control), resolution_(resolution) {}

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

 private:
    ComPtr<IDispatch> Extended() const;

    Text Name() const override { return control_.Title(); }
    bool HasTag() const override { return false; }
    Text Tag() const override { return {}; }
    void SetTag(TextView /*tag*/) override {}
    host::Placement Place() const override;
    void Move(const host::Placement& place) override;
    bool IsVisible() const override { return control_.IsVisible(); }
    void SetVisible(bool visible) override { control_.SetVisible(visible); }

    const ClientSite& site_;
    Placed& control_;
    win32::Resolution resolution_;
};

}  // namespace lumenkit::ole
