// Controls on the clipboard: a small form of them alone, with its companion.
#pragma once

#include <QMimeData>
#include <memory>

#include "apps/lumenform/design/model/design.h"

namespace lumenkit::form {

/// How copied controls are called on the clipboard.
extern const char* const controlsFormat;

/// The selected controls with all that lies in them, also as the text of a form; null when none is
/// selected.
std::unique_ptr<QMimeData> CopySelected(const Design& design);

bool HoldsControls(const QMimeData* data);

/// Puts copies of the controls into the selected container, or beside what is selected, and selects
/// them: with names of their own where theirs are taken, elements of control arrays with free
/// indices, and a little aside of what stands there already. One step of the history. Throws
/// FormError for what is damaged, and as Design::Restructure does.
void Paste(Design& design, const QMimeData& data);

/// Copy and paste without the clipboard.
void DuplicateSelected(Design& design);

}  // namespace lumenkit::form
