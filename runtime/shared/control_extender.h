#pragma once

#include "frame/host/extender.h"

namespace lumenkit::shared {

/// The extender of a control on a form. `Control` is the runtime's HostedControl, which holds the
/// container's properties: Name, Tag, Place and IsShown with their setters.
template <typename Control>
class ControlExtender : public host::Extender {
 public:
    /// `control` must outlive the extender.
    explicit ControlExtender(Control& control) : control_(control) {}

 protected:
    Control& GetControl() const { return control_; }

 private:
    Text Name() const override { return control_.Name(); }
    Text Tag() const override { return control_.Tag(); }
    void SetTag(TextView tag) override { control_.SetTag(tag); }
    host::Placement Place() const override { return control_.Place(); }
    void Move(const host::Placement& place) override { control_.Move(place); }
    bool IsVisible() const override { return control_.IsShown(); }
    void SetVisible(bool visible) override { control_.SetShown(visible); }

    Control& control_;
};

}  // namespace lumenkit::shared
