// Saves a control and finds out whether it could save everything. A control handles the errors of
// its own procedures: it shows them and ends the procedure, so that a save that failed looks like
// one that wrote fewer properties.
#pragma once

#include <optional>

#include "frame/control.h"
#include "frame/host/interaction.h"

namespace lumenkit::shared {

/// Passes the messages of one control on, and counts the errors that it reports.
class ReportCounter final : public host::Interaction {
 public:
    /// `shown` must outlive the object.
    explicit ReportCounter(host::Interaction& shown) : shown_(shown) {}

    void Beep() override { shown_.Beep(); }
    void MsgBox(TextView message, host::MessageStyle style, std::optional<TextView> title) override;

    int Reports() const { return reports_; }

 private:
    host::Interaction& shown_;
    int reports_ = 0;
};

/// Runs UserControl_WriteProperties. Raises the first error that `bag` raised meanwhile. Raises
/// SavingFailed if the control reported another error, so that properties are missing from the bag
/// or have wrong values. `reports` counts the reports of the control.
void SaveControl(Control& control, host::PropertyBag& bag, const ReportCounter& reports);

}  // namespace lumenkit::shared
