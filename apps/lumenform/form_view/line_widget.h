#pragma once

#include <QWidget>

#include "apps/lumenform/form_view/stroke.h"

namespace lumenkit::lumenform {

/// Draws a line from one corner of its box to the opposite one.
class LineWidget final : public QWidget {
 public:
    /// \param rises whether the line rises from left to right
    LineWidget(const Stroke& stroke, bool rises);

    /// The number of pixels by which the widget exceeds the box between the ends on each side.
    int Reach() const;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Stroke stroke_;
    bool rises_;
};

}  // namespace lumenkit::lumenform
