#include "apps/lumenform/design/canvas/form_map.h"

#include <QLayout>
#include <algorithm>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "forms/controls.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

// Returns the innermost widget at a point of `widget`. QWidget::childAt skips widgets that are
// transparent for mouse events. `without` are left out with their children.
const QWidget& InnermostAt(const QWidget& widget, QPoint at,
                           const std::vector<const QWidget*>& without) {
    const QObjectList& children = widget.children();
    const auto liesThere = [&](const QObject* child) {
        const auto* const inner = qobject_cast<const QWidget*>(child);
        return inner != nullptr && !inner->isHidden() && inner->geometry().contains(at) &&
               std::ranges::find(without, inner) == without.end();
    };
    const auto found = std::find_if(children.rbegin(), children.rend(), liesThere);
    if (found == children.rend()) {
        return widget;
    }
    const auto& inner = *qobject_cast<const QWidget*>(*found);
    return InnermostAt(inner, at - inner.pos(), without);
}

}  // namespace

FormMap::FormMap(const FormDesign& design, const Zoom& zoom) : design_(design), zoom_(zoom) {}

void FormMap::Update() {
    controls_.clear();
    for (const auto& control : design_.View().Controls()) {
        controls_.emplace(&control->Widget(), control.get());
    }
}

QRect FormMap::ClientRect() const {
    const ClientArea& client = design_.View().Client();
    return zoom_.ToDesk(QRect(OriginOf(client), client.size()));
}

QRect FormMap::RectOf(const LiveControl& control) const {
    const QWidget& widget = control.Widget();
    return zoom_.ToDesk(QRect(OriginOf(widget), widget.size()));
}

QRect FormMap::RectOf(const host::Placement& place, const LiveControl* container) const {
    return zoom_.ToDesk(qt::ToPixels(place).translated(OriginOf(container)));
}

QPoint FormMap::OriginOf(const QWidget& widget) const {
    return widget.mapTo(&design_.View(), QPoint());
}

// Returns the origin of places in the container, in pixels of the view.
QPoint FormMap::OriginOf(const LiveControl* container) const {
    return OriginOf(InsideOf(design_, container).widget);
}

QPointF FormMap::TwipsAt(QPoint at, const LiveControl* container) const {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QPointF inside = zoom_.ToView(at) - OriginOf(container);
    return {inside.x() * twips.x, inside.y() * twips.y};
}

QPointF FormMap::ToTwips(QPoint distance) const {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    return {distance.x() / zoom_.Factor() * twips.x, distance.y() / zoom_.Factor() * twips.y};
}

QPoint FormMap::InWidget(const LiveControl& control, QPoint at) const {
    return zoom_.PixelAt(at) - OriginOf(control.Widget());
}

// Returns the control whose widget is `widget` or contains it, or null.
LiveControl* FormMap::Find(const QWidget* widget) const {
    for (; widget != nullptr && widget != &design_.View(); widget = widget->parentWidget()) {
        if (const auto found = controls_.find(widget); found != controls_.end()) {
            return found->second;
        }
    }
    return nullptr;
}

QRect FormMap::RoomOf(const LiveControl* container) const {
    return zoom_.ToDesk(QRect(OriginOf(container), InsideOf(design_, container).widget.size()));
}

LiveControl* FormMap::ControlAt(QPoint at) const {
    return ControlAt(at, {});
}

LiveControl* FormMap::ControlAt(QPoint at, const std::vector<LiveControl*>& without) const {
    const ClientArea& client = design_.View().Client();
    const QPoint onClient = zoom_.PixelAt(at) - OriginOf(client);
    if (!client.rect().contains(onClient)) {
        return nullptr;
    }
    std::vector<const QWidget*> widgets;
    widgets.reserve(without.size());
    for (const LiveControl* const control : without) {
        widgets.push_back(&control->Widget());
    }
    return Find(&InnermostAt(client, onClient, widgets));
}

LiveControl* FormMap::ContainerAt(QPoint at, const std::vector<LiveControl*>& without) const {
    LiveControl* control = ControlAt(at, without);
    while (control != nullptr && !control->IsContainer()) {
        control = ContainerOf(design_, *control);
    }
    return control;
}

std::vector<LiveControl*> FormMap::Touched(const LiveControl* container, const QRect& area) const {
    const QWidget* const inside = &InsideOf(design_, container).widget;
    std::vector<LiveControl*> touched;
    for (const auto& control : design_.View().Controls()) {
        if (control->Widget().parentWidget() == inside && RectOf(*control).intersects(area)) {
            touched.push_back(control.get());
        }
    }
    return touched;
}

const QMenuBar* FormMap::Bar() const {
    return qobject_cast<const QMenuBar*>(design_.View().layout()->menuBar());
}

forms::Block* FormMap::MenuAt(QPoint at) const {
    const QMenuBar* const bar = Bar();
    const QAction* const title =
        bar == nullptr ? nullptr : bar->actionAt(zoom_.PixelAt(at) - OriginOf(*bar));
    return title == nullptr ? nullptr : MenuOf(*title);
}

QRect FormMap::RectOfMenu(const forms::Block& menu) const {
    const QMenuBar* const bar = Bar();
    if (bar == nullptr) {
        return {};
    }
    for (QAction* const title : bar->actions()) {
        const forms::Block* const own = MenuOf(*title);
        if (own == nullptr) {
            continue;  // a separator
        }
        const std::vector<forms::Block*> inner = forms::AllControls(*own);
        if (own == &menu || std::ranges::find(inner, &menu) != inner.end()) {
            return zoom_.ToDesk(bar->actionGeometry(title).translated(OriginOf(*bar)));
        }
    }
    return {};
}

}  // namespace lumenkit::lumenform
