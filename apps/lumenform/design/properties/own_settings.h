#pragma once

#include <vector>

#include "apps/lumenform/design/properties/setting.h"
#include "frame/automation/runtime_enumerations.h"
#include "runtime/qt/control_widget.h"

namespace lumenkit::form {

/// The properties of one of our controls that a designer can see, as its interface table has them:
/// without hidden, write-only and indexed ones. `enumerations` may be null. The control must
/// outlive the settings.
std::vector<Setting> OwnSettings(qt::ControlWidget& control,
                                 const EnumerationLibrary* enumerations);

}  // namespace lumenkit::form
