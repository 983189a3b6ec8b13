#pragma once

#include <QString>

namespace lumenkit::testing {

/// Leaves the present copy of unsaved work behind, as a program does that is killed: the lock is
/// gone.
void LeaveBehind(const QString& store);

}  // namespace lumenkit::testing
