#pragma once

#include <QPoint>
#include <QRect>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "apps/lumenform/design/model/design.h"

namespace lumenkit::form {

/// Where the form and its controls lie on the desk, in the desk's pixels. As a container, null is
/// the form itself.
class FormMap {
 public:
    /// Both must outlive the map.
    FormMap(const Design& design, const QWidget& desk);

    /// The design's view is another one.
    void Update();

    QRect ClientRect() const;
    QRect RectOf(const LiveControl& control) const;
    /// The point that places within the container count from.
    QPoint OriginOf(const LiveControl* container) const;

    /// The topmost control there; null where there is none.
    LiveControl* ControlAt(QPoint at) const;
    /// The innermost container there.
    LiveControl* ContainerAt(QPoint at) const;
    /// Those that lie in the container itself and have a part in the rectangle.
    std::vector<LiveControl*> Touched(const LiveControl* container, const QRect& area) const;
    /// All, by their TabIndex; those without one come last.
    std::vector<LiveControl*> InTabOrder() const;

 private:
    LiveControl* Find(const QWidget* widget) const;

    const Design& design_;
    const QWidget& desk_;
    std::unordered_map<const QWidget*, LiveControl*> controls_;
};

}  // namespace lumenkit::form
