#pragma once

#include <QPoint>
#include <QWidget>

#include "apps/lumenform/design/canvas/canvas.h"
#include "apps/lumenform/design/model/form_design.h"
#include "frame/text.h"

namespace lumenkit::testing {

/// A user of a canvas with mouse and keyboard. Points and distances are in pixels at 96 per inch,
/// so that a pixel is 15 twips. Points count from the upper left corner of the form's client area.
class CanvasUser {
 public:
    CanvasUser() = default;
    /// Design and canvas must outlive their user.
    CanvasUser(const lumenform::FormDesign& design, const lumenform::Canvas& canvas) {
        Use(design, canvas);
    }
    /// For a default-constructed user, before anything else.
    void Use(const lumenform::FormDesign& design, const lumenform::Canvas& canvas) {
        design_ = &design;
        canvas_ = &canvas;
    }

    QPoint MiddleOf(TextView name) const;
    /// Returns the middle of a handle. -1, 0 and 1 are the near edge, the middle and the far edge.
    QPoint HandleOf(TextView name, int across, int down) const;
    QPoint FormHandle(int across, int down) const;

    void Press(QPoint at, Qt::KeyboardModifiers held = {});
    void MoveTo(QPoint at, Qt::KeyboardModifiers held = {});
    void Release(QPoint at, Qt::KeyboardModifiers held = {});
    void Click(QPoint at, Qt::KeyboardModifiers held = {});
    /// Presses at `from`, moves to `from` + `by` in a few steps, and releases.
    void Drag(QPoint from, QPoint by, Qt::KeyboardModifiers held = {});
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {});

    /// Returns a point in pixels of the glass.
    QPoint OnGlass(QPoint onForm) const;

 private:
    const QWidget& WidgetOf(TextView name) const;
    QPoint OnForm(const QWidget& widget, QPoint at) const;

    const lumenform::FormDesign* design_ = nullptr;
    const lumenform::Canvas* canvas_ = nullptr;
};

}  // namespace lumenkit::testing
