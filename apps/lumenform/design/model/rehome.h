// Moves controls into other containers.
#pragma once

#include <optional>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/live_control.h"
#include "forms/block.h"

namespace lumenkit::lumenform {

/// A position among the controls of a container.
struct Home {
    LiveControl* container = nullptr;  ///< null: the form
    /// Of a tabbed box. Nullopt: the page that is shown.
    std::optional<int> page = std::nullopt;
    /// The control before which others come in the file, so that they are in front of it. Null:
    /// behind all others.
    const forms::Block* before = nullptr;
};

/// Where controls are after they have got another container.
enum class Landing {
    SamePlace,  ///< at the same place on the form
    Inside,     ///< there too, unless this is outside their new container: then inside it
};

/// Whether `container` can get the control: it is a container, and not the control itself or inside
/// it.
bool CanHold(const FormDesign& design, const LiveControl* container, const LiveControl& control);

/// Returns the page of a tabbed box that has the control, or nullopt for a control on no page.
std::optional<int> PageOf(const FormDesign& design, const LiveControl& control);

/// Moves the controls to a home, in the order given. A control that is in this container already
/// keeps its place. Changes of live controls that were not saved yet become part of the step of the
/// history. The lines of the controls move in the file; places and the ends of lines are converted
/// to the new container; names and the tab order stay. Requires CanHold. Throws as
/// FormDesign::Restructure does.
void Rehome(FormDesign& design, const QString& title, const std::vector<LiveControl*>& controls,
            const Home& home, Landing landing);

}  // namespace lumenkit::lumenform
