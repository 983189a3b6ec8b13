// Tries a saved control: lets it load, lay out and draw itself without a display, and collects the
// errors that it reports to its user.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

/// An error that a control reports in a message box.
struct TrialError {
    enum class Step { Loading, Drawing };

    Step step = Step::Loading;
    Text property;  ///< the saved property that causes it; empty if no single one does
    /// For an error of drawing that is caused by the caption: where the part of the caption begins
    /// at which drawing fails, in UTF-16 units from 0. Otherwise 0.
    std::size_t offset = 0;
    std::int32_t number = 0;
    Text description;
    bool endsLoading = false;  ///< whether the control does not read the following properties

    friend bool operator==(const TrialError&, const TrialError&) = default;
};

/// Returns the errors that the control reports in design mode and in run mode, one for each
/// property and step. An error hides those that the control would report after it, so a property
/// that was found to be a cause counts as missing in further trials.
std::vector<TrialError> TryControl(const forms::Document& document, forms::Block& block,
                                   const ClassDescriptor& type);

}  // namespace lumenkit::check
