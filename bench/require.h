#pragma once

namespace lumenkit::bench {

/// Ends the program with a message, and with 1, unless `holds`: figures of unequal work are none.
void Require(bool holds, const char* what);

}  // namespace lumenkit::bench
