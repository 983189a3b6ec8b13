#pragma once

#include <QWidget>
#include <memory>

#include "apps/lumenform/form_view/plain_kind.h"

namespace lumenkit::lumenform {

/// Makes a widget and its parts ignore the mouse and all keys but Tab. The widget still takes the
/// focus, as the control does that it stands for.
void KeepStill(QWidget& widget);

/// Finishes a likeness: keeps it still, and names it after its control for screen readers.
PlainWidget Likeness(const BlockReader& reader, std::unique_ptr<QWidget> widget);

}  // namespace lumenkit::lumenform
