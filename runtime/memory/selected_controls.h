#pragma once

#include <vector>

#include "frame/host/property_page_site.h"
#include "runtime/memory/fault_plan.h"

namespace lumenkit::memory {

class SelectedControls final : public host::SelectedControls {
 public:
    explicit SelectedControls(FaultPlan& faults) : faults_(faults) {}

    std::int16_t Count() const override;
    ObjectRef Item(std::int16_t index) override;

    void Assign(std::vector<ObjectRef> controls) { controls_ = std::move(controls); }

 private:
    FaultPlan& faults_;
    std::vector<ObjectRef> controls_;
};

}  // namespace lumenkit::memory
