#pragma once

#include <vector>

#include "apps/lumenform/design/canvas/gesture.h"

namespace lumenkit::lumenform {

/// Selects the controls of a container that a dragged rectangle touches.
class BandGesture final : public Gesture {
 public:
    /// With `adds`, keeps the present selection.
    BandGesture(const Ground& ground, const LiveControl* container, QPoint pressedAt, bool adds);

    void DragTo(const Pointer& pointer) override;
    void Finish() override;
    QRect Band() const override { return band_; }

 private:
    Ground ground_;
    const LiveControl* container_;
    QPoint pressedAt_;
    bool adds_;
    QRect band_;
};

}  // namespace lumenkit::lumenform
