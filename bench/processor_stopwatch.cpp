#include <ctime>

#include "bench/stopwatch.h"

namespace lumenkit::bench {

const double secondsOfABatch = 0.004;

double SecondsNow() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

}  // namespace lumenkit::bench
