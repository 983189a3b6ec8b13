#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

namespace lumenkit::qt {

/// A picture box whose border is the frame of the style. Constituents inside it are clipped at the
/// border. The wheel over the box scrolls the scroll bars in it: with Shift, or turned sideways,
/// the horizontal one.
class PictureBox final : public BasicConstituent<host::PictureBox> {
 public:
    PictureBox(Elements& elements, const host::Design& design);
    ~PictureBox() override { Release(); }
    PictureBox(const PictureBox&) = delete;
    PictureBox& operator=(const PictureBox&) = delete;

    float ScaleWidth() const override;
    float ScaleHeight() const override;

    QWidget& Inside() const override;

 private:
    int Border() const;
};

}  // namespace lumenkit::qt
