#include <chrono>

#include "bench/stopwatch.h"

namespace lumenkit::bench {

const double secondsOfABatch = 0.001;

double SecondsNow() {
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    return now.count();
}

}  // namespace lumenkit::bench
