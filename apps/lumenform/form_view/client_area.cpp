#include "apps/lumenform/form_view/client_area.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QRadioButton>
#include <algorithm>
#include <memory>

#include "apps/lumenform/form_view/command_button.h"
#include "runtime/qt/palette_color.h"

namespace lumenkit::lumenform {

namespace {

// Among the option buttons of a container, Tab stops at the selected one, or at the first if none
// is selected. The focus policies of the buttons are no guide: they depend on where the focus was
// last.
class OptionGroups {
 public:
    // `turns` are the turns of the widgets of controls. Other buttons take turns as created.
    explicit OptionGroups(const std::map<const QWidget*, std::size_t>& turns) : turns_(turns) {}

    bool IsStop(const QRadioButton& button) {
        const QWidget* const container = button.parentWidget();
        auto known = groups_.find(container);
        if (known == groups_.end()) {
            const auto buttons =
                container->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
            const bool isNoneChecked = std::ranges::none_of(buttons, &QRadioButton::isChecked);
            known = groups_.emplace(container, isNoneChecked ? FirstOf(buttons) : nullptr).first;
        }
        return button.focusPolicy() != Qt::NoFocus &&
               (button.isChecked() || known->second == &button);
    }

 private:
    const QRadioButton* FirstOf(const QList<QRadioButton*>& buttons) const {
        return *std::ranges::min_element(buttons, {}, [&](const QRadioButton* button) {
            const auto turn = turns_.find(button);
            return turn == turns_.end() ? turns_.size() : turn->second;
        });
    }

    const std::map<const QWidget*, std::size_t>& turns_;
    std::map<const QWidget*, const QRadioButton*> groups_;  // the leader if none is selected
};

bool TakesTab(const QWidget& widget, OptionGroups& groups) {
    if (!widget.isVisible() || !widget.isEnabled() || widget.focusProxy() != nullptr) {
        return false;
    }
    if (const auto* button = qobject_cast<const QRadioButton*>(&widget)) {
        return groups.IsStop(*button);
    }
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

}  // namespace

std::vector<LiveControl*> InTabOrder(const std::vector<std::unique_ptr<LiveControl>>& controls) {
    std::vector<LiveControl*> order;
    order.reserve(controls.size());
    for (const auto& control : controls) {
        order.push_back(control.get());
    }
    std::ranges::stable_sort(order, [](const LiveControl* left, const LiveControl* right) {
        return left->TabIndex() && (!right->TabIndex() || *left->TabIndex() < *right->TabIndex());
    });
    return order;
}

ClientArea::ClientArea(Color backColor, const Controls& controls, QWidget* parent)
    : QWidget(parent), backColor_(backColor), controls_(controls) {}

void ClientArea::SetPicture(const QPixmap& picture) {
    picture_ = picture;
    update();
}

ClientArea::Route ClientArea::FindRoute() const {
    const std::vector<LiveControl*> order = InTabOrder(controls_);
    Route route;
    for (std::size_t turn = 0; turn < order.size(); ++turn) {
        route.turns.emplace(&order[turn]->Widget(), turn);
    }
    OptionGroups groups(route.turns);
    for (QWidget* widget = nextInFocusChain(); widget != this;
         widget = widget->nextInFocusChain()) {
        if (isAncestorOf(widget) && TakesTab(*widget, groups)) {
            const std::size_t turn = route.TurnOf(widget);
            if (turn < order.size() && order[turn]->TabStop()) {
                route.stops.push_back({turn, widget});
            }
        }
    }
    std::ranges::stable_sort(route.stops, {}, &Stop::turn);
    return route;
}

std::size_t ClientArea::Route::TurnOf(const QWidget* widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto found = turns.find(widget); found != turns.end()) {
            return found->second;
        }
    }
    return turns.size();
}

// If the focus is not at a stop, as on an option button that was clicked, continues from the
// control that contains it.
QWidget* ClientArea::Route::Next(const QWidget* from) const {
    auto to = std::ranges::find(stops, from, &Stop::widget);
    to =
        to == stops.end() ? std::ranges::upper_bound(stops, TurnOf(from), {}, &Stop::turn) : to + 1;
    return to == stops.end() ? stops.front().widget : to->widget;
}

QWidget* ClientArea::Route::Previous(const QWidget* from) const {
    auto behind = std::ranges::find(stops, from, &Stop::widget);
    if (behind == stops.end()) {
        behind = std::ranges::lower_bound(stops, TurnOf(from), {}, &Stop::turn);
    }
    return behind == stops.begin() ? stops.back().widget : (behind - 1)->widget;
}

std::vector<QWidget*> ClientArea::TabStops() const {
    std::vector<QWidget*> widgets;
    for (const Stop& stop : FindRoute().stops) {
        widgets.push_back(stop.widget);
    }
    return widgets;
}

QAccessibleInterface* ClientArea::NewDescription() {
    return std::make_unique<qt::GroupDescription>(*this).release();
}

// Sorts controls of the form, or of a frame on it, by tab order. Widgets that are no controls come
// last.
void ClientArea::Sort(QList<QWidget*>& parts) const {
    const std::vector<LiveControl*> order = InTabOrder(controls_);
    const auto turn = [&](const QWidget* part) {
        return std::ranges::find(order, part,
                                 [](const LiveControl* control) { return &control->Widget(); });
    };
    std::ranges::stable_sort(parts, {}, turn);
}

bool ClientArea::focusNextPrevChild(bool next) {
    const Route route = FindRoute();
    if (route.stops.empty()) {
        return false;
    }
    const QWidget* from = QApplication::focusWidget();
    QWidget* const to = next ? route.Next(from) : route.Previous(from);
    to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

// Handles a key that no child widget used.
void ClientArea::keyPressEvent(QKeyEvent* event) {
    for (const auto& control : controls_) {
        auto* const button = dynamic_cast<CommandButton*>(&control->Widget());
        if (button != nullptr && button->isVisible() && button->IsPressedBy(event->key())) {
            button->click();
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void ClientArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), qt::ToQColor(backColor_, palette()));
    painter.drawPixmap(0, 0, picture_);
}

}  // namespace lumenkit::lumenform
