#pragma once

#include <QList>
#include <QPixmap>
#include <QWidget>
#include <cstddef>
#include <map>
#include <memory>
#include <vector>

#include "apps/lumenform/form_view/live_control.h"
#include "frame/color.h"
#include "runtime/qt/accessible.h"

namespace lumenkit::lumenform {

/// Returns the controls in the order of TabIndex. Controls without one come last.
std::vector<LiveControl*> InTabOrder(const std::vector<std::unique_ptr<LiveControl>>& controls);

/// The client area of a form. Paints the background with its picture, moves the focus through the
/// controls by TabIndex with Tab, and clicks the buttons for Enter and Esc. Tab goes from the last
/// control to the first and does not leave the form. Screen readers get the controls in tab order
/// too.
class ClientArea final : public QWidget, public qt::SelfDescribing, public qt::ReadingOrder {
 public:
    using Controls = std::vector<std::unique_ptr<LiveControl>>;

    /// `controls` may change later. It must outlive this object.
    ClientArea(Color backColor, const Controls& controls, QWidget* parent);

    /// Sets the picture in the upper left corner, behind the controls. It is not scaled.
    void SetPicture(const QPixmap& picture);

    /// The widgets at which Tab stops, in tab order.
    std::vector<QWidget*> TabStops() const;

    bool focusNextPrevChild(bool next) override;
    QAccessibleInterface* NewDescription() override;
    void Sort(QList<QWidget*>& parts) const override;

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    struct Stop {
        std::size_t turn;  // position of its control in the tab order
        QWidget* widget;
    };
    // The tab order.
    struct Route {
        // Returns the turn of the control that contains `widget`, or one more than the last turn.
        std::size_t TurnOf(const QWidget* widget) const;
        // Next and Previous need at least one stop.
        QWidget* Next(const QWidget* from) const;
        QWidget* Previous(const QWidget* from) const;

        std::map<const QWidget*, std::size_t> turns;
        std::vector<Stop> stops;
    };
    Route FindRoute() const;

    Color backColor_;
    QPixmap picture_;
    const Controls& controls_;
};

}  // namespace lumenkit::lumenform
