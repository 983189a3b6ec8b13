#pragma once

#include <memory>

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"
#include "runtime/memory/hosted_control.h"

namespace lumenkit::memory {

/// A control inside another control or a page. Its notifications are not logged: its container is
/// the outer control, which ignores them.
class EmbeddedControl final : public BasicConstituent<host::EmbeddedControl> {
 public:
    EmbeddedControl(Elements& elements, const host::Design& design, const ClassDescriptor& type);

    /// Resizes the control too.
    void Move(const host::Placement& placement) override;
    void SetVisible(bool visible) override;
    void Refresh() override;
    Object& Automation() override;

    HostedControl& Inner() { return inner_; }

 private:
    HostedControl inner_;
};

}  // namespace lumenkit::memory
