#pragma once

#include "apps/lumenform/design/canvas/edges.h"
#include "apps/lumenform/design/canvas/gesture.h"
#include "apps/lumenform/design/canvas/resize_form.h"

namespace lumenkit::lumenform {

/// Sizes the form by its right and bottom edges.
class FormSizeGesture final : public Gesture {
 public:
    FormSizeGesture(const Ground& ground, Edges edges, QPoint pressedAt);

    void DragTo(const Pointer& pointer) override;
    void Finish() override;
    void Cancel() override;
    std::optional<host::Placement> Place() const override { return place_; }

 private:
    void Show(const host::Placement& place) const;

    Ground ground_;
    Edges edges_;
    QPoint pressedAt_;
    host::Placement former_;  // of the client area, from 0, 0
    host::Placement place_;
};

}  // namespace lumenkit::lumenform
