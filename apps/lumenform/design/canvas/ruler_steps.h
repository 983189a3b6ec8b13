#pragma once

#include <functional>

namespace lumenkit::lumenform {

/// The distances between the marks of a ruler.
struct RulerSteps {
    double labels = 1;  ///< units between two labels: 1, 2 or 5 times a power of ten
    int parts = 1;      ///< the parts into which ticks divide that distance

    /// The digits behind the point that a label needs.
    int Decimals() const;

    friend bool operator==(const RulerSteps&, const RulerSteps&) = default;
};

/// Returns the closest steps at which no label reaches the next one and ticks can be told apart.
/// `room` returns the pixels that a label takes at a distance of labels.
RulerSteps RulerStepsFor(double pixelsPerUnit,
                         const std::function<double(const RulerSteps&)>& room);

}  // namespace lumenkit::lumenform
