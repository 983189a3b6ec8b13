#pragma once

#include "frame/host/property_bag.h"
#include "runtime/memory/fault_plan.h"

namespace lumenkit::memory {

/// Wraps a property bag: counts its calls and makes them fail as planned.
class CountedBag final : public host::PropertyBag {
 public:
    CountedBag(FaultPlan& faults, host::PropertyBag& bag) : faults_(faults), bag_(bag) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override {
        faults_.Call(u"PropertyBag", u"ReadProperty");
        return bag_.ReadProperty(name, defaultValue);
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        faults_.Call(u"PropertyBag", u"WriteProperty");
        bag_.WriteProperty(name, value, defaultValue);
    }

 private:
    FaultPlan& faults_;
    host::PropertyBag& bag_;
};

}  // namespace lumenkit::memory
