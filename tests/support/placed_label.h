// A label on the memory runtime, with what tests look at.
#pragma once

#include <string>
#include <vector>

#include "runtime/memory/form.h"
#include "runtime/memory/placed_control.h"
#include "tests/support/label_scene.h"
#include "vlabel/vlabel.h"

namespace lumenkit::testing {

class PlacedLabel {
 public:
    /// The control is created, not started yet: see PlacedControl::StartNew and StartSaved.
    explicit PlacedLabel(const memory::Placing& placing = {});

    VLabel& Label() { return static_cast<VLabel&>(placed_.GetControl()); }
    VLabel* operator->() { return &Label(); }
    memory::PlacedControl& Placed() { return placed_; }
    memory::Form& Form() { return form_; }
    memory::FaultPlan& Faults() { return form_.Faults(); }
    memory::Surface& Surface() { return placed_.Drawing(); }

    /// Gives the control all of the scene, without a repaint. It is hidden then.
    void SetUp(const LabelScene& scene);
    /// Shows the control and has it paint.
    void Paint();
    /// What is on the surface now, and what the control and the log say. Empties the log.
    LabelPicture Picture();

    std::vector<std::string> TakeLog();

    /// Whether `action` calls `member` ("Surface.Size") at least `times` times. The call that
    /// answers it fails.
    template <typename Action>
    bool Uses(TextView member, int times, Action&& action) {
        Faults().FailCall(member, times, ErrorNumber::InternalError);
        action();
        const bool used = !Faults().IsArmed();
        Faults().Clear();
        return used;
    }

 private:
    memory::Form form_;
    memory::PlacedControl placed_;
};

/// SetUp, Paint and Picture in one.
LabelPicture Draw(PlacedLabel& label, const LabelScene& scene);

}  // namespace lumenkit::testing
