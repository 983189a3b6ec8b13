// The small squares around what is selected, by which it is sized.
#pragma once

#include <QPainter>
#include <QRect>
#include <optional>
#include <vector>

#include "apps/lumenform/design/canvas/edges.h"

namespace lumenkit::form {

struct Handle {
    Edges edges;  ///< that go along with it
    QRect rect;
};

/// Those of a control, around its rectangle; fewer where there is no room for those in the middle.
std::vector<Handle> HandlesOf(const QRect& control);
/// Those of the form, which stays where it is: right, bottom and between them.
std::vector<Handle> FormHandlesOf(const QRect& client);

/// What a pointer there takes hold of.
std::optional<Edges> EdgesAt(const std::vector<Handle>& handles, QPoint at);
/// What all of them lie in: one rectangle is repainted faster than the few pixels of each of them.
QRect BoundsOf(const std::vector<Handle>& handles);
Qt::CursorShape CursorFor(Edges edges);

/// Filled ones are those of what the others are aligned with.
void PaintHandles(QPainter& painter, const std::vector<Handle>& handles, bool filled,
                  const QPalette& palette);

}  // namespace lumenkit::form
