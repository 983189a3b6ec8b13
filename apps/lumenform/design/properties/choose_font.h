#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "runtime/qt/font.h"

namespace lumenkit::lumenform {

/// Opens a dialog to choose a font. Calls `chosen` unless the user cancels. Attributes that the
/// user does not change keep the values of `former`, even if the system lacks that font. `former`
/// may be null.
void ChooseFont(QWidget& parent, const QString& title, const host::Font* former,
                std::function<void(std::shared_ptr<qt::Font>)> chosen);

}  // namespace lumenkit::lumenform
