#include "bench/require.h"

#include <cstdio>
#include <cstdlib>

namespace lumenkit::bench {

// Ends at once: destructors of a half-built setup need not run.
void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::fflush(nullptr);
        std::_Exit(1);
    }
}

}  // namespace lumenkit::bench
