// Arranges the selected controls. Each change is one step of the history. The other controls follow
// the one that was selected last.
#pragma once

#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/live_control.h"

namespace lumenkit::lumenform {

enum class Alignment { Left, Center, Right, Top, Middle, Bottom };
enum class Dimension { Width, Height, Both };

/// The selected controls that are not inside another selected control.
std::vector<LiveControl*> OutermostSelected(const FormDesign& design);
/// Returns the container of the control, or null for the form.
LiveControl* ContainerOf(const FormDesign& design, const LiveControl& control);
/// The surroundings of the controls in `container`. Null means the form.
const Surroundings& InsideOf(const FormDesign& design, const LiveControl* container);
/// The block of `container`. Null means the form.
forms::Block& BlockOf(const FormDesign& design, const LiveControl* container);
/// The place of the control in twips from the upper left corner of the form's client area.
host::Placement PlaceOnForm(const FormDesign& design, const LiveControl& control);

void Align(FormDesign& design, Alignment alignment);
void MakeSameSize(FormDesign& design, Dimension dimension);
/// Moves the selected controls as a group to the middle of their container.
void CenterOnContainer(FormDesign& design, Qt::Orientation orientation);
/// Makes all gaps between neighbours equal. The outer controls do not move. Does nothing for fewer
/// than three controls.
void SpaceEvenly(FormDesign& design, Qt::Orientation orientation);
/// Moves the edges to multiples of `grid` twips. Width and height are at least `grid`.
void SizeToGrid(FormDesign& design, float grid);

}  // namespace lumenkit::lumenform
