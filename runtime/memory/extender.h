#pragma once

#include <cstdint>
#include <span>

#include "frame/host/extender.h"

namespace lumenkit::memory {

class HostedControl;

/// The extender of a placed control. Its calls count for the planned faults of the form.
class Extender final : public host::Extender {
 public:
    explicit Extender(HostedControl& control) : control_(control) {}

    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

    /// Sets whether the container provides Tag.
    void SupportTag(bool supported) { supportsTag_ = supported; }

 private:
    Text Name() const override;
    bool HasTag() const override { return supportsTag_; }
    Text Tag() const override;
    void SetTag(TextView tag) override;
    host::Placement Place() const override;
    void Move(const host::Placement& place) override;
    bool IsVisible() const override;
    void SetVisible(bool visible) override;

    HostedControl& control_;
    bool supportsTag_ = true;
};

}  // namespace lumenkit::memory
