#pragma once

#include <QStringList>

namespace lumenkit::qt {

/// Returns the families to draw with if `asked` is requested, best first: the family itself, then
/// its substitutes, each only if it is installed and scalable. Returns only `asked` if none is.
QStringList FamiliesFor(const QString& asked);

}  // namespace lumenkit::qt
