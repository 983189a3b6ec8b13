// The context menu of a text box.
#pragma once

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

enum class EditCommand { None, Undo, Redo, Cut, Copy, Paste, Delete, SelectAll };

/// Which commands can be chosen. Delete can be chosen whenever Cut can.
struct EditMenu {
    bool undo = false;
    bool redo = false;
    bool cut = false;
    bool copy = false;
    bool paste = false;
    bool selectAll = false;

    /// Shows the menu with its upper left corner at `place` on the screen and waits for the user's
    /// choice. Messages are dispatched meanwhile.
    EditCommand Ask(HWND owner, POINT place) const;
};

/// Returns the place on the screen for the menu of an edit control. `place` is the parameter of
/// WM_CONTEXTMENU; for a menu that the keyboard opens, it is at the caret.
POINT MenuPlace(HWND edit, LPARAM place);

/// Whether the clipboard has text.
bool HasClipboardText();

}  // namespace lumenkit::win32
