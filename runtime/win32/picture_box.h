#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/win32/basic_constituent.h"

namespace lumenkit::win32 {

/// A window with a sunken border and the background colour of buttons. The wheel over the box
/// scrolls the scroll bars in it: with Shift, or turned sideways, the horizontal one.
class PictureBox final : public BasicConstituent<host::PictureBox> {
 public:
    PictureBox(const Elements& elements, const host::Design& design);

    float ScaleWidth() const override;
    float ScaleHeight() const override;

 protected:
    void DrawContent(Canvas& canvas, SIZE /*size*/) const override {
        canvas.Clear(Color::ButtonFace);
    }
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    RECT Inside() const;
};

}  // namespace lumenkit::win32
