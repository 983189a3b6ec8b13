// The properties that each control reads when it is loaded and writes when it is saved, as reported
// by the control.
#pragma once

#include <vector>

#include "frame/automation/value.h"
#include "frame/class_table.h"
#include "frame/text.h"

namespace lumenkit::check {

struct SavedProperty {
    Text name;
    Value defaultValue;  ///< used if nothing is saved
};

/// Both lists are in the order of the control's calls.
struct SavedProperties {
    std::vector<SavedProperty> read;
    std::vector<SavedProperty> written;
};

/// The reference stays valid until the program ends. May be called from any thread.
const SavedProperties& PropertiesOf(const ClassDescriptor& type);

/// Finds a property by name, ignoring case. Returns null if there is none.
const SavedProperty* Find(const std::vector<SavedProperty>& properties, TextView name);

}  // namespace lumenkit::check
