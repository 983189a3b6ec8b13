#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "frame/automation/object.h"
#include "frame/text.h"

namespace lumenkit::qt {

class ControlWidget;

/// A control as its container shows it to programs: Name (read-only), Tag, Left, Top, Width,
/// Height, Visible, and Move with one to four arguments. Lengths are in twips.
class Extender final : public Object {
 public:
    explicit Extender(ControlWidget& control) : control_(control) {}

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;

 private:
    ControlWidget& control_;
};

}  // namespace lumenkit::qt
