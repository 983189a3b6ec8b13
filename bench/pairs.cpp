#include "bench/pairs.h"

#include <algorithm>
#include <utility>

#include "bench/stopwatch.h"

namespace lumenkit::bench {

namespace {

double TimeOf(const Side& side, int rounds) {
    if (side.prepare) {
        side.prepare();
    }
    const double start = SecondsNow();
    for (int i = 0; i < rounds; ++i) {
        side.round();
    }
    return SecondsNow() - start;
}

// The number of rounds in a batch that is long enough for the clock. Also warms the side up.
int RoundsOfABatch(const Side& side) {
    int rounds = 1;
    while (TimeOf(side, rounds) < secondsOfABatch) {
        rounds *= 2;
    }
    return rounds;
}

double TimeOfAUnit(const Side& side, int rounds) {
    return TimeOf(side, rounds) / rounds / side.units;
}

// The lower quartile, median or upper quartile of `values`, for `quarters` from 1 to 3.
double Quartile(std::vector<double> values, std::size_t quarters) {
    const auto at = values.begin() + static_cast<std::ptrdiff_t>(values.size() * quarters / 4);
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

double Median(std::vector<double> values) {
    return Quartile(std::move(values), 2);
}

}  // namespace

Pairs::Pairs(const Comparison& comparison)
    : comparison_(comparison),
      ourRounds_(RoundsOfABatch(comparison.ours)),
      otherRounds_(RoundsOfABatch(comparison.other)) {}

void Pairs::MeasureOne() {
    const auto measureOurs = [&] { ours_.push_back(TimeOfAUnit(comparison_.ours, ourRounds_)); };
    const auto measureOther = [&] {
        others_.push_back(TimeOfAUnit(comparison_.other, otherRounds_));
    };
    if (oursFirst_) {
        measureOurs();
        measureOther();
    } else {
        measureOther();
        measureOurs();
    }
    oursFirst_ = !oursFirst_;
    ratios_.push_back(comparison_.ratio == Ratio::TimesFaster ? others_.back() / ours_.back()
                                                              : ours_.back() / others_.back());
}

Outcome Pairs::Result() const {
    return {.ours = Median(ours_),
            .other = Median(others_),
            .ratio = Median(ratios_),
            .low = Quartile(ratios_, 1),
            .high = Quartile(ratios_, 3)};
}

}  // namespace lumenkit::bench
