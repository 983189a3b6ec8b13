#pragma once

#include <QStringList>

namespace lumenkit::qt {

/// The families to draw with where `asked` is asked for, best first: itself if it is installed and
/// scales, then what stands for it on other platforms.
QStringList FamiliesFor(const QString& asked);

}  // namespace lumenkit::qt
