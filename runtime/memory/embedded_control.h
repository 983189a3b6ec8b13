#pragma once

#include <memory>

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"
#include "runtime/memory/placed_control.h"

namespace lumenkit::memory {

/// A control that lies on another one or on a page. What it tells its container is not logged: the
/// control around it is its container, and that one does not listen.
class EmbeddedControl final : public BasicConstituent<host::EmbeddedControl> {
 public:
    EmbeddedControl(Constituents& owner, const host::Design& design, const ClassDescriptor& type,
                    bool userMode);

    /// The control itself is resized with it.
    void Move(const host::Placement& placement) override;
    void SetVisible(bool visible) override;
    void Refresh() override;
    Object& Automation() override;

    PlacedControl& Inner() { return inner_; }

 private:
    PlacedControl inner_;
};

}  // namespace lumenkit::memory
