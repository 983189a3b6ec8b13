#include "bench/require.h"

#include <cstdio>
#include <cstdlib>

namespace lumenkit::bench {

// At once: what is half set up need not be taken down.
void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", what);
        std::fflush(nullptr);
        std::_Exit(1);
    }
}

}  // namespace lumenkit::bench
