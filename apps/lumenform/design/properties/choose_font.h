#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "runtime/qt/font.h"

namespace lumenkit::form {

/// Has the person choose a font; `chosen` hears of it unless he gives up. What he leaves alone
/// stays as `former`, which may be null, has it, also where the system has no such font.
void ChooseFont(QWidget& parent, const QString& title, const host::Font* former,
                std::function<void(std::shared_ptr<qt::Font>)> chosen);

}  // namespace lumenkit::form
