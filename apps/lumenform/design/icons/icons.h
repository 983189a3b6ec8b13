#pragma once

#include <QIcon>
#include <QString>

namespace lumenkit::lumenform {

/// Returns an icon of the family Breeze by its name, such as "edit-undo". It is drawn in the
/// colours of the application's palette, also after this changes, and sharp at any scale. The list
/// of the names is in CMakeLists.txt; other names are null icons.
QIcon ThemeIcon(const QString& name);

/// Returns the icon of the program.
QIcon ProgramIcon();

}  // namespace lumenkit::lumenform
