#include "apps/lumenform/design/canvas/guides.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "apps/lumenform/design/canvas/baseline.h"
#include "apps/lumenform/design/look/contrast.h"
#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/containers.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

constexpr int reach = 4;  // pixels of the desk

QRect Between(QPoint from, QPoint to) {
    return {QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
            QPoint(std::max(from.x(), to.x()), std::max(from.y(), to.y()))};
}

}  // namespace

Guides::Guides(const Ground& ground, std::vector<LiveControl*> without)
    : ground_(ground), without_(std::move(without)) {}

void Guides::Enter(const LiveControl* container) {
    container_ = container;
    upright_.clear();
    level_.clear();
    for (const auto& control : ground_.design.View().Controls()) {
        const bool isHere = ContainerOf(ground_.design, *control) == container &&
                            control->Widget().isVisibleTo(&ground_.design.View()) &&
                            std::ranges::find(without_, control.get()) == without_.end();
        if (isHere) {
            const Dragged whole{control.get(), control->Place(), allEdges};
            std::ranges::copy(Upright(whole, whole.from), std::back_inserter(upright_));
            std::ranges::copy(Level(whole, whole.from), std::back_inserter(level_));
        }
    }
}

Guides::Lines Guides::Upright(const Dragged& dragged, const host::Placement& place) {
    Lines lines;
    const auto add = [&](bool moves, float at) {
        if (moves) {
            lines.push_back({Kind::Edge, at, place.top, place.top + place.height});
        }
    };
    add(dragged.edges.left, place.left);
    add(dragged.edges.right, place.left + place.width);
    return lines;
}

Guides::Lines Guides::Level(const Dragged& dragged, const host::Placement& place) {
    Lines lines;
    const auto add = [&](bool moves, Kind kind, float at) {
        if (moves) {
            lines.push_back({kind, at, place.left, place.left + place.width});
        }
    };
    add(dragged.edges.top, Kind::Edge, place.top);
    add(dragged.edges.bottom, Kind::Edge, place.top + place.height);
    if (const auto baseline = BaselineOf(*dragged.control); baseline && dragged.edges == allEdges) {
        add(true, Kind::Baseline, place.top + *baseline);
    }
    return lines;
}

// Returns the twips within which a line catches an edge.
QPointF Guides::Reach() const {
    return ground_.map.ToTwips({reach, reach});
}

std::optional<float> Guides::Nearest(const Lines& own, const Lines& others, float by,
                                     double reach) {
    std::optional<float> nearest;
    const auto most = static_cast<float>(reach);
    for (const Line& line : own) {
        for (const Line& other : others) {
            const float distance = other.at - line.at;
            const bool isNear = line.kind == other.kind && std::abs(distance - by) <= most;
            if (isNear && (!nearest || std::abs(distance - by) < std::abs(*nearest - by))) {
                nearest = distance;
            }
        }
    }
    return nearest;
}

std::optional<float> Guides::Across(const Dragged& dragged, float by) const {
    return Nearest(Upright(dragged, dragged.from), upright_, by, Reach().x());
}

std::optional<float> Guides::Down(const Dragged& dragged, float by) const {
    return Nearest(Level(dragged, dragged.from), level_, by, Reach().y());
}

// ---- The lines that are shown

void Guides::ShowOn(const Lines& own, const Lines& others, bool isUpright) {
    const auto corner = [this](float x, float y) {
        return ground_.map.RectOf({.left = x, .top = y}, container_).topLeft();
    };
    for (const Line& line : own) {
        for (const Line& other : others) {
            constexpr float equal = 0.5;
            if (line.kind != other.kind || std::abs(line.at - other.at) > equal) {
                continue;
            }
            const float begin = std::min(line.begin, other.begin);
            const float end = std::max(line.end, other.end);
            const auto from = isUpright ? corner(line.at, begin) : corner(begin, line.at);
            const auto to = isUpright ? corner(line.at, end) : corner(end, line.at);
            shown_.push_back(Between(from, to));
        }
    }
}

void Guides::Show(const Dragged& dragged, const host::Placement& at) {
    shown_.clear();
    ShowOn(Upright(dragged, at), upright_, true);
    ShowOn(Level(dragged, at), level_, false);
}

QRect Guides::Painted() const {
    QRect painted;
    for (const QRect& line : shown_) {
        painted |= line;
    }
    return painted.isEmpty() ? painted : painted.adjusted(-1, -1, 1, 1);
}

void Guides::Paint(QPainter& painter, const QPalette& palette) const {
    const Color ground = InsideOf(ground_.design, container_).backColor;
    const QColor mark = MarkOn(qt::ToQColor(ground, palette), palette);
    for (const QRect& line : shown_) {
        painter.fillRect(line, mark);
    }
}

}  // namespace lumenkit::lumenform
