// A row of the table of ratios: what is compared, and the result.
#pragma once

#include <functional>
#include <string>

namespace lumenkit::bench {

/// One side of a ratio. A round is the shortest work worth timing, such as one pass over all
/// captions. `units` is the number of units (calls or text units) in a round.
struct Side {
    std::function<void()> round;
    double units = 1;
    std::function<void()> prepare = {};  ///< runs before each batch of rounds; is not timed
};

enum class Ratio {
    TimesFaster,  ///< the time of the peer divided by the time of lumenkit
    TimesSlower,  ///< the time of lumenkit divided by the time of the peer
};

/// One row of the table. Times are per unit.
struct Comparison {
    std::string what;  ///< the name of the row
    std::string unit;  ///< of the times
    Side ours;         ///< the code of lumenkit
    Side other;        ///< the code that it is compared with
    Ratio ratio;
    std::string aim;  ///< the ratio to reach
};

/// The result of a comparison: medians, and the quartiles of the ratio. Times are in seconds per
/// unit.
struct Outcome {
    double ours = 0;
    double other = 0;
    double ratio = 0;
    double low = 0;
    double high = 0;
};

}  // namespace lumenkit::bench
