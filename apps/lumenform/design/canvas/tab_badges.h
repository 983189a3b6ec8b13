#pragma once

#include <QPainter>
#include <QRegion>
#include <QWidget>

#include "apps/lumenform/design/canvas/form_map.h"
#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// Paints the TabIndex of each control and assigns new ones in the order of clicks.
class TabBadges {
 public:
    /// All arguments must outlive this object.
    TabBadges(FormDesign& design, const FormMap& map, const QWidget& desk)
        : design_(design), map_(map), desk_(desk) {}

    /// Restarts the numbers from 0.
    void Start() { next_ = 0; }
    /// Assigns the next number to the control. Throws as FormDesign::Restructure does.
    void Number(const LiveControl& control);

    void Paint(QPainter& painter) const;
    QRegion Region() const;

 private:
    bool HasBadge(const LiveControl& control) const;
    QRect BadgeOf(const LiveControl& control) const;

    FormDesign& design_;
    const FormMap& map_;
    const QWidget& desk_;
    int next_ = 0;
};

}  // namespace lumenkit::lumenform
