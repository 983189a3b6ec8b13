// The small squares around a selected control, with which it is sized.
#pragma once

#include <QPainter>
#include <QRect>
#include <optional>
#include <vector>

#include "apps/lumenform/design/canvas/edges.h"

namespace lumenkit::lumenform {

struct Handle {
    Edges edges;  ///< the edges that it moves
    QRect rect;
};

/// The handles around a control's rectangle. Small controls have no middle handles.
std::vector<Handle> HandlesOf(const QRect& control);
/// The handles of the form at the right and bottom edges and their corner. The form does not move.
std::vector<Handle> FormHandlesOf(const QRect& client);

/// Returns the edges of the handle at a point, if there is one.
std::optional<Edges> EdgesAt(const std::vector<Handle>& handles, QPoint at);
/// The bounding rectangle of all handles. Repainting it is faster than repainting each handle.
QRect BoundsOf(const std::vector<Handle>& handles);
Qt::CursorShape CursorFor(Edges edges);

/// Paints the handles. Those of the control that the others are aligned with are filled.
void PaintHandles(QPainter& painter, const std::vector<Handle>& handles, bool filled,
                  const QPalette& palette);

}  // namespace lumenkit::lumenform
