#pragma once

#include <string>

#include "frame/text.h"

namespace lumenkit::testing {

/// Returns "error 6 in DisplayCaption" if `message` is exactly the report that the module
/// `fileName` shows for one of the runtime's own errors. Otherwise returns the whole message.
std::string BriefReport(TextView fileName, TextView message);

}  // namespace lumenkit::testing
