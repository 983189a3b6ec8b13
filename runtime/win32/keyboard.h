// Keyboard handling for the constituents of one control or page. The tab order is the order in
// which the windows were created. The option buttons of one parent are one tab stop; arrow keys
// choose among them.
#pragma once

#include <string>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Gives the focus to the first (or last) constituent in `root` that takes it. Returns false if
/// there is none.
bool FocusFirst(HWND root, bool last);

/// Whether there are constituents in `root` that take the focus, but the user can use none of them
/// now.
bool AreStopsOutOfUse(HWND root);

/// Returns the constituent in `root` that gets the focus when `leaving` and the windows inside it
/// lose it: the next one in the tab order. Null if there is none.
HWND FocusAfter(HWND root, HWND leaving);

/// Whether `root` or a window inside it has the focus.
bool HasFocusInside(HWND root);

/// Handles a queued message for a window in `root` as a dialog does: Tab, arrows among option
/// buttons, mnemonics. Keys that the focused window needs itself (arrows, editing keys, Return
/// where it breaks lines) are sent to it. Return on buttons, Escape, and a Tab that leads out of
/// `root` are left to the container. Returns true if the message was used.
bool TranslateKeyInside(HWND root, const MSG& message);

/// Returns the mnemonics of the usable captions in `root`, in lower case, each once.
std::wstring MnemonicsInside(HWND root);

/// Performs the action of a mnemonic: clicks the button, or moves the focus to the window that the
/// label or frame names. Returns false if no caption in `root` has the mnemonic.
bool UseMnemonicInside(HWND root, wchar_t unit);

/// Whether `unit` is a mnemonic of the caption `text` ("&Open"; "&&" is no mnemonic), regardless of
/// case.
bool AnswersTo(const wchar_t* text, wchar_t unit);

}  // namespace lumenkit::win32
