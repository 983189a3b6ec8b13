#pragma once

#include <string>

#include "apps/lumenkit/check/finding.h"

namespace lumenkit::check {

/// "lblTitle.Caption", or what there is of it.
std::string SubjectOf(const Finding& finding);

/// The subject, the message and the suggestion, without the place.
std::string WholeMessage(const Finding& finding);

}  // namespace lumenkit::check
