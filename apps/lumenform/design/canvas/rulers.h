#pragma once

#include <QPointF>
#include <QWidget>
#include <optional>

#include "apps/lumenform/design/canvas/glass.h"
#include "apps/lumenform/design/canvas/ruler.h"
#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// The rulers along the upper and left edges of the canvas, in the units of the form.
class Rulers {
 public:
    /// All must outlive the rulers. The canvas is their parent.
    Rulers(const FormDesign& design, const Glass& glass, QWidget& viewport, QWidget& canvas);

    void SetShown(bool shown);
    bool IsShown() const { return isShown_; }
    int Thickness() const { return upper_->Thickness(); }
    const Ruler& Upper() const { return *upper_; }
    const Ruler& Left() const { return *left_; }

    /// Called when the viewport has another place or size.
    void Arrange();
    /// Called when the form has another place or scale, or the selection has changed.
    void Follow();
    /// Marks the place of the mouse, in twips from the corner of the form.
    void FollowPointer(std::optional<QPointF> twips);

 private:
    const FormDesign& design_;
    const Glass& glass_;
    QWidget& viewport_;
    Ruler* upper_;
    Ruler* left_;
    QWidget* corner_;
    bool isShown_ = false;
};

}  // namespace lumenkit::lumenform
