#pragma once

#include <vector>

#include "apps/lumenform/design/canvas/gesture.h"

namespace lumenkit::form {

/// Selects what the rectangle touches that is drawn over a container.
class BandGesture final : public Gesture {
 public:
    /// `adds`: to what is selected already.
    BandGesture(const Ground& ground, const LiveControl* container, QPoint pressedAt, bool adds);

    void DragTo(QPoint at, bool snaps) override;
    void Finish() override;
    QRect Band() const override { return band_; }

 private:
    Ground ground_;
    const LiveControl* container_;
    QPoint pressedAt_;
    bool adds_;
    QRect band_;
};

}  // namespace lumenkit::form
