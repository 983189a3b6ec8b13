#pragma once

#include <QMenuBar>
#include <QPoint>
#include <QRect>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// The places of the form, its menus and its controls in pixels of the desk. A null container is
/// the form itself.
class FormMap {
 public:
    /// Both must outlive the map.
    FormMap(const FormDesign& design, const QWidget& desk);

    /// Called when the design has a new view.
    void Update();

    QRect ClientRect() const;
    QRect RectOf(const LiveControl& control) const;
    /// The origin of places in the container.
    QPoint OriginOf(const LiveControl* container) const;
    /// The area of the container for its controls.
    QRect RoomOf(const LiveControl* container) const;

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
    LiveControl* ControlAt(QPoint at, const std::vector<LiveControl*>& without) const;
    LiveControl* Find(const QWidget* widget) const;

    const FormDesign& design_;
    const QWidget& desk_;
    std::unordered_map<const QWidget*, LiveControl*> controls_;
};

}  // namespace lumenkit::lumenform
