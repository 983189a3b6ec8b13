#pragma once

#include <vector>

#include "bench/comparison.h"

namespace lumenkit::bench {

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
