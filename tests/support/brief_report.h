#pragma once

#include <string>

#include "frame/text.h"

namespace lumenkit::testing {

/// An error report in a few words, "error 6 in DisplayCaption", where `message` is just what the
/// module `fileName` shows for one of the runtime's own errors; otherwise the whole message.
std::string BriefReport(TextView fileName, TextView message);

}  // namespace lumenkit::testing
