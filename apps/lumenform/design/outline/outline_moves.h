// Changes to a form by its outline. Each is one step of the history.
#pragma once

#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/outline/outline_model.h"

namespace lumenkit::lumenform {

using OutlineNodes = std::vector<const OutlineNode*>;

/// A position in the outline: under `parent`, before `before`, or after the last one if it is null.
struct OutlinePlace {
    const OutlineNode* parent = nullptr;
    const OutlineNode* before = nullptr;
};

/// Returns the controls and menus without those inside another one of them, in the order of the
/// outline.
OutlineNodes OutermostOf(const OutlineNodes& nodes);

/// Moves the nodes up or down by one position among their neighbours. Neighbours stay together.
void MoveByOne(FormDesign& design, const OutlineNodes& nodes, bool up);

/// Whether the nodes can be moved there: controls into the form, a container or a page, and menus
/// among their neighbours.
bool CanMoveTo(const FormDesign& design, const OutlineNodes& nodes, const OutlinePlace& place);
/// Moves the nodes there. A control keeps its place on the form, unless it would be out of view.
void MoveTo(FormDesign& design, const OutlineNodes& nodes, const OutlinePlace& place);

void DeleteNodes(FormDesign& design, const OutlineNodes& nodes);
/// Throws as RenameIn does.
void RenameNode(FormDesign& design, const OutlineNode& node, const Text& name);

}  // namespace lumenkit::lumenform
