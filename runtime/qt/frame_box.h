#pragma once

#include <cstdint>

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

namespace lumenkit::qt {

class FrameWidget;

/// A frame, initially with a fixed single border. Without a border the caption is not shown either.
/// Constituents inside the frame are placed relative to its outer corner.
class FrameBox final : public BasicCaptioned<host::Frame> {
 public:
    FrameBox(Elements& elements, const host::CaptionDesign& design);
    ~FrameBox() override { Release(); }
    FrameBox(const FrameBox&) = delete;
    FrameBox& operator=(const FrameBox&) = delete;

    std::int16_t BorderStyle() const override { return borderStyle_; }
    void SetBorderStyle(std::int16_t style) override;

    /// The name is that of the control around the frame, and is used if no caption is shown.
    void Describe(const QString& name, const QString& hint) override;

 private:
    FrameWidget& Box() const;
    void ShowCaption() override;

    std::int16_t borderStyle_ = 1;
};

}  // namespace lumenkit::qt
