#pragma once

#include "frame/host/screen.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/metrics.h"

namespace lumenkit::memory {

/// A screen with 15 twips per pixel in both directions.
class Screen final : public host::Screen {
 public:
    explicit Screen(FaultPlan& faults) : faults_(faults) {}

    std::int16_t TwipsPerPixelX() const override {
        faults_.Call(u"Screen", u"TwipsPerPixelX");
        return twipsPerPixel;
    }
    std::int16_t TwipsPerPixelY() const override {
        faults_.Call(u"Screen", u"TwipsPerPixelY");
        return twipsPerPixel;
    }

 private:
    FaultPlan& faults_;
};

}  // namespace lumenkit::memory
