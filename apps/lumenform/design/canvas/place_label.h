#pragma once

#include <QLabel>

#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// Shows a place in twips beside the mouse pointer.
class PlaceLabel final : public QLabel {
 public:
    explicit PlaceLabel(QWidget* parent);

    void Tell(const host::Placement& place, QPoint pointer);
};

}  // namespace lumenkit::lumenform
