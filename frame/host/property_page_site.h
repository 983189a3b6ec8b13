#pragma once

#include <cstdint>

#include "frame/automation/value.h"

namespace lumenkit::host {

/// The controls selected in the designer while a property page is shown.
class SelectedControls {
 public:
    virtual ~SelectedControls() = default;

    virtual std::int16_t Count() const = 0;
    /// Returns the late-bound control at `index`, from 0; never null. Raises 9 for an index outside
    /// the selection.
    virtual ObjectRef Item(std::int16_t index) = 0;
};

/// The site of a property page in its host.
class PropertyPageSite {
 public:
    virtual ~PropertyPageSite() = default;

    /// Whether the page has changes that are not yet applied; the host then offers to apply them.
    virtual bool Changed() const = 0;
    virtual void SetChanged(bool changed) = 0;
};

}  // namespace lumenkit::host
