#pragma once

#include <memory>
#include <vector>

#include "apps/lumenform/design/properties/library_defaults.h"
#include "apps/lumenform/design/properties/object_property.h"
#include "frame/automation/runtime_enumerations.h"
#include "runtime/qt/font.h"
#include "runtime/qt/hosted_control.h"

namespace lumenkit::lumenform {

/// The properties of a control of this library that a designer can see, from its interface table:
/// without hidden, write-only and indexed ones. `enumerations` may be null. `containerFont` is the
/// default of the property Font. Control and defaults must outlive the properties.
std::vector<ObjectProperty> LibraryProperties(qt::HostedControl& control,
                                              const EnumerationLibrary* enumerations,
                                              LibraryDefaults& defaults,
                                              const std::shared_ptr<qt::Font>& containerFont);

}  // namespace lumenkit::lumenform
