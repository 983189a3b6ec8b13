#pragma once

#include <QPainter>
#include <QPoint>
#include <QRect>
#include <optional>

#include "apps/lumenform/design/canvas/form_map.h"
#include "apps/lumenform/design/canvas/grid.h"
#include "apps/lumenform/design/model/form_design.h"
#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// The objects that gestures work on. All must outlive the gestures, except for the view: gestures
/// end with it.
struct Ground {
    FormDesign& design;
    const FormMap& map;
    const Grid& grid;
};

/// The mouse during a drag.
struct Pointer {
    QPoint at;
    bool snaps = true;            ///< the dragged edges stop at the lines of the grid
    bool guides = true;           ///< they stop at the edges of other controls
    bool keepsContainer = false;  ///< the dragged controls stay in their container
};

/// A mouse action from the press to the release. Points are in pixels of the desk.
class Gesture {
 public:
    Gesture() = default;
    virtual ~Gesture() = default;
    Gesture(const Gesture&) = delete;
    Gesture& operator=(const Gesture&) = delete;

    /// Called when the mouse has moved.
    virtual void DragTo(const Pointer& pointer) = 0;
    /// Called when the button is released. Throws as FormDesign does.
    virtual void Finish() = 0;
    /// Restores the former state.
    virtual void Cancel() {}

    /// The place to show during the drag, in twips within the container.
    virtual std::optional<host::Placement> Place() const { return std::nullopt; }
    /// The rectangle to draw during the drag; may be empty.
    virtual QRect Band() const { return {}; }
    /// The rectangle that Paint changes; may be empty.
    virtual QRect Painted() const { return {}; }
    /// Paints over the form during the drag.
    virtual void Paint(QPainter& /*painter*/, const QPalette& /*palette*/) const {}
};

}  // namespace lumenkit::lumenform
