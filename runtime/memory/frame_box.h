#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/memory/basic_constituent.h"

namespace lumenkit::memory {

/// Initially has a fixed single border.
class FrameBox final : public BasicCaptioned<host::Frame> {
 public:
    FrameBox(Elements& elements, const host::CaptionDesign& design);

    std::int16_t BorderStyle() const override;
    void SetBorderStyle(std::int16_t style) override;

    PropertyList Properties() const override;

 private:
    std::int16_t borderStyle_ = 1;
};

}  // namespace lumenkit::memory
