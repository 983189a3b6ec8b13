#pragma once

#include "frame/host/ambient.h"
#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"
#include "runtime/qt/hosted_control.h"

namespace lumenkit::qt {

/// A control on another control or on a page. The outer control or page is its container and
/// ignores its notifications.
class EmbeddedControl final : public BasicConstituent<host::EmbeddedControl> {
 public:
    EmbeddedControl(Constituents& owner, const host::Design& design, const ClassDescriptor& type);
    ~EmbeddedControl() override;
    EmbeddedControl(const EmbeddedControl&) = delete;
    EmbeddedControl& operator=(const EmbeddedControl&) = delete;

    /// Moves and resizes the embedded control too.
    void Move(const host::Placement& placement) override;
    void SetVisible(bool visible) override;
    void Refresh() override;
    Object& Automation() override { return Inner().Automation(); }

    HostedControl& Inner() const { return static_cast<HostedControl&>(*Widget()); }

 private:
    class Surroundings;

    std::unique_ptr<Surroundings> surroundings_;
};

}  // namespace lumenkit::qt
