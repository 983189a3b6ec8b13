#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

/// A picture box with a border of two pixels on each side.
class PictureBox final : public BasicConstituent<host::PictureBox> {
 public:
    PictureBox(Elements& elements, const host::Design& design);

    float ScaleWidth() const override;
    float ScaleHeight() const override;
};

}  // namespace lumenkit::memory
