// Controls on the clipboard: a form that contains only them, with its companion file.
#pragma once

#include <QMimeData>
#include <memory>

#include "apps/lumenform/design/model/form_design.h"

namespace lumenkit::lumenform {

/// The MIME type of copied controls.
extern const char* const controlsFormat;

/// Returns the selected controls with their contents, also as the text of a form. Null if none is
/// selected.
std::unique_ptr<QMimeData> CopySelected(const FormDesign& design);

bool HoldsControls(const QMimeData* data);

/// Pastes copies of the controls into the selected container or beside the selected control, and
/// selects them. Copies get new names if theirs are taken, elements of control arrays get free
/// indices, and the copies move aside from controls at the same place. One step of the history.
/// Throws FormError for damaged data, and as FormDesign::Restructure does.
void Paste(FormDesign& design, const QMimeData& data);

/// Copies and pastes without the clipboard.
void DuplicateSelected(FormDesign& design);

}  // namespace lumenkit::lumenform
