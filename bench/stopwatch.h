// The clock that benchmarks read.
#pragma once

namespace lumenkit::bench {

/// Seconds since an unspecified moment. On Linux this is processor time, which other programs
/// affect little. On Windows it is wall time, because other processes do much of the work of a
/// window. Work that is shorter than the time slice of another program is seldom disturbed.
double SecondsNow();

/// The length of a batch that the clock measures well.
extern const double secondsOfABatch;

}  // namespace lumenkit::bench
