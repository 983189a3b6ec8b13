#pragma once

#include "frame/class_table.h"
#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"
#include "runtime/qt/control_site.h"
#include "runtime/qt/hosted_control.h"
#include "runtime/shared/embedded_site.h"

namespace lumenkit::qt {

/// A new control on another control or on a page, which is its container and ignores its
/// notifications.
class EmbeddedControl final : public BasicConstituent<host::EmbeddedControl>, private ControlSite {
 public:
    EmbeddedControl(Elements& elements, const host::Design& design, const ClassDescriptor& type);
    ~EmbeddedControl() override { Release(); }
    EmbeddedControl(const EmbeddedControl&) = delete;
    EmbeddedControl& operator=(const EmbeddedControl&) = delete;

    /// Moves and resizes the embedded control too.
    void Move(const host::Placement& placement) override;
    void SetVisible(bool visible) override;
    void Refresh() override;
    Object& Automation() override { return Inner().Automation(); }

    HostedControl& Inner() const { return static_cast<HostedControl&>(*Widget()); }

 private:
    // ControlSite
    host::Container& GetContainer() override { return container_; }
    host::Ambient& GetAmbient() override { return ambient_; }

    shared::SilentContainer container_;
    shared::EmbeddedAmbient ambient_;
};

}  // namespace lumenkit::qt
