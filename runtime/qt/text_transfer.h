// Text on the clipboard and in drags.
#pragma once

#include <QString>
#include <memory>

#include "frame/text.h"

class QMimeData;

namespace lumenkit::qt {

/// Converts text of another program: every line break becomes CR LF.
Text WithLineBreaks(const QString& text);

/// The data hold all units of the text, for text boxes of this library, and the plain text for
/// other programs.
std::unique_ptr<QMimeData> ToMimeData(TextView text);

bool HoldsText(const QMimeData& data);
Text FromMimeData(const QMimeData& data);

}  // namespace lumenkit::qt
