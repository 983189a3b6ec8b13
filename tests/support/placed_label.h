// A label on the memory runtime, with accessors for tests.
#pragma once

#include <string>
#include <vector>

#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "tests/support/label_scene.h"
#include "vlabel/vlabel.h"

namespace lumenkit::testing {

class PlacedLabel {
 public:
    /// Creates the control without starting it: see HostedControl::StartNew and StartSaved.
    explicit PlacedLabel(const memory::Placing& placing = {});

    VLabel& Label() { return static_cast<VLabel&>(placed_.GetControl()); }
    VLabel* operator->() { return &Label(); }
    memory::HostedControl& Placed() { return placed_; }
    memory::Form& Form() { return form_; }
    memory::FaultPlan& Faults() { return form_.Faults(); }
    memory::Surface& Surface() { return placed_.Drawing(); }

    /// Hides the control and applies the whole scene to it, so that nothing is repainted.
    void SetUp(const LabelScene& scene);
    /// Shows the control and makes it paint.
    void Paint();
    /// Returns the contents of the surface, the control's state and the reports in the log. Empties
    /// the log.
    LabelPicture Picture();

    std::vector<std::string> TakeLog();

    /// Whether `action` calls `member` ("Surface.Size") at least `times` times. The call with that
    /// number fails.
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
    memory::HostedControl placed_;
};

/// Calls SetUp, Paint and Picture.
LabelPicture Draw(PlacedLabel& label, const LabelScene& scene);

}  // namespace lumenkit::testing
