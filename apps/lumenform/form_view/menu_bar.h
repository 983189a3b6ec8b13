#pragma once

#include <QMenuBar>
#include <memory>

#include "apps/lumenform/form_view/stage.h"
#include "forms/block.h"

namespace lumenkit::lumenform {

/// Returns whether the block is a menu or a menu entry.
bool IsMenu(const forms::Block& block);

/// Creates a menu bar with the menus of a form. Returns null if no menu is visible.
std::unique_ptr<QMenuBar> MakeMenuBar(const Stage& stage, const forms::Block& form);

/// Returns the menu of an action of the menu bar.
forms::Block* MenuOf(const QAction& title);

/// Converts a menu shortcut to Qt's: "^N" is Ctrl+N, "+^{F12}" is Ctrl+Shift+F12. Returns an empty
/// sequence for an unknown shortcut.
QKeySequence KeysOf(TextView shortcut);

}  // namespace lumenkit::lumenform
