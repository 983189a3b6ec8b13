// Takes the place of forms/file.cpp in programs that serve generated requests, which must not reach
// the disk. Forms are loaded from the samples and from the forms written in memory.
#pragma once

namespace lumenkit::testing {

/// Forgets the forms written in memory.
void RestoreForms();

}  // namespace lumenkit::testing
