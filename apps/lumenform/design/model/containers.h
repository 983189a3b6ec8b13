// The containers of a form, with the parts of them that can be seen.
#pragma once

#include <QPointF>
#include <QRectF>
#include <unordered_map>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/live_control.h"

namespace lumenkit::lumenform {

/// The container of each control, for work on many controls: ContainerOf searches each time. Valid
/// until the view is replaced. A null container is the form.
class Containers {
 public:
    explicit Containers(const FormDesign& design);

    LiveControl* Of(const LiveControl& control) const;

 private:
    std::unordered_map<const QWidget*, LiveControl*> rooms_;
};

/// Returns the origin of places in the container, in twips from the upper left corner of the form's
/// client area.
QPointF OriginOf(const FormDesign& design, const LiveControl* container);

/// Returns the area of the container in which its controls can be seen, in its twips.
QRectF RoomOf(const FormDesign& design, const LiveControl* container);

/// Returns the controls of which nothing can be seen on the form, because they are outside their
/// container or outside the part of it that is seen. The pages of tabbed boxes count as shown, and
/// controls inside one that cannot be seen count as seen. In the order of the file.
std::vector<LiveControl*> OutOfView(const FormDesign& design);

/// Moves the selected controls inside the parts of their containers that are seen, by as little as
/// possible. Without a selection, moves and selects all controls that are out of view. One step of
/// the history.
void BringIntoView(FormDesign& design);

}  // namespace lumenkit::lumenform
