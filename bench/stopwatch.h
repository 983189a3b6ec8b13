// The clock that benchmarks read.
#pragma once

namespace lumenkit::bench {

/// Seconds since some moment. On Linux of the processor: other programs on the machine count
/// little. On Windows of the wall, as much of the work of a window is done by other processes;
/// what takes shorter than another program's turn is seldom disturbed.
double SecondsNow();

/// A batch that is long enough for the clock.
extern const double secondsOfABatch;

}  // namespace lumenkit::bench
