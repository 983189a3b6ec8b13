#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "frame/host/property_page_site.h"
#include "runtime/memory/fault_plan.h"

namespace lumenkit::memory {

/// Only the page sets the flag: showing, selecting and applying do not change it.
class PageSite final : public host::PropertyPageSite {
 public:
    explicit PageSite(FaultPlan& faults) : faults_(faults) {}

    bool Changed() const override {
        faults_.Call(u"PropertyPageSite", u"Changed");
        return changed_;
    }
    void SetChanged(bool changed) override {
        faults_.Call(u"PropertyPageSite", u"SetChanged");
        changed_ = changed;
    }

    // For tests: these do not count as calls of the contract.
    bool IsChanged() const { return changed_; }
    void Reset() { changed_ = false; }

 private:
    FaultPlan& faults_;
    bool changed_ = false;
};

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
