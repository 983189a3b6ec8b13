#pragma once

#include <optional>

#include "frame/host/interaction.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/log.h"

namespace lumenkit::memory {

/// Works without a user: beeps and messages are logged, and messages are dismissed at once.
class Interaction final : public host::Interaction {
 public:
    Interaction(FaultPlan& faults, Log& log) : faults_(faults), log_(log) {}

    void Beep() override;
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

 private:
    FaultPlan& faults_;
    Log& log_;
};

}  // namespace lumenkit::memory
