// The default values of the properties of this library's controls.
#pragma once

#include <map>
#include <optional>
#include <set>

#include "apps/lumenform/design/properties/control_messages.h"
#include "frame/automation/value.h"
#include "frame/text.h"
#include "runtime/qt/hosted_control.h"

namespace lumenkit::lumenform {

/// Learns the defaults of a class from the way its controls save themselves.
class LibraryDefaults {
 public:
    /// `messages` must outlive the object.
    explicit LibraryDefaults(ControlMessages& messages) : messages_(messages) {}

    /// Returns the default of a property of the control's class. Nullopt for a property that is not
    /// saved, and for all of them if the control cannot be saved now.
    std::optional<Value> Find(qt::HostedControl& control, TextView property);

    /// Returns the names of the properties that controls of the class save, in lower case. Empty if
    /// the control cannot be saved now.
    std::set<Text> NamesOf(qt::HostedControl& control);

 private:
    using ByName = std::map<Text, Value>;  // in lower case

    const ByName& Of(qt::HostedControl& control);

    ControlMessages& messages_;
    std::map<const ClassDescriptor*, ByName> classes_;
};

}  // namespace lumenkit::lumenform
