#pragma once

#include <QLabel>

#include "frame/host/constituent.h"

namespace lumenkit::form {

/// Tells a place in twips beside the pointer.
class PlaceLabel final : public QLabel {
 public:
    explicit PlaceLabel(QWidget* parent);

    void Tell(const host::Placement& place, QPoint pointer);
};

}  // namespace lumenkit::form
