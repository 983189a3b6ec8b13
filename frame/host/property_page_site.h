#pragma once

#include <cstdint>

#include "frame/automation/object.h"

namespace lumenkit::host {

/// The controls that are selected in the designer while a property page is shown.
class SelectedControls {
 public:
    virtual ~SelectedControls() = default;

    virtual std::int16_t Count() const = 0;
    /// The control at `index`, from 0, late-bound; never nothing. Raises 9 outside 0 to Count - 1.
    virtual ObjectRef Item(std::int16_t index) = 0;
};

/// What shows a property page.
class PropertyPageSite {
 public:
    virtual ~PropertyPageSite() = default;

    /// Whether the page holds what has not been applied; the host offers to apply it then.
    virtual bool Changed() const = 0;
    virtual void SetChanged(bool changed) = 0;
};

}  // namespace lumenkit::host
