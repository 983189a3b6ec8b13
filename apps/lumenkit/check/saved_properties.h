// What each control reads when it is loaded and writes when it is saved, learnt from the control.
#pragma once

#include <vector>

#include "frame/automation/value.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

struct SavedProperty {
    Text name;
    Value defaultValue;  ///< what counts where nothing is saved
};

/// Each in the order in which the control asks for them.
struct SavedProperties {
    std::vector<SavedProperty> read;
    std::vector<SavedProperty> written;
};

/// Valid for the life of the program.
const SavedProperties& PropertiesOf(const ClassDescriptor& type);

/// The one with this name, without regard to case; null when there is none.
const SavedProperty* Find(const std::vector<SavedProperty>& properties, TextView name);

}  // namespace lumenkit::check
