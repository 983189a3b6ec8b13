#pragma once

#include <QPainter>
#include <QRegion>
#include <QWidget>

#include "apps/lumenform/design/canvas/form_map.h"
#include "apps/lumenform/design/model/design.h"

namespace lumenkit::form {

/// The mode in which clicking the controls one after the other gives them their turn with Tab.
class TabBadges {
 public:
    /// All must outlive this.
    TabBadges(Design& design, const FormMap& map, const QWidget& desk)
        : design_(design), map_(map), desk_(desk) {}

    /// Begins to count from 0.
    void Start() { next_ = 0; }
    /// The control takes the next number. Throws as Design::Restructure does.
    void Number(const LiveControl& control);

    void Paint(QPainter& painter) const;
    QRegion Region() const;

 private:
    QRect BadgeOf(const LiveControl& control) const;

    Design& design_;
    const FormMap& map_;
    const QWidget& desk_;
    int next_ = 0;
};

}  // namespace lumenkit::form
