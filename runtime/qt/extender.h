#pragma once

#include "frame/host/extender.h"

namespace lumenkit::qt {

class HostedControl;

/// The extender of a control on a form.
class Extender final : public host::Extender {
 public:
    explicit Extender(HostedControl& control) : control_(control) {}

 private:
    Text Name() const override;
    Text Tag() const override;
    void SetTag(TextView tag) override;
    host::Placement Place() const override;
    void Move(const host::Placement& place) override;
    bool IsVisible() const override;
    void SetVisible(bool visible) override;

    HostedControl& control_;
};

}  // namespace lumenkit::qt
