#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

namespace lumenkit::qt {

class FrameWidget;

/// A frame, initially with a fixed single border. Without a border the caption is not shown either.
/// Constituents inside the frame are placed relative to its outer corner.
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
