#pragma once

#include <QMenuBar>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "apps/lumenform/design/canvas/zoom.h"
#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// The places of the form, its menus and its controls in pixels of the desk, at any zoom. A null
/// container is the form itself.
class FormMap {
 public:
    /// Both must outlive the map.
    FormMap(const FormDesign& design, const Zoom& zoom);

    /// Called when the design has a new view.
    void Update();

    QRect ClientRect() const;
    QRect RectOf(const LiveControl& control) const;
    /// The area that a control would cover at a place in the container.
    QRect RectOf(const host::Placement& place, const LiveControl* container) const;
    /// The area of the container for its controls.
    QRect RoomOf(const LiveControl* container) const;

    /// Converts a point to twips in the container.
    QPointF TwipsAt(QPoint at, const LiveControl* container) const;
    /// Converts a distance to twips.
    QPointF ToTwips(QPoint distance) const;
    /// Converts a point of a control to pixels of its widget.
    QPoint InWidget(const LiveControl& control, QPoint at) const;
    /// The scale at which the form is shown.
    const Zoom& GetZoom() const { return zoom_; }

    /// Returns the topmost control at a point, or null.
    LiveControl* ControlAt(QPoint at) const;
    /// Returns the innermost container at a point, as if the controls in `without` and those in
    /// them were not there.
    LiveControl* ContainerAt(QPoint at, const std::vector<LiveControl*>& without = {}) const;
    /// Returns the direct children of the container that intersect the rectangle.
    std::vector<LiveControl*> Touched(const LiveControl* container, const QRect& area) const;

    /// Returns the menu whose title in the menu bar is at a point, or null.
    forms::Block* MenuAt(QPoint at) const;
    /// Returns the place of the title of a menu, or of the menu in the menu bar that contains it.
    /// Empty if it is not there.
    QRect RectOfMenu(const forms::Block& menu) const;

 private:
    const QMenuBar* Bar() const;
    QPoint OriginOf(const QWidget& widget) const;
    QPoint OriginOf(const LiveControl* container) const;
    LiveControl* ControlAt(QPoint at, const std::vector<LiveControl*>& without) const;
    LiveControl* Find(const QWidget* widget) const;

    const FormDesign& design_;
    const Zoom& zoom_;
    std::unordered_map<const QWidget*, LiveControl*> controls_;
};

}  // namespace lumenkit::lumenform
