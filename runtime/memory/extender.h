#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "frame/automation/object.h"
#include "frame/text.h"

namespace lumenkit::memory {

class PlacedControl;

/// A control as its container shows it to programs: Name (read-only), Tag, Left, Top, Width,
/// Height, Visible, and Move with one to four arguments. Lengths are in twips.
class Extender final : public Object {
 public:
    explicit Extender(PlacedControl& control) : control_(control) {}

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

    /// Whether the container has a Tag. Without one, Tag raises 438 as any unknown member.
    void SupportTag(bool supported) { supportsTag_ = supported; }

 private:
    PlacedControl& control_;
    bool supportsTag_ = true;
};

}  // namespace lumenkit::memory
