#pragma once

#include <vector>

#include "bench/ratio_table.h"

namespace lumenkit::bench {

/// The result of a comparison: medians, and the quartiles of the ratio. Times are in seconds per
/// unit.
struct Outcome {
    double ours = 0;
    double other = 0;
    double ratio = 0;
    double low = 0;
    double high = 0;
};

/// Measures both sides of a comparison in turn. The comparison must outlive this object.
class Pairs {
 public:
    /// Enough for a median and quartiles.
    static constexpr int fewest = 41;

    /// Warms both sides up.
    explicit Pairs(const Comparison& comparison);

    void MeasureOne();
    /// At least one pair must have been measured.
    Outcome Result() const;

 private:
    const Comparison& comparison_;
    int ourRounds_;
    int otherRounds_;
    bool oursFirst_ = true;
    std::vector<double> ours_;
    std::vector<double> others_;
    std::vector<double> ratios_;
};

}  // namespace lumenkit::bench
