#pragma once

#include <QMainWindow>
#include <QMenuBar>

namespace lumenkit::lumenform {

/// Lets F10 open the first menu of the bar, and Shift+F10 the context menu of the widget with the
/// keyboard, as the key Menu does.
void AddMenuKeys(QMainWindow& window, QMenuBar& bar);

}  // namespace lumenkit::lumenform
