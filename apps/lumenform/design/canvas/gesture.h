#pragma once

#include <QPoint>
#include <QRect>
#include <optional>

#include "apps/lumenform/design/canvas/form_map.h"
#include "apps/lumenform/design/canvas/grid.h"
#include "apps/lumenform/design/model/design.h"
#include "frame/host/constituent.h"

namespace lumenkit::form {

/// What gestures happen on. All of it outlives them, but for the view: gestures end with it.
struct Ground {
    Design& design;
    const FormMap& map;
    const Grid& grid;
};

/// What the mouse does from the press to the release. Points are pixels of the desk.
class Gesture {
 public:
    Gesture() = default;
    virtual ~Gesture() = default;
    Gesture(const Gesture&) = delete;
    Gesture& operator=(const Gesture&) = delete;

    /// The mouse is there; `snaps`: to the lines of the grid.
    virtual void DragTo(QPoint at, bool snaps) = 0;
    /// The button was released. Throws as Design does.
    virtual void Finish() = 0;
    /// Puts everything back.
    virtual void Cancel() {}

    /// To tell while dragging: in twips, within the container.
    virtual std::optional<host::Placement> Place() const { return std::nullopt; }
    /// To be drawn while dragging; empty: nothing.
    virtual QRect Band() const { return {}; }
};

}  // namespace lumenkit::form
