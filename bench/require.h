#pragma once

namespace lumenkit::bench {

/// Ends the program with a message and status 1 unless `holds`. A ratio of unequal work has no
/// meaning.
void Require(bool holds, const char* what);

}  // namespace lumenkit::bench
