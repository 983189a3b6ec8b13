// Where selected controls stand beside one another. Each function is one step of the history; the
// last control that was selected is the one that the others follow.
#pragma once

#include <vector>

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/form_view/live_control.h"

namespace lumenkit::form {

enum class Alignment { Left, Center, Right, Top, Middle, Bottom };
enum class Dimension { Width, Height, Both };

/// The selected controls without those that lie in another selected one.
std::vector<LiveControl*> OutermostSelected(const Design& design);
/// What the control lies in; null: the form itself.
LiveControl* ContainerOf(const Design& design, const LiveControl& control);
/// The surroundings of what lies in `container`; null stands for the form.
const Surroundings& InsideOf(const Design& design, const LiveControl* container);
/// The block of `container`; null stands for the form.
forms::Block& BlockOf(const Design& design, const LiveControl* container);
/// Where the control is in twips from the upper left corner of the form.
host::Placement PlaceOnForm(const Design& design, const LiveControl& control);

void Align(Design& design, Alignment alignment);
void MakeSameSize(Design& design, Dimension dimension);
/// The selected controls as a whole into the middle of what they lie in.
void CenterOnContainer(Design& design, Qt::Orientation orientation);
/// The same gap between all neighbours; the outer ones stay. At least three controls.
void SpaceEvenly(Design& design, Qt::Orientation orientation);
/// Edges onto multiples of `grid` twips; no side becomes shorter than one of them.
void SizeToGrid(Design& design, float grid);

}  // namespace lumenkit::form
