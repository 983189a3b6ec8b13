#include "apps/lumenform/design/canvas/handles.h"

#include <QPalette>
#include <algorithm>

namespace lumenkit::lumenform {

namespace {

constexpr int handleSize = 7;
constexpr int handleReach = 2;  // pixels around a handle that count as part of it

QRect SquareAt(int x, int y) {
    return {x, y, handleSize, handleSize};
}

}  // namespace

std::vector<Handle> HandlesOf(const QRect& control) {
    const int left = control.left() - handleSize;
    const int top = control.top() - handleSize;
    const int right = control.left() + control.width();
    const int bottom = control.top() + control.height();
    const int middle = control.left() + (control.width() - handleSize) / 2;
    const int centre = control.top() + (control.height() - handleSize) / 2;
    std::vector<Handle> handles = {
        {{.left = true, .top = true}, SquareAt(left, top)},
        {{.top = true, .right = true}, SquareAt(right, top)},
        {{.right = true, .bottom = true}, SquareAt(right, bottom)},
        {{.left = true, .bottom = true}, SquareAt(left, bottom)},
    };
    constexpr int room = handleSize + 2 * handleReach;
    if (control.width() >= room) {
        handles.push_back({{.top = true}, SquareAt(middle, top)});
        handles.push_back({{.bottom = true}, SquareAt(middle, bottom)});
    }
    if (control.height() >= room) {
        handles.push_back({{.left = true}, SquareAt(left, centre)});
        handles.push_back({{.right = true}, SquareAt(right, centre)});
    }
    return handles;
}

std::vector<Handle> FormHandlesOf(const QRect& client) {
    std::vector<Handle> handles;
    for (const Handle& handle : HandlesOf(client)) {
        if (!handle.edges.left && !handle.edges.top) {
            handles.push_back(handle);
        }
    }
    return handles;
}

std::optional<Edges> EdgesAt(const std::vector<Handle>& handles, QPoint at) {
    const auto reaches = [at](const Handle& handle) {
        return handle.rect.adjusted(-handleReach, -handleReach, handleReach, handleReach)
            .contains(at);
    };
    const auto found = std::ranges::find_if(handles, reaches);
    return found == handles.end() ? std::nullopt : std::optional(found->edges);
}

QRect BoundsOf(const std::vector<Handle>& handles) {
    QRect bounds;
    for (const Handle& handle : handles) {
        bounds |= handle.rect;
    }
    return bounds;
}

Qt::CursorShape CursorFor(Edges edges) {
    if (edges == allEdges) {
        return Qt::SizeAllCursor;
    }
    const bool across = edges.left || edges.right;
    const bool down = edges.top || edges.bottom;
    if (across && down) {
        return edges.left == edges.top ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    }
    return across ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

void PaintHandles(QPainter& painter, const std::vector<Handle>& handles, bool filled,
                  const QPalette& palette) {
    const QColor mark = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor paper = palette.color(QPalette::Active, QPalette::HighlightedText);
    for (const Handle& handle : handles) {
        painter.fillRect(handle.rect, filled ? paper : mark);
        painter.fillRect(handle.rect.adjusted(1, 1, -1, -1), filled ? mark : paper);
    }
}

}  // namespace lumenkit::lumenform
