#pragma once

#include "frame/host/application.h"
#include "runtime/memory/fault_plan.h"

namespace lumenkit::memory {

class Application final : public host::Application {
 public:
    explicit Application(FaultPlan& faults) : faults_(faults) {}

    /// Returns the name of the class table's library.
    Text ExeName() override {
        faults_.ReportingCall(u"Application", u"ExeName");
        return exeName_;
    }
    void SetExeName(TextView name) { exeName_ = name; }

 private:
    FaultPlan& faults_;
    Text exeName_;
};

}  // namespace lumenkit::memory
