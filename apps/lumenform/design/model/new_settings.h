// The properties that a new control has in the form file, in the order of their names.
#pragma once

#include <cstdint>

#include "apps/lumenform/design/model/drag_start.h"
#include "apps/lumenform/form_view/scale.h"
#include "forms/block.h"
#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// The place at which a new control was drawn. `scale` is that of its container.
struct DrawnPlace {
    const host::Placement& place;
    DragStart start;
    const Scale& scale;
};

/// Writes the place and the tab order of a control of this library.
void WriteLibrarySettings(forms::Block& block, const host::Placement& place, std::int32_t tabIndex);

/// Does so for a control of another class, with the settings that its class needs: a control that
/// is not seen when the form runs gets no size, and a line gets its ends. `example` is a control of
/// the same class on the form, or null.
void WritePlainSettings(forms::Block& block, const forms::Block* example, const DrawnPlace& drawn,
                        std::int32_t tabIndex);

}  // namespace lumenkit::lumenform
