#pragma once

#include <QString>
#include <QWidget>

#include "apps/lumenform/design/properties/notice.h"

namespace lumenkit::testing {

/// Enters a text as an input method does: there may be no keys for its letters.
void Compose(QWidget* widget, const QString& text);

/// Clicks the first link below a text: the form is written in UTF-8 from now on.
void FollowFirstLink(const lumenform::Notice& notice);

}  // namespace lumenkit::testing
