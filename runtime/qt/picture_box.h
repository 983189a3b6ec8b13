#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

namespace lumenkit::qt {

/// A picture box whose border is the frame of the style. Constituents inside it are clipped at the
/// border.
class PictureBox final : public BasicConstituent<host::PictureBox> {
 public:
    PictureBox(Elements& elements, const host::Design& design);
    ~PictureBox() override { Release(); }
    PictureBox(const PictureBox&) = delete;
    PictureBox& operator=(const PictureBox&) = delete;

    void Move(const host::Placement& placement) override;
    float ScaleWidth() const override;
    float ScaleHeight() const override;

    QWidget& Inside() const override { return *inside_; }

 private:
    int Border() const;
    void LayOut();

    QPointer<QWidget> inside_;
};

}  // namespace lumenkit::qt
