#include "apps/lumenform/design/model/arrange.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <functional>

#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

using host::Placement;

QString Title(const char* text) {
    return QCoreApplication::translate("arrange", text);
}

struct Item {
    LiveControl* control;
    Placement onForm;
};

std::vector<Item> Items(const FormDesign& design) {
    std::vector<Item> items;
    for (LiveControl* control : OutermostSelected(design)) {
        items.push_back({control, PlaceOnForm(design, *control)});
    }
    return items;
}

// Moves a control to a place on the form. The control itself counts its place from its container.
void MoveTo(const Item& item, const Placement& onForm) {
    Placement place = item.control->Place();
    place.left += onForm.left - item.onForm.left;
    place.top += onForm.top - item.onForm.top;
    place.width = onForm.width;
    place.height = onForm.height;
    item.control->Move(place);
}

using Follow = std::function<Placement(const Placement& place, const Placement& leader)>;

// Moves all controls but the last selected one to the places that `follow` returns.
void FollowLast(FormDesign& design, const char* title, const Follow& follow) {
    const std::vector<Item> items = Items(design);
    if (items.size() < 2) {
        return;
    }
    design.Edit(Title(title), [&] {
        for (const Item& item : items) {
            MoveTo(item, follow(item.onForm, items.back().onForm));
        }
    });
}

Placement Aligned(Placement place, const Placement& leader, Alignment alignment) {
    switch (alignment) {
        case Alignment::Left:
            place.left = leader.left;
            break;
        case Alignment::Center:
            place.left = leader.left + (leader.width - place.width) / 2;
            break;
        case Alignment::Right:
            place.left = leader.left + leader.width - place.width;
            break;
        case Alignment::Top:
            place.top = leader.top;
            break;
        case Alignment::Middle:
            place.top = leader.top + (leader.height - place.height) / 2;
            break;
        case Alignment::Bottom:
            place.top = leader.top + leader.height - place.height;
            break;
    }
    return place;
}

// One direction of a placement: rows and columns share their code.
struct Axis {
    float Placement::*start;
    float Placement::*length;

    static Axis Of(Qt::Orientation orientation) {
        return orientation == Qt::Horizontal ? Axis{&Placement::left, &Placement::width}
                                             : Axis{&Placement::top, &Placement::height};
    }
    float End(const Placement& place) const { return place.*start + place.*length; }
};

float RoomIn(const Surroundings& around, Qt::Orientation orientation) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    return static_cast<float>(orientation == Qt::Horizontal ? around.widget.width() * twips.x
                                                            : around.widget.height() * twips.y);
}

}  // namespace

LiveControl* ContainerOf(const FormDesign& design, const LiveControl& control) {
    const auto& all = design.View().Controls();
    const QWidget* const around = control.Widget().parentWidget();
    const auto found = std::ranges::find_if(all, [&](const auto& other) {
        return std::ranges::any_of(
            other->Rooms(), [&](const Surroundings* room) { return &room->widget == around; });
    });
    return found == all.end() ? nullptr : found->get();
}

const Surroundings& InsideOf(const FormDesign& design, const LiveControl* container) {
    return container == nullptr ? design.View().Inside() : container->Inside();
}

forms::Block& BlockOf(const FormDesign& design, const LiveControl* container) {
    return container == nullptr ? design.Document().Root() : container->Block();
}

std::vector<LiveControl*> OutermostSelected(const FormDesign& design) {
    std::vector<LiveControl*> outermost;
    for (LiveControl* control : design.Selected()) {
        const LiveControl* container = ContainerOf(design, *control);
        while (container != nullptr && !design.IsSelected(*container)) {
            container = ContainerOf(design, *container);
        }
        if (container == nullptr) {
            outermost.push_back(control);
        }
    }
    return outermost;
}

Placement PlaceOnForm(const FormDesign& design, const LiveControl& control) {
    Placement place = control.Place();
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QWidget& around = InsideOf(design, ContainerOf(design, control)).widget;
    const QPoint origin = around.mapTo(&design.View().Client(), QPoint());
    place.left += static_cast<float>(origin.x() * twips.x);
    place.top += static_cast<float>(origin.y() * twips.y);
    return place;
}

void Align(FormDesign& design, Alignment alignment) {
    FollowLast(design, QT_TRANSLATE_NOOP("arrange", "Align"),
               [&](const Placement& place, const Placement& leader) {
                   return Aligned(place, leader, alignment);
               });
}

void MakeSameSize(FormDesign& design, Dimension dimension) {
    FollowLast(design, QT_TRANSLATE_NOOP("arrange", "Make the same size"),
               [&](Placement place, const Placement& leader) {
                   if (dimension != Dimension::Height) {
                       place.width = leader.width;
                   }
                   if (dimension != Dimension::Width) {
                       place.height = leader.height;
                   }
                   return place;
               });
}

void CenterOnContainer(FormDesign& design, Qt::Orientation orientation) {
    const std::vector<LiveControl*> controls = OutermostSelected(design);
    if (controls.empty()) {
        return;
    }
    const Axis axis = Axis::Of(orientation);
    float start = controls.front()->Place().*axis.start;
    float end = start;
    for (const LiveControl* control : controls) {
        start = std::min(start, control->Place().*axis.start);
        end = std::max(end, axis.End(control->Place()));
    }
    const Surroundings& around = InsideOf(design, ContainerOf(design, *controls.back()));
    const float shift = std::round((RoomIn(around, orientation) - (end - start)) / 2 - start);
    design.Edit(Title(QT_TRANSLATE_NOOP("arrange", "Center")), [&] {
        for (LiveControl* control : controls) {
            Placement place = control->Place();
            place.*axis.start += shift;
            control->Move(place);
        }
    });
}

void SpaceEvenly(FormDesign& design, Qt::Orientation orientation) {
    const Axis axis = Axis::Of(orientation);
    std::vector<Item> items = Items(design);
    if (items.size() < 3) {
        return;
    }
    std::ranges::stable_sort(items, {}, [&](const Item& item) { return item.onForm.*axis.start; });
    float lengths = 0;
    for (const Item& item : items) {
        lengths += item.onForm.*axis.length;
    }
    const float room = axis.End(items.back().onForm) - items.front().onForm.*axis.start;
    const float gap = (room - lengths) / static_cast<float>(items.size() - 1);
    design.Edit(Title(QT_TRANSLATE_NOOP("arrange", "Space evenly")), [&] {
        float next = items.front().onForm.*axis.start;
        for (const Item& item : items) {
            Placement place = item.onForm;
            place.*axis.start = &item == &items.back() ? place.*axis.start : std::round(next);
            next += place.*axis.length + gap;
            MoveTo(item, place);
        }
    });
}

void SizeToGrid(FormDesign& design, float grid) {
    const std::vector<LiveControl*> controls = OutermostSelected(design);
    const auto snapped = [&](float twips) { return std::round(twips / grid) * grid; };
    design.Edit(Title(QT_TRANSLATE_NOOP("arrange", "Size to grid")), [&] {
        for (LiveControl* control : controls) {
            const Placement place = control->Place();
            control->Move({.left = snapped(place.left),
                           .top = snapped(place.top),
                           .width = std::max(snapped(place.width), grid),
                           .height = std::max(snapped(place.height), grid)});
        }
    });
}

}  // namespace lumenkit::lumenform
