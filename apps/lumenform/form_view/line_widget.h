#pragma once

#include <QWidget>

#include "apps/lumenform/form_view/stroke.h"

namespace lumenkit::form {

/// A line from one corner to the opposite one.
class LineWidget final : public QWidget {
 public:
    /// \param rises from left to right
    LineWidget(const Stroke& stroke, bool rises);

    /// How many pixels it goes beyond the box between its ends on each side.
    int Reach() const;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Stroke stroke_;
    bool rises_;
};

}  // namespace lumenkit::form
