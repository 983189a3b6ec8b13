#include "apps/lumenform/design/canvas/guides.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "apps/lumenform/design/canvas/baseline.h"
#include "apps/lumenform/design/look/contrast.h"
#include "apps/lumenform/design/model/containers.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

constexpr int reach = 4;  // pixels

QRect Between(int left, int top, int right, int bottom) {
    return {QPoint(std::min(left, right), std::min(top, bottom)),
            QPoint(std::max(left, right), std::max(top, bottom))};
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

std::optional<float> Guides::Nearest(const Lines& own, const Lines& others, float by,
                                     double twips) {
    std::optional<float> nearest;
    const auto most = static_cast<float>(reach * twips);
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
    return Nearest(Upright(dragged, dragged.from), upright_, by, qt::TwipsPerPixel::OfScreens().x);
}

std::optional<float> Guides::Down(const Dragged& dragged, float by) const {
    return Nearest(Level(dragged, dragged.from), level_, by, qt::TwipsPerPixel::OfScreens().y);
}

// ---- The lines that are shown

void Guides::ShowOn(const Lines& own, const Lines& others, bool isUpright) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QPoint origin = ground_.map.OriginOf(container_);
    const auto x = [&](float at) { return origin.x() + qRound(at / twips.x); };
    const auto y = [&](float at) { return origin.y() + qRound(at / twips.y); };
    for (const Line& line : own) {
        for (const Line& other : others) {
            constexpr float equal = 0.5;
            if (line.kind != other.kind || std::abs(line.at - other.at) > equal) {
                continue;
            }
            const float begin = std::min(line.begin, other.begin);
            const float end = std::max(line.end, other.end);
            shown_.push_back(isUpright ? Between(x(line.at), y(begin), x(line.at), y(end))
                                       : Between(x(begin), y(line.at), x(end), y(line.at)));
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
