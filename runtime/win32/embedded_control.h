#pragma once

#include <optional>

#include "frame/class_table.h"
#include "frame/host/simple_constituents.h"
#include "runtime/shared/embedded_site.h"
#include "runtime/win32/control_site.h"
#include "runtime/win32/elements.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::win32 {

/// A new control on another control or on a page. The control around it is its container and
/// ignores its notifications.
class EmbeddedControl final : public host::EmbeddedControl, private ControlSite {
 public:
    EmbeddedControl(const Elements& elements, const host::Design& design,
                    const ClassDescriptor& type);

    host::Placement Place() const override { return placement_; }
    /// Resizes the embedded control too.
    void Move(const host::Placement& placement) override;
    bool Visible() const override { return visible_; }
    void SetVisible(bool visible) override;
    bool Enabled() const override { return enabled_; }
    void SetEnabled(bool enabled) override;
    void Refresh() override;
    Object& Automation() override { return control_->Automation(); }

 private:
    // ControlSite
    host::Container& GetContainer() override { return container_; }
    host::Ambient& GetAmbient() override { return ambient_; }
    Object& GetExtender() override { return extender_; }
    void RequestSize(SIZE size) override;
    void PictureChanged() override {}
    void FocusChanged(bool inside) override;

    void PlaceWindow();
    void Attach();

    HWND owner_;
    HWND parent_;
    Resolution resolution_;
    host::Placement placement_;
    bool visible_;
    bool enabled_ = true;
    shared::SilentContainer container_;
    shared::EmbeddedAmbient ambient_;
    shared::EmbeddedExtender extender_;
    std::optional<HostedControl> control_;
};

}  // namespace lumenkit::win32
