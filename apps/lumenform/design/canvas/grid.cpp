#include "apps/lumenform/design/canvas/grid.h"

#include <cmath>

namespace lumenkit::lumenform {

float Grid::Nearest(float twips) const {
    return std::round(twips / step) * step;
}

}  // namespace lumenkit::lumenform
