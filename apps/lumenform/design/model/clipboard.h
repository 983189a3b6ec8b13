// Controls on the clipboard: a form that contains only them, with its companion file.
#pragma once

#include <QMimeData>
#include <QRectF>
#include <memory>

#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// The MIME type of copied controls.
extern const char* const controlsFormat;

/// Returns the selected controls with their contents, also as the text of a form. Null if none is
/// selected.
std::unique_ptr<QMimeData> CopySelected(const FormDesign& design);

bool HoldsControls(const QMimeData* data);

/// Pastes copies of the controls and selects them: into the selected container, or else into the
/// container of the control that was selected last. A selected container that looks like a copied
/// one counts as a control, because it is the original or its last copy. Copies get new names if
/// theirs are taken (see CopyName), and elements of control arrays get free indices. They move
/// aside from controls at the same place, and inside `seen`, the part of the form that is seen, in
/// twips of its client area. Null, or a container outside it: inside their container. One step of
/// the history. Throws FormError for damaged data, and as FormDesign::Restructure does.
void Paste(FormDesign& design, const QMimeData& data, const QRectF& seen = {});

/// Copies and pastes without the clipboard.
void DuplicateSelected(FormDesign& design, const QRectF& seen = {});

}  // namespace lumenkit::lumenform
