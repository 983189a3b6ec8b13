#pragma once

#include <QMenuBar>
#include <memory>

#include "apps/lumenform/form_view/stage.h"
#include "forms/block.h"

namespace lumenkit::form {

/// Whether the block is a menu or an entry of one.
bool IsMenu(const forms::Block& block);

/// The menus of a form as a bar; null where it has none that are seen.
std::unique_ptr<QMenuBar> MakeMenuBar(const Stage& stage, const forms::Block& form);

/// What a menu's key is called in Qt: "^N" is Ctrl+N, "+^{F12}" is Ctrl+Shift+F12. Empty for what
/// is no key.
QKeySequence KeysOf(TextView shortcut);

}  // namespace lumenkit::form
