// Stands in for forms/file.cpp where requests are generated, which must not reach the disk: forms
// are loaded from the samples and from what was written in memory.
#pragma once

namespace lumenkit::testing {

/// Forgets what was written.
void RestoreForms();

}  // namespace lumenkit::testing
