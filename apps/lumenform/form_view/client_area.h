#pragma once

#include <QWidget>
#include <cstddef>
#include <map>
#include <memory>
#include <vector>

#include "apps/lumenform/form_view/live_control.h"
#include "frame/color.h"

namespace lumenkit::form {

/// The inside of a form: its background, Tab going round its controls by their TabIndex, from the
/// last to the first and not to what else is in the window, and the buttons for Enter and Esc.
class ClientArea final : public QWidget {
 public:
    using Controls = std::vector<std::unique_ptr<LiveControl>>;

    /// `controls` is who is there whenever Tab is pressed; it must outlive this.
    ClientArea(Color backColor, const Controls& controls, QWidget* parent);

    /// What Tab stops at, in its order.
    std::vector<QWidget*> TabStops() const;

    bool focusNextPrevChild(bool next) override;

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    struct Stop {
        std::size_t turn;  // of its control
        QWidget* widget;
    };
    // The way that Tab goes.
    struct Route {
        // That of the control that `widget` is a part of; one beyond the last where it is of none.
        std::size_t TurnOf(const QWidget* widget) const;
        // There must be stops.
        QWidget* Next(const QWidget* from) const;
        QWidget* Previous(const QWidget* from) const;

        std::map<const QWidget*, std::size_t> turns;
        std::vector<Stop> stops;
    };
    Route FindRoute() const;

    Color backColor_;
    const Controls& controls_;
};

}  // namespace lumenkit::form
