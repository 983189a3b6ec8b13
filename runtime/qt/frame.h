#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

namespace lumenkit::qt {

class FrameWidget;

/// Has a fixed single border at first; without a border its caption is not seen either. What lies
/// in it is placed from its outer corner.
class Frame final : public BasicCaptioned<host::Frame> {
 public:
    Frame(Constituents& owner, const host::CaptionDesign& design);
    ~Frame() override { Release(); }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    std::int16_t BorderStyle() const override { return borderStyle_; }
    void SetBorderStyle(std::int16_t style) override;

 private:
    FrameWidget& Box() const;
    void ShowCaption() override;

    std::int16_t borderStyle_ = 1;
};

}  // namespace lumenkit::qt
