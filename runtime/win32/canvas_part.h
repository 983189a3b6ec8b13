#pragma once

#include "runtime/win32/canvas.h"

namespace lumenkit::win32 {

/// Clips the drawing on a canvas to a box as long as the object exists.
class CanvasClip {
 public:
    CanvasClip(Canvas& canvas, const RECT& box) : canvas_(canvas) { canvas_.BeginClip(box); }
    ~CanvasClip() { canvas_.EndClip(); }
    CanvasClip(const CanvasClip&) = delete;
    CanvasClip& operator=(const CanvasClip&) = delete;

 private:
    Canvas& canvas_;
};

/// A part of a canvas as a canvas with its own origin: the upper left corner of the part. Nothing
/// is drawn outside the part.
class CanvasPart final : public Canvas {
 public:
    CanvasPart(Canvas& whole, const RECT& place)
        : whole_(whole), place_(place), clip_(whole, place) {}

    /// Fills the part; what was drawn before is covered.
    void Clear(Color paper) override { whole_.Fill(place_, paper); }
    void Print(const TextRun& run) override {
        TextRun placed = run;
        placed.at = {run.at.x + place_.left, run.at.y + place_.top};
        whole_.Print(placed);
    }
    void Fill(const RECT& box, Color color) override { whole_.Fill(Placed(box), color); }
    void FillFigure(Figure figure, const RECT& box, Color color) override {
        whole_.FillFigure(figure, Placed(box), color);
    }
    void BeginClip(const RECT& box) override { whole_.BeginClip(Placed(box)); }
    void EndClip() override { whole_.EndClip(); }

 private:
    RECT Placed(const RECT& box) const {
        return {box.left + place_.left, box.top + place_.top, box.right + place_.left,
                box.bottom + place_.top};
    }

    Canvas& whole_;
    RECT place_;
    CanvasClip clip_;
};

}  // namespace lumenkit::win32
